#pragma once

#include "skin/SkinnedWindow.h"
#include "skinkit/SkinFinding.h"

namespace kalvora {

/// What is wrong with the places of the buttons, the rows of cells and the fields on the window
/// that wears the skin: outside it, on top of each other, too small, out of sight when rolled up,
/// or hard to read.
SkinFindings checkLayout(const Skin& skin, const SkinnedWindow& window);

}  // namespace kalvora
