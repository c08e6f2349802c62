#include "win32/main/WheelScroller.h"

#include <algorithm>

namespace kalvora {

namespace {

constexpr UINT kUsualLines = 3;

void turnPages(HWND field, int pages) {
  const WPARAM direction = pages > 0 ? SB_PAGEDOWN : SB_PAGEUP;
  for (int i = std::abs(pages); i > 0; --i) SendMessageW(field, EM_SCROLL, direction, 0);
}

}  // namespace

bool WheelScroller::turn(HWND field, WPARAM wParam) {
  if ((GET_KEYSTATE_WPARAM(wParam) & (MK_CONTROL | MK_SHIFT)) != 0) return false;
  UINT linesANotch = kUsualLines;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &linesANotch, 0);
  rest_ += GET_WHEEL_DELTA_WPARAM(wParam);
  const int notches = rest_ / WHEEL_DELTA;
  rest_ %= WHEEL_DELTA;
  if (linesANotch == WHEEL_PAGESCROLL) {
    turnPages(field, -notches);
  } else {
    // Away from the user is up.
    SendMessageW(field, EM_LINESCROLL, 0, LPARAM{-notches} * static_cast<int>(linesANotch));
  }
  return true;
}

}  // namespace kalvora
