#include "win32/main/KeyStrokes.h"

#include <array>

#include "win32/toolkit/Keys.h"

namespace kalvora {

namespace {

struct KeyNumber {
  WPARAM number;
  Key key;
};

constexpr std::array kKeyNumbers = {
    KeyNumber{'N', Key::N},
    KeyNumber{'S', Key::S},
    KeyNumber{'F', Key::F},
    KeyNumber{VK_PRIOR, Key::PageUp},
    KeyNumber{VK_NEXT, Key::PageDown},
    KeyNumber{VK_DELETE, Key::Delete},
    KeyNumber{VK_UP, Key::Up},
    KeyNumber{VK_DOWN, Key::Down},
    KeyNumber{VK_F4, Key::F4},
    KeyNumber{VK_F6, Key::F6},
    KeyNumber{VK_F7, Key::F7},
    KeyNumber{VK_F8, Key::F8},
    KeyNumber{VK_F10, Key::F10},
    KeyNumber{VK_APPS, Key::Menu},
};

/// The block of numbers has a key of the same number, with which the platform pretends that Shift
/// is up; and what is deleted is not to hang on that.
bool isOfNumberBlock(const MSG& message) {
  constexpr LPARAM kExtended = LPARAM{1} << 24U;
  return message.wParam == VK_DELETE && (message.lParam & kExtended) == 0;
}

std::optional<HeldWith> heldNow() {
  const bool shift = isDown(VK_SHIFT);
  const bool control = isDown(VK_CONTROL);
  if (isDown(VK_MENU)) return shift || control ? std::nullopt : std::optional(HeldWith::Alt);
  if (control) return shift ? HeldWith::CtrlShift : HeldWith::Ctrl;
  return shift ? HeldWith::Shift : HeldWith::Nothing;
}

}  // namespace

std::optional<KeyStroke> keyStrokeOf(const MSG& message) {
  // F10 is one of the system's keys.
  if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return std::nullopt;
  std::optional<HeldWith> held = heldNow();
  if (!held || isOfNumberBlock(message)) return std::nullopt;
  // The menu key means the same with Shift.
  if (message.wParam == VK_APPS && held == HeldWith::Shift) held = HeldWith::Nothing;
  for (const KeyNumber& known : kKeyNumbers) {
    if (known.number == message.wParam) return KeyStroke{*held, known.key};
  }
  return std::nullopt;
}

}  // namespace kalvora
