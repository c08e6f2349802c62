#include "win32/toolkit/DialogLetters.h"

namespace kalvora {

namespace {

/// Esc, Enter, Tab and the space bar come before it.
constexpr WPARAM kFirstLetter = L' ' + 1;

// Asked before each message of a dialog; other than zero keeps the platform's hands off it.
LRESULT CALLBACK beforeDialog(int code, WPARAM wParam, LPARAM lParam) noexcept {
  const auto& message = *reinterpret_cast<const MSG*>(lParam);
  if (code == MSGF_DIALOGBOX && message.message == WM_CHAR && message.wParam >= kFirstLetter) {
    DispatchMessageW(&message);
    return 1;
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

DialogLetters::DialogLetters()
    : hook_(SetWindowsHookExW(WH_MSGFILTER, beforeDialog, nullptr, GetCurrentThreadId())) {}

}  // namespace kalvora
