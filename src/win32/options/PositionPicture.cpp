#include "win32/options/PositionPicture.h"

#include <algorithm>

#include "win32/toolkit/BufferedDc.h"

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

/// A screen, with what of the window is on it.
void drawScreen(HDC context, const Rect& screen, const Rect& window) {
  drawDesktop(context, screen);
  const int saved = SaveDC(context);
  IntersectClipRect(context, screen.x, screen.y, screen.right(), screen.bottom());
  drawWindow(context, window);
  RestoreDC(context, saved);
  frameSolid(context, rectOf(screen), kBezel);
}

}  // namespace

void drawPositionPicture(HDC context, const RECT& area, const PositionPreview& preview) {
  const BufferedDc buffer(context, area);
  FillRect(buffer.get(), &area, GetSysColorBrush(COLOR_3DFACE));
  for (const Rect& screen : preview.screens) drawScreen(buffer.get(), screen, preview.window);
}

}  // namespace kalvora
