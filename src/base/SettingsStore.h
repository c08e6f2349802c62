#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// The current user's settings as texts, each in a section under a key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The stored text, or `fallback` where the key or its section is missing.
  virtual std::wstring get(std::wstring_view section, std::wstring_view key,
                           std::wstring_view fallback) const = 0;
  /// Throws Failure where the text cannot be stored.
  virtual void save(std::wstring_view section, std::wstring_view key, std::wstring_view text) = 0;
};

/// The section of all that the user chose beyond the program's old rules.
inline constexpr std::wstring_view kComfortSection = L"Comfort";

}  // namespace kalvora
