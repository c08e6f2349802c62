#include "win32/platform/SystemCodePage.h"

#include <windows.h>

namespace kalvora {

namespace {

// The calls count in int. Nothing that the program converts comes near; what does is cut.
constexpr std::size_t kLongest = 1U << 28U;

/// UTF-8, which a user can choose as the system's code page, holds every character and refuses
/// the flag.
DWORD exactOnly() {
  return GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
}

}  // namespace

std::wstring SystemCodePage::toText(std::string_view bytes) const {
  if (bytes.empty()) return {};
  const int length = static_cast<int>(bytes.substr(0, kLongest).size());
  const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), needed);
  return text;
}

std::string SystemCodePage::toBytes(std::wstring_view text) const {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.substr(0, kLongest).size());
  const DWORD flags = exactOnly();
  const int needed =
      WideCharToMultiByte(CP_ACP, flags, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, flags, text.data(), length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

bool SystemCodePage::startsPair(char byte) const {
  return IsDBCSLeadByte(static_cast<BYTE>(byte)) != FALSE;
}

}  // namespace kalvora
