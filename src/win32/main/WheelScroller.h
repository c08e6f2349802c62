#pragma once

#include <windows.h>

namespace kalvora {

/// Scrolls a field of several lines by the mouse wheel, also one without a scroll bar, which would
/// not do so by itself.
class WheelScroller {
 public:
  /// Follows a WM_MOUSEWHEEL with this wParam. False where it is not for scrolling, since Ctrl or
  /// Shift is held.
  bool turn(HWND field, WPARAM wParam);

 private:
  // What a fine wheel turned that did not come to a whole notch yet.
  int rest_ = 0;
};

}  // namespace kalvora
