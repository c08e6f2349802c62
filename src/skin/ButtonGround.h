#pragma once

#include <span>

#include "base/Geometry.h"
#include "base/Image.h"

namespace kalvora {

/// What is seen where a button is not: the main picture carries the normal look of every button,
/// so a hidden one would still seem to be there. Each row goes over from the pixel left of the
/// button to the pixel right of it; where another one of `buttons` adjoins it there, from beyond
/// that one, whose frame would be drawn out to a streak. A button that fills its row of the
/// picture, alone or with others, has no ground to take, and its own look stays.
Image groundUnder(const Image& mainPicture, const Rect& button, std::span<const Rect> buttons);

}  // namespace kalvora
