#pragma once

#include <windows.h>

namespace kalvora {

/// Puts the boxes of comfortTicks() on their page, one below the other and before its button in the
/// order of Tab.
void makeComfortTicks(HWND page);

}  // namespace kalvora
