// The keys that ask the main window for something.

#include "app/Form1.h"
#include "win32/main/KeyStrokes.h"
#include "win32/main/MainWindow.h"
#include "win32/toolkit/Keys.h"

namespace kalvora {

bool MainWindow::takesCommandKey(const MSG& message) noexcept {
  if (message.hwnd != window_ && !IsChild(window_, message.hwnd)) return false;
  if (!takesEvents_) return false;
  // The platform would open the menu of the field now.
  if (message.message == WM_KEYUP && message.wParam == VK_APPS) return form_.showsReminder();
  const std::optional<KeyStroke> stroke = keyStrokeOf(message);
  const std::optional<MainCommand> command = stroke ? commandOf(*stroke) : std::nullopt;
  // The platform closes windows itself.
  if (!command || command == MainCommand::PutAway || !form_.takes(*command)) return false;
  const bool inTime = message.hwnd == fields_.control(FieldId::Text3);
  if (command == MainCommand::TurnHalf && !inTime) return false;
  const bool counts = !isRepeated(message) || goesOnWhileHeld(*command);
  const bool isSeen = !endsReminder(*command) || !reminderCameJustNow(message.time);
  if (counts && isSeen) deliver_([&] { form_.act(*command); });
  return true;
}

/// A key that was meant for the one before, or for the note that it came over.
bool MainWindow::reminderCameJustNow(DWORD now) const {
  return reminder_.number && now - reminder_.since < GetDoubleClickTime();
}

void MainWindow::lookAtReminder() {
  const std::optional<unsigned> number = form_.reminderOnShow();
  if (number != reminder_.number) reminder_ = {number, GetTickCount()};
}

}  // namespace kalvora
