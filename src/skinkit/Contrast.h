#pragma once

#include "base/Image.h"

namespace kalvora {

/// What small text needs to be read with ease, after the Web Content Accessibility Guidelines 2.
inline constexpr double kReadableContrast = 4.5;

/// The contrast of two colours, 1 (the same) to 21 (black on white), after those guidelines.
double contrastBetween(Pixel a, Pixel b);

/// The mean colour of the part of a picture that lies inside `area`; black where nothing does.
Pixel meanColor(const Image& picture, const Rect& area);

/// The colour that most pixels of a picture have; of several such, the lowest number.
Pixel commonestColor(const Image& picture);

}  // namespace kalvora
