#pragma once

#include "app/ProfileReader.h"
#include "win32/platform/RememberedIniFile.h"

namespace kalvora {

/// Ini files through GetPrivateProfileStringA. Where every reader would find the same, the answer
/// is looked up in what was read for the value before: the call opens the file for each value, and
/// a skin's description has 91.
class PlatformProfileReader : public ProfileReader {
 public:
  /// A path that the code page cannot hold is given to the call in its short (8.3) form; where the
  /// volume has none, GetPrivateProfileStringW reads the file and its answer is converted. What is
  /// no file on a disk reads as an empty one.
  std::size_t privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, std::span<char> buffer,
                                   const std::filesystem::path& file) override;

 private:
  RememberedIniFile remembered_;
};

/// The same answer by way of GetPrivateProfileStringW, which takes any path.
std::size_t wideProfileString(const std::string& section, const std::string& key,
                              const std::string& fallback, std::span<char> buffer,
                              const std::filesystem::path& file);

}  // namespace kalvora
