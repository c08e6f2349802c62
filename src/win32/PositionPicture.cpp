#include "win32/PositionPicture.h"

#include <algorithm>

#include "win32/BufferedDc.h"

namespace kalvora {

namespace {

constexpr COLORREF kDesktopTop = RGB(78, 136, 140);
constexpr COLORREF kDesktopBottom = RGB(30, 78, 82);
constexpr COLORREF kBezel = RGB(44, 48, 50);
constexpr COLORREF kWindowFrame = RGB(95, 74, 38);
constexpr COLORREF kWindowTitle = RGB(37, 88, 91);
constexpr COLORREF kWindowPaper = RGB(255, 250, 240);

RECT rectOf(const Rect& rect) {
  return {rect.x, rect.y, rect.right(), rect.bottom()};
}

int between(int from, int to, int step, int steps) {
  return from + (to - from) * step / std::max(1, steps);
}

void drawDesktop(HDC context, const Rect& screen) {
  for (int row = 0; row < screen.height; ++row) {
    const auto part = [&](auto channel) {
      return between(channel(kDesktopTop), channel(kDesktopBottom), row, screen.height);
    };
    const COLORREF color = RGB(part([](COLORREF c) { return static_cast<int>(GetRValue(c)); }),
                               part([](COLORREF c) { return static_cast<int>(GetGValue(c)); }),
                               part([](COLORREF c) { return static_cast<int>(GetBValue(c)); }));
    fillSolid(context, {screen.x, screen.y + row, screen.right(), screen.y + row + 1}, color);
  }
}

void drawWindow(HDC context, const Rect& window) {
  RECT area = rectOf(window);
  fillSolid(context, area, kWindowPaper);
  RECT title = area;
  title.bottom = std::min<LONG>(area.bottom, area.top + std::max(1, window.height / 5));
  fillSolid(context, title, kWindowTitle);
  frameSolid(context, area, kWindowFrame);
}

}  // namespace

void drawPositionPicture(HDC context, const RECT& area, const Rect& screen, const Rect& window) {
  const BufferedDc buffer(context, area);
  FillRect(buffer.get(), &area, GetSysColorBrush(COLOR_3DFACE));
  drawDesktop(buffer.get(), screen);
  const int saved = SaveDC(buffer.get());
  IntersectClipRect(buffer.get(), screen.x, screen.y, screen.right(), screen.bottom());
  drawWindow(buffer.get(), window);
  RestoreDC(buffer.get(), saved);
  frameSolid(buffer.get(), rectOf(screen), kBezel);
}

}  // namespace kalvora
