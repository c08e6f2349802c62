#pragma once

#include <windows.h>

#include <optional>

namespace kalvora {

/// What the keys of a reminder do.
enum class ReminderKey {
  Snooze,      // F7
  SnoozeMenu,  // Shift+F7, the menu key, Shift+F10
  Done,        // F8
  HeldOn       // one of them is held, or let go: behind a reminder the next one may come
};

/// Which of these keys a message tells of; nothing for every other message.
std::optional<ReminderKey> reminderKeyOf(const MSG& message);

}  // namespace kalvora
