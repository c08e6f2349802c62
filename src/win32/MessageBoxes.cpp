#include "win32/MessageBoxes.h"

#include <new>
#include <string>

namespace kalvora {

namespace {

HWND visibleOwner(HWND owner) {
  return IsWindowVisible(owner) ? owner : nullptr;
}

int show(HWND owner, std::wstring_view title, std::wstring_view text, UINT style) {
  return MessageBoxW(visibleOwner(owner), std::wstring(text).c_str(), std::wstring(title).c_str(),
                     style | MB_SETFOREGROUND | MB_TOPMOST);
}

}  // namespace

void showCriticalMessage(HWND owner, std::wstring_view title, std::wstring_view text) {
  show(owner, title, text, MB_OK | MB_ICONERROR);
}

bool askOkCancel(HWND owner, std::wstring_view title, std::wstring_view text) {
  return show(owner, title, text, MB_OKCANCEL | MB_ICONQUESTION) == IDOK;
}

void MessageBoxReporter::report(std::wstring_view message) noexcept {
  if (open_) return;
  open_ = true;
  try {
    // In front of the window that the user works in, which may be a topmost one, and blocking it.
    showCriticalMessage(GetActiveWindow(), L"Error!", message);
  } catch (const std::bad_alloc&) {
    MessageBoxW(nullptr, L"There is not enough memory.", L"Error!", MB_OK | MB_ICONERROR);
  }
  open_ = false;
}

}  // namespace kalvora
