#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

namespace kalvora {

/// The platform's reading of one value of an ini file. Texts are bytes of the system's ANSI code
/// page and end at their first NUL.
class ProfileReader {
 public:
  virtual ~ProfileReader() = default;

  /// Copies the value, or `fallback` where file, section or key is missing, into `buffer`, cut to
  /// one byte less than its size, and ends it with a NUL. Returns the bytes copied, without that
  /// NUL. `file` is a full path.
  virtual std::size_t privateProfileString(const std::string& section, const std::string& key,
                                           const std::string& fallback, std::span<char> buffer,
                                           const std::filesystem::path& file) = 0;
};

}  // namespace kalvora
