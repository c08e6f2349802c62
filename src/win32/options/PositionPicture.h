#pragma once

#include <windows.h>

#include "options/PositionPreview.h"

namespace kalvora {

/// Draws the small screens and on them the main window, in pixels of `area`, which is filled with
/// the dialog's colour around them.
void drawPositionPicture(HDC context, const RECT& area, const PositionPreview& preview);

}  // namespace kalvora
