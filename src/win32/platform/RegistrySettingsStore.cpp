#include "win32/platform/RegistrySettingsStore.h"

#include <windows.h>

#include <algorithm>
#include <optional>

#include "base/Errors.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {

namespace {

// In bytes: a thousand reminders that were put off.
constexpr std::size_t kLongestValue = std::size_t{1} << 16U;

std::optional<std::wstring> textValue(HKEY key, const std::wstring& name) {
  DWORD type = REG_NONE;
  DWORD size = 0;
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
      type != REG_SZ || size > kLongestValue) {
    return std::nullopt;
  }
  // The stored text need not end with a NUL, nor be a whole number of characters.
  std::wstring text(size / sizeof(wchar_t) + 1, L'\0');
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()),
                       &size) != ERROR_SUCCESS ||
      type != REG_SZ) {
    return std::nullopt;
  }
  text.resize(size / sizeof(wchar_t));
  text.resize(std::min(text.size(), text.find(L'\0')));
  return text;
}

void require(bool done, std::wstring_view key) {
  if (!done) throw Failure(L"This setting cannot be saved: " + std::wstring(key));
}

}  // namespace

std::wstring RegistrySettingsStore::pathOf(std::wstring_view section) const {
  return root_ + L"\\" + std::wstring(section);
}

std::wstring RegistrySettingsStore::get(std::wstring_view section, std::wstring_view key,
                                        std::wstring_view fallback) const {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, pathOf(section).c_str(), 0, KEY_QUERY_VALUE, &opened) !=
      ERROR_SUCCESS) {
    return std::wstring(fallback);
  }
  const UniqueKey owner(opened);
  return textValue(owner.get(), std::wstring(key)).value_or(std::wstring(fallback));
}

void RegistrySettingsStore::save(std::wstring_view section, std::wstring_view key,
                                 std::wstring_view text) {
  const std::wstring value(text);
  const std::size_t size = (value.size() + 1) * sizeof(wchar_t);
  // It would not be read again.
  require(size <= kLongestValue, key);
  HKEY opened = nullptr;
  require(RegCreateKeyExW(HKEY_CURRENT_USER, pathOf(section).c_str(), 0, nullptr,
                          REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, &opened,
                          nullptr) == ERROR_SUCCESS,
          key);
  const UniqueKey owner(opened);
  require(RegSetValueExW(owner.get(), std::wstring(key).c_str(), 0, REG_SZ,
                         reinterpret_cast<const BYTE*>(value.c_str()),
                         static_cast<DWORD>(size)) == ERROR_SUCCESS,
          key);
}

}  // namespace kalvora
