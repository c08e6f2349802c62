#include "skin/ButtonGround.h"

#include <optional>

namespace kalvora {

namespace {

unsigned channel(Pixel pixel, unsigned shift) {
  return (pixel >> shift) & 0xFFU;
}

/// The colour `step` of `steps` on the way from one pixel to another.
Pixel between(Pixel from, Pixel to, unsigned step, unsigned steps) {
  Pixel mixed = 0;
  for (const unsigned shift : {16U, 8U, 0U}) {
    const unsigned sum = channel(from, shift) * (steps - step) + channel(to, shift) * step;
    mixed |= (sum / steps) << shift;
  }
  return mixed;
}

}  // namespace

Image groundUnder(const Image& mainPicture, const Rect& button) {
  Image ground = mainPicture.crop(button);
  const Rect inside = intersection(button, mainPicture.bounds());
  const bool hasLeft = inside.x > 0;
  const bool hasRight = inside.right() < mainPicture.width();
  if (!hasLeft && !hasRight) return ground;
  for (int y = 0; y < inside.height; ++y) {
    const int row = inside.y + y;
    const Pixel left = mainPicture.at(hasLeft ? inside.x - 1 : inside.right(), row);
    const Pixel right = mainPicture.at(hasRight ? inside.right() : inside.x - 1, row);
    for (int x = 0; x < inside.width; ++x) {
      const auto steps = static_cast<unsigned>(inside.width) + 1U;
      ground.set(x, y, between(left, right, static_cast<unsigned>(x) + 1U, steps));
    }
  }
  return ground;
}

}  // namespace kalvora
