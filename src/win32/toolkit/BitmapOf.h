#pragma once

#include <windows.h>

#include "base/Image.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// A bitmap of the same size and colours; an empty owner for an empty picture.
UniqueBitmap bitmapOf(const Image& image);

/// Draws the picture with its top left corner at (0, 0).
void blit(HDC context, const Image& image);

}  // namespace kalvora
