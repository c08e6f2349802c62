#pragma once

#include <windows.h>

namespace kalvora {

/// Puts the boxes of comfortTicks() on their page, in two columns of groups with headings in that
/// font, and before its button in the order of Tab.
void makeComfortTicks(HWND page, HFONT headingFont);

}  // namespace kalvora
