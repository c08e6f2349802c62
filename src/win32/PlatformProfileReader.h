#pragma once

#include "app/ProfileReader.h"

namespace kalvora {

/// Ini files through GetPrivateProfileStringA.
class PlatformProfileReader : public ProfileReader {
 public:
  /// A path that the code page cannot hold is given to the call in its short (8.3) form; where the
  /// volume has none, GetPrivateProfileStringW reads the file and its answer is converted.
  std::size_t privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, std::span<char> buffer,
                                   const std::filesystem::path& file) override;
};

/// The same answer by way of GetPrivateProfileStringW, which takes any path.
std::size_t wideProfileString(const std::string& section, const std::string& key,
                              const std::string& fallback, std::span<char> buffer,
                              const std::filesystem::path& file);

}  // namespace kalvora
