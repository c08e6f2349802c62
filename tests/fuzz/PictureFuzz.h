#pragma once

#include <string>

#include "FuzzCheck.h"
#include "fakes/PlainShape.h"
#include "skin/PictureFormats.h"

namespace kalvora {

inline void requireWithinLimits(const Picture& picture) {
  require(picture.width() >= 1 && picture.height() >= 1, "a picture has pixels");
  require(picture.width() <= kMaxPictureSide && picture.height() <= kMaxPictureSide &&
              std::int64_t{picture.width()} * picture.height() <= kMaxPicturePixels,
          "a picture is within the limits");
  for (const Pixel pixel : picture.image.pixels()) {
    require(pixel <= 0xFFFFFF, "a pixel has three parts");
  }
}

inline void requireMatchingBits(const Picture& picture) {
  if (picture.bitsPerPixel <= 8) {
    require(picture.bits.empty(), "pictures of a palette keep no bits");
    return;
  }
  const std::int64_t used = std::int64_t{picture.width()} * picture.bitsPerPixel;
  require(std::int64_t{picture.bytesPerLine} * 8 >= used, "a line holds its pixels");
  require(static_cast<std::int64_t>(picture.bits.size()) ==
              std::int64_t{picture.bytesPerLine} * picture.height(),
          "the bits are whole lines");
}

/// A decoder throws PictureError and nothing else, and what it gives is whole, within the limits,
/// the same each time, and has an outline that is its mask.
inline void decodeAndCheck(Picture (*decode)(std::string_view), std::string_view bytes) {
  constexpr std::size_t kSmall = 20'000;
  Picture picture;
  try {
    picture = decode(bytes);
  } catch (const PictureError&) {
    return;
  }
  requireWithinLimits(picture);
  requireMatchingBits(picture);
  const std::optional<RowSpans> region = SkinShapeToRegion(picture);
  if (picture.image.pixels().size() > kSmall) return;  // the plain ways take too long
  require(decode(bytes).image == picture.image, "a file gives the same picture each time");
  const std::string fault = PlainShape(picture).faultOf(region);
  require(fault.empty(), fault);
}

}  // namespace kalvora
