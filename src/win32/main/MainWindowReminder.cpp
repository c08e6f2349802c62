// The choice of another moment for a reminder on show.

#include "base/Errors.h"
#include "win32/main/MainWindow.h"
#include "win32/main/SnoozeDialog.h"

namespace kalvora {

std::optional<std::size_t> MainWindow::chooseFromMenu(Point at,
                                                      std::span<const std::wstring_view> captions) {
  const UniqueMenu menu(CreatePopupMenu());
  UINT_PTR number = 0;
  for (const std::wstring_view caption : captions) {
    if (!AppendMenuW(menu.get(), MF_STRING, ++number, std::wstring(caption).c_str())) {
      throw Failure(L"The menu cannot be opened.");
    }
  }
  POINT place{at.x, at.y};
  ClientToScreen(window_, &place);
  // A mouse that a pressed button still holds would never reach the menu, and a click beside it
  // closes only that of the window in front.
  ReleaseCapture();
  SetForegroundWindow(window_);
  const BOOL chosen = TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                     place.x, place.y, 0, window_, nullptr);
  // What the end of the program closes was not chosen.
  if (chosen <= 0 || !takesEvents_) return std::nullopt;
  return static_cast<std::size_t>(chosen) - 1;
}

std::optional<LocalMinute> MainWindow::askMoment(const MomentQuestion& question) {
  // It stands open by itself: no other dialog's keys come to it.
  ModelessDialogs alone;
  const std::optional<LocalMinute> moment = SnoozeDialog(window_, alone, deliver_, question).ask();
  return takesEvents_ ? moment : std::nullopt;
}

}  // namespace kalvora
