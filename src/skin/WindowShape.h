#pragma once

#include <cstddef>
#include <optional>

#include "base/Geometry.h"
#include "skin/Picture.h"

namespace kalvora {

/// A shape of more runs makes no outline: no window system is asked to cope with it.
inline constexpr std::size_t kMaxShapeSpans = 30'000;

/// Skin shape to region: the outline of a window, pure white pixels of the picture being holes.
/// Nothing where no outline can be made (8 bits a pixel and less, nothing but white, more than
/// kMaxShapeSpans runs): the window is a plain rectangle then.
/// The last line of the picture is never part of the shape, and a run that touches the right edge
/// loses its last pixel.
std::optional<RowSpans> SkinShapeToRegion(const Picture& shape);

}  // namespace kalvora
