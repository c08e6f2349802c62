#pragma once

#include <windows.h>

#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// What the owner of a control draws for it, on a picture in memory of the size of the control.
class DrawnItem {
 public:
  DrawnItem(HWND owner, HWND control, UINT item = 0) : memory_(CreateCompatibleDC(nullptr)) {
    RECT area{};
    GetClientRect(control, &area);
    const HDC screen = GetDC(nullptr);
    bitmap_ = UniqueBitmap(CreateCompatibleBitmap(screen, area.right, area.bottom));
    ReleaseDC(nullptr, screen);
    SelectObject(memory_.get(), bitmap_.get());
    DRAWITEMSTRUCT drawing{};
    drawing.CtlID = static_cast<UINT>(GetDlgCtrlID(control));
    drawing.itemID = item;
    drawing.itemAction = ODA_DRAWENTIRE;
    drawing.hwndItem = control;
    drawing.hDC = memory_.get();
    drawing.rcItem = area;
    SendMessageW(owner, WM_DRAWITEM, drawing.CtlID, reinterpret_cast<LPARAM>(&drawing));
  }

  COLORREF at(int x, int y) const { return GetPixel(memory_.get(), x, y); }
  bool shows(COLORREF color, int width, int height) const {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (at(x, y) == color) return true;
      }
    }
    return false;
  }

 private:
  UniqueBitmap bitmap_;  // ends after the context that it is selected into
  UniqueMemoryDc memory_;
};

}  // namespace kalvora
