#pragma once

#include <windows.h>

#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// A device context in memory for an area of another one: what is drawn here, in the coordinates of
/// that one, appears there at once when this object ends. So nothing flickers.
class BufferedDc {
 public:
  BufferedDc(HDC target, const RECT& area);
  ~BufferedDc();
  BufferedDc(const BufferedDc&) = delete;
  BufferedDc& operator=(const BufferedDc&) = delete;

  HDC get() const { return memory_.get(); }

 private:
  HDC target_;
  RECT area_;
  UniqueMemoryDc memory_;
  UniqueBitmap bitmap_;
  HGDIOBJ formerBitmap_;
};

/// Holds a drawing object selected for the time of a block.
class SelectedObject {
 public:
  SelectedObject(HDC context, HGDIOBJ object)
      : context_(context), former_(SelectObject(context, object)) {}
  ~SelectedObject() { SelectObject(context_, former_); }
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;

 private:
  HDC context_;
  HGDIOBJ former_;
};

/// Fills an area with one colour (0x00BBGGRR).
void fillSolid(HDC context, const RECT& area, COLORREF color);
/// A line of one pixel around an area, within it.
void frameSolid(HDC context, const RECT& area, COLORREF color);
/// Draws a whole bitmap with its top left corner at a point.
void drawBitmap(HDC context, HBITMAP bitmap, int x, int y);

}  // namespace kalvora
