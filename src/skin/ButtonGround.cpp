#include "skin/ButtonGround.h"

#include <algorithm>

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

/// The first column from `x` on, going by `direction`, that no button of that row covers.
int groundColumn(std::span<const Rect> buttons, int x, int row, int direction) {
  const auto covers = [&](const Rect& one) { return one.contains({x, row}); };
  auto found = std::ranges::find_if(buttons, covers);
  while (found != buttons.end()) {
    x = direction < 0 ? found->x - 1 : found->right();
    found = std::ranges::find_if(buttons, covers);
  }
  return x;
}

}  // namespace

Image groundUnder(const Image& mainPicture, const Rect& button, std::span<const Rect> buttons) {
  Image ground = mainPicture.crop(button);
  const Rect inside = intersection(button, mainPicture.bounds());
  for (int y = 0; y < inside.height; ++y) {
    const int row = inside.y + y;
    const int before = groundColumn(buttons, inside.x - 1, row, -1);
    const int behind = groundColumn(buttons, inside.right(), row, +1);
    const bool hasLeft = before >= 0;
    const bool hasRight = behind < mainPicture.width();
    if (!hasLeft && !hasRight) continue;
    const Pixel left = mainPicture.at(hasLeft ? before : behind, row);
    const Pixel right = mainPicture.at(hasRight ? behind : before, row);
    for (int x = 0; x < inside.width; ++x) {
      ground.set(x, y,
                 between(left, right, static_cast<unsigned>(inside.x + x - before),
                         static_cast<unsigned>(behind - before)));
    }
  }
  return ground;
}

}  // namespace kalvora
