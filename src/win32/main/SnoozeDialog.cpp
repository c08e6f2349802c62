#include "win32/main/SnoozeDialog.h"

#include <commctrl.h>

#include "base/Dates.h"
#include "win32/main/SnoozeIds.h"
#include "win32/toolkit/DateBox.h"
#include "win32/toolkit/MessageBoxes.h"
#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

std::optional<LocalMinute> SnoozeDialog::ask() {
  registerControls(ICC_DATE_CLASSES);
  runModal(IDD_SNOOZE);
  return chosen_;
}

void SnoozeDialog::opened() noexcept {
  const HWND date = control(IDC_SNOOZE_DATE);
  const LocalTime proposed = timeOf(question_.proposed);
  prepareDateBox(date);
  showDateIn(date, dateOf(proposed));
  showTimeIn(control(IDC_SNOOZE_TIME), proposed, question_.hourFormat);
  centre();
  SetFocus(date);
}

INT_PTR SnoozeDialog::handle(HWND, UINT message, WPARAM wParam, LPARAM) noexcept {
  if (message != WM_COMMAND) return FALSE;
  if (LOWORD(wParam) == IDOK) deliver_([this] { takeMoment(); });
  if (LOWORD(wParam) == IDCANCEL) endModal();
  return TRUE;
}

void SnoozeDialog::takeMoment() {
  const std::chrono::local_days day(dateIn(control(IDC_SNOOZE_DATE)));
  const LocalMinute moment = day + timeIn(control(IDC_SNOOZE_TIME));
  const std::wstring_view refusal = question_.refusal(moment);
  if (refusal.empty()) {
    chosen_ = moment;
    endModal();
    return;
  }
  showCriticalMessage(L"Remind Me Later", refusal);
  SetFocus(control(IDC_SNOOZE_DATE));
}

}  // namespace kalvora
