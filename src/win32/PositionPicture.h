#pragma once

#include <windows.h>

#include "base/Geometry.h"

namespace kalvora {

/// Draws the small screen `screen` and on it the main window `window`, both in pixels of `area`,
/// which is filled with the dialog's colour around them.
void drawPositionPicture(HDC context, const RECT& area, const Rect& screen, const Rect& window);

}  // namespace kalvora
