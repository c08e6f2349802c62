#include "win32/toolkit/BufferedDc.h"

namespace kalvora {

BufferedDc::BufferedDc(HDC target, const RECT& area)
    : target_(target),
      area_(area),
      memory_(CreateCompatibleDC(target)),
      bitmap_(CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top)),
      formerBitmap_(SelectObject(memory_.get(), bitmap_.get())) {
  SetViewportOrgEx(memory_.get(), -area.left, -area.top, nullptr);
}

BufferedDc::~BufferedDc() {
  BitBlt(target_, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top,
         memory_.get(), area_.left, area_.top, SRCCOPY);
  SelectObject(memory_.get(), formerBitmap_);
}

void fillSolid(HDC context, const RECT& area, COLORREF color) {
  const UniqueBrush brush(CreateSolidBrush(color));
  FillRect(context, &area, brush.get());
}

void frameSolid(HDC context, const RECT& area, COLORREF color) {
  const UniqueBrush brush(CreateSolidBrush(color));
  FrameRect(context, &area, brush.get());
}

void drawBitmap(HDC context, HBITMAP bitmap, int x, int y) {
  BITMAP description{};
  if (GetObjectW(bitmap, sizeof description, &description) == 0) return;
  const UniqueMemoryDc memory(CreateCompatibleDC(context));
  const SelectedObject selected(memory.get(), bitmap);
  BitBlt(context, x, y, description.bmWidth, description.bmHeight, memory.get(), 0, 0, SRCCOPY);
}

}  // namespace kalvora
