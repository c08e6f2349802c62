// What the user does with a reminder on show: the keys for it, and the choice of another moment.

#include "app/Form1.h"
#include "base/Errors.h"
#include "win32/main/MainWindow.h"
#include "win32/main/ReminderKeys.h"
#include "win32/main/SnoozeDialog.h"

namespace kalvora {

bool MainWindow::takesReminderKey(const MSG& message) noexcept {
  if (message.hwnd != window_ && !IsChild(window_, message.hwnd)) return false;
  const std::optional<ReminderKey> key = reminderKeyOf(message);
  if (!key || !takesEvents_ || !form_.showsReminder()) return false;
  deliver_([&] {
    if (key == ReminderKey::Snooze) form_.snooze();
    if (key == ReminderKey::SnoozeMenu) form_.openSnoozeMenu();
    if (key == ReminderKey::Done) form_.done();
  });
  return true;
}

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
