#include "win32/toolkit/MessageBoxes.h"

#include <algorithm>
#include <new>
#include <string>

#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

namespace {

/// Whether a user works in it. Lists that drop down, tips and the menu have neither of these
/// styles.
bool isWorkedIn(HWND window) {
  const bool titled = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
  const bool holdsControls = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
  return IsWindowVisible(window) && !IsIconic(window) && (titled || holdsControls);
}

/// Ends the search at the first one.
BOOL CALLBACK takeIfWorkedIn(HWND window, LPARAM place) noexcept {
  if (!isWorkedIn(window)) return TRUE;
  *reinterpret_cast<HWND*>(place) = window;
  return FALSE;
}

int show(std::wstring_view title, std::wstring_view text, UINT style) {
  // A mouse that a pressed button still holds would never reach the box.
  ReleaseCapture();
  const VisualStyles styles;
  return MessageBoxW(windowInUse(), std::wstring(text).c_str(), std::wstring(title).c_str(),
                     style | MB_SETFOREGROUND | MB_TOPMOST);
}

}  // namespace

HWND windowInUse() noexcept {
  const HWND active = GetActiveWindow();
  if (active != nullptr && isWorkedIn(active)) return active;
  // From the frontmost window on.
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), takeIfWorkedIn, reinterpret_cast<LPARAM>(&found));
  return found;
}

void showCriticalMessage(std::wstring_view title, std::wstring_view text) {
  show(title, text, MB_OK | MB_ICONERROR);
}

bool askOkCancel(std::wstring_view title, std::wstring_view text) {
  return show(title, text, MB_OKCANCEL | MB_ICONQUESTION) == IDOK;
}

void MessageBoxReporter::report(std::wstring_view message) noexcept {
  try {
    const bool waits = std::ranges::find(waiting_, message) != waiting_.end();
    if (!waits && waiting_.size() < kMostWaiting) waiting_.emplace_back(message);
    if (open_) return;
    open_ = true;
    // The front one stays in the list while it is shown, so that it is not shown twice.
    for (; !waiting_.empty(); waiting_.erase(waiting_.begin())) {
      showCriticalMessage(L"Error!", std::wstring(waiting_.front()));
    }
  } catch (const std::bad_alloc&) {
    MessageBoxW(nullptr, L"There is not enough memory.", L"Error!", MB_OK | MB_ICONERROR);
  }
  open_ = false;
}

}  // namespace kalvora
