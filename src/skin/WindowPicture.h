#pragma once

#include <optional>

#include "base/Image.h"
#include "skin/SkinDescription.h"

namespace kalvora {

/// What a window shows beside the painted skin, and pictures of it all for those who cannot see it:
/// previews and tests.

/// A colour whose red is in the low byte, as descriptions have it.
Pixel pixelOfColor(std::uint32_t redLow);

/// The rectangle of a field in whole pixels, each number cut to 16 bits.
Rect fieldRect(const FieldLook& look);

/// Fills the places of the fields with their background: they are boxes of the system's, which a
/// painted window leaves out.
void fillFields(Image& picture, const SkinDescription& description);

/// The picture with `ground` where the outline lets the desktop through.
Image cutOut(const Image& picture, const std::optional<RowSpans>& shape, Pixel ground);

}  // namespace kalvora
