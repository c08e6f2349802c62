#pragma once

#include <string>

#include "app/Settings.h"

namespace kalvora {

/// The settings in the registry: HKEY_CURRENT_USER\<root>\<section>, one text value a key.
class RegistrySettingsStore : public SettingsStore {
 public:
  static constexpr const wchar_t* kRoot = L"Software\\Kalvora";

  /// Nothing is created before something is saved.
  explicit RegistrySettingsStore(std::wstring root = kRoot) : root_(std::move(root)) {}

  /// A value that is no text, or longer than any setting can be (half a million characters), counts
  /// as missing; such a text is not saved either.
  std::wstring get(std::wstring_view section, std::wstring_view key,
                   std::wstring_view fallback) const override;
  void save(std::wstring_view section, std::wstring_view key, std::wstring_view text) override;

 private:
  std::wstring pathOf(std::wstring_view section) const;

  std::wstring root_;
};

}  // namespace kalvora
