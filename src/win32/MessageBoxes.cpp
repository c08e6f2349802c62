#include "win32/MessageBoxes.h"

#include <algorithm>
#include <new>
#include <string>

namespace kalvora {

namespace {

HWND visibleOwner(HWND owner) {
  return IsWindowVisible(owner) ? owner : nullptr;
}

int show(HWND owner, std::wstring_view title, std::wstring_view text, UINT style) {
  // A mouse that a pressed button still holds would never reach the box.
  ReleaseCapture();
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
  try {
    const bool waits = std::ranges::find(waiting_, message) != waiting_.end();
    if (!waits && waiting_.size() < kMostWaiting) waiting_.emplace_back(message);
    if (open_) return;
    open_ = true;
    // The front one stays in the list while it is shown, so that it is not shown twice.
    for (; !waiting_.empty(); waiting_.erase(waiting_.begin())) {
      // In front of the window that the user works in, and blocking it.
      showCriticalMessage(owner_ ? owner_() : GetActiveWindow(), L"Error!",
                          std::wstring(waiting_.front()));
    }
  } catch (const std::bad_alloc&) {
    MessageBoxW(nullptr, L"There is not enough memory.", L"Error!", MB_OK | MB_ICONERROR);
  }
  open_ = false;
}

}  // namespace kalvora
