#include "win32/main/ReminderKeys.h"

#include "win32/toolkit/Keys.h"

namespace kalvora {

namespace {

std::optional<ReminderKey> keyPressed(WPARAM key) {
  if (isDown(VK_CONTROL) || isDown(VK_MENU)) return std::nullopt;
  const bool shift = isDown(VK_SHIFT);
  switch (key) {
    case VK_F7:
      return shift ? ReminderKey::SnoozeMenu : ReminderKey::Snooze;
    case VK_F8:
      return shift ? std::nullopt : std::optional(ReminderKey::Done);
    case VK_F10:
      return shift ? std::optional(ReminderKey::SnoozeMenu) : std::nullopt;
    case VK_APPS:
      return ReminderKey::SnoozeMenu;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<ReminderKey> reminderKeyOf(const MSG& message) {
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: {
      const std::optional<ReminderKey> key = keyPressed(message.wParam);
      return key && isRepeated(message) ? ReminderKey::HeldOn : key;
    }
    case WM_KEYUP:
      // The platform would open the menu of the field now.
      return message.wParam == VK_APPS ? std::optional(ReminderKey::HeldOn) : std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace kalvora
