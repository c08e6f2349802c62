#pragma once

#include <windows.h>

#include <optional>

#include "app/Form1View.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

/// Asks for the moment at which a reminder comes back. It stands open in front of its owner, which
/// waits meanwhile.
class SnoozeDialog : private DialogFrame {
 public:
  /// All must outlive this object.
  SnoozeDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
               const MomentQuestion& question)
      : DialogFrame(owner, dialogs), deliver_(deliver), question_(question) {}

  /// Nothing where the dialog was cancelled, went away with its owner, or could not be opened.
  std::optional<LocalMinute> ask();

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  void opened() noexcept override;
  void takeMoment();

  const EventDelivery& deliver_;
  const MomentQuestion& question_;
  std::optional<LocalMinute> chosen_;
};

}  // namespace kalvora
