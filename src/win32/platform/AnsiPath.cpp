#include "win32/platform/AnsiPath.h"

#include <windows.h>

#include <algorithm>

#include "win32/platform/SystemCodePage.h"

namespace kalvora {

namespace {

std::optional<std::string> exactBytes(const std::wstring& text) {
  const SystemCodePage codePage;
  std::string bytes = codePage.toBytes(text);
  if (codePage.toText(bytes) != text) return std::nullopt;
  return bytes;
}

std::wstring shortForm(const std::wstring& path) {
  std::wstring text(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
  const DWORD length =
      GetShortPathNameW(path.c_str(), text.data(), static_cast<DWORD>(text.size()));
  text.resize(std::min<std::size_t>(length, text.size()));
  return text;
}

}  // namespace

std::optional<std::string> ansiPath(const std::filesystem::path& path) {
  if (auto bytes = exactBytes(path.native())) return bytes;
  const std::wstring shorter = shortForm(path.native());
  return shorter.empty() ? std::nullopt : exactBytes(shorter);
}

}  // namespace kalvora
