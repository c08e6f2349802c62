#pragma once

#include <windows.h>

namespace kalvora {

/// Whether a key, or a button of the mouse, was down when the message came that is being handled.
inline bool isDown(int key) {
  return GetKeyState(key) < 0;
}

/// Whether a WM_KEYDOWN comes from a key that is held.
inline bool isRepeated(const MSG& message) {
  constexpr LPARAM kWasDown = LPARAM{1} << 30U;
  return (message.lParam & kWasDown) != 0;
}

}  // namespace kalvora
