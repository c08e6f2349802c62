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
  if (!isRepeated(message) || goesOnWhileHeld(*command)) deliver_([&] { form_.act(*command); });
  return true;
}

}  // namespace kalvora
