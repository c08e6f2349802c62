#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kalvora {

/// Where the values of a skin's description file come from.
class SkinValues {
 public:
  virtual ~SkinValues() = default;

  /// The text of a key, or `fallback` where the file, the section or the key is missing or the
  /// text is empty.
  virtual std::wstring value(std::wstring_view section, std::wstring_view key,
                             const std::filesystem::path& file, std::wstring_view fallback) = 0;
};

}  // namespace kalvora
