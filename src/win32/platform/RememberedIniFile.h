#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

namespace kalvora {

/// The ini file that was read last, for a reader that asks for value after value: the platform's
/// call opens the file for each.
class RememberedIniFile {
 public:
  /// The text of the file, read anew if it changed since; null where only the platform knows what
  /// to make of it: it is no ordinary ini file, or cannot be read, or was written so lately that
  /// the next change might not show in its time.
  const std::string* textOf(const std::filesystem::path& file);

 private:
  void read(const std::filesystem::path& file, const WIN32_FILE_ATTRIBUTE_DATA& state);
  bool remembers(const std::filesystem::path& file, const WIN32_FILE_ATTRIBUTE_DATA& state) const;

  std::filesystem::path file_;
  WIN32_FILE_ATTRIBUTE_DATA state_{};
  std::string text_;
  bool ordinary_ = false;
};

}  // namespace kalvora
