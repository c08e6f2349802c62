#include "win32/AnsiPath.h"

#include <windows.h>

#include <optional>

namespace kalvora {

namespace {

std::optional<std::string> exactBytes(const std::wstring& text) {
  if (text.empty()) return std::string();
  const int length = static_cast<int>(text.size());
  BOOL replaced = FALSE;
  const int size = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), length, nullptr,
                                       0, nullptr, &replaced);
  if (size <= 0 || replaced) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), length, bytes.data(), size,
                      nullptr, nullptr);
  return bytes;
}

std::wstring shortForm(const std::wstring& path) {
  std::wstring shortPath(32768, L'\0');
  const DWORD length =
      GetShortPathNameW(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
  shortPath.resize(length < shortPath.size() ? length : 0);
  return shortPath;
}

}  // namespace

std::string ansiPath(const std::filesystem::path& path) {
  if (const auto bytes = exactBytes(path.wstring())) return *bytes;
  return exactBytes(shortForm(path.wstring())).value_or(std::string());
}

}  // namespace kalvora
