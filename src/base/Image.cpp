#include "base/Image.h"

#include <algorithm>

namespace kalvora {

Image::Image(int width, int height, Pixel fill)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), fill) {}

Image Image::crop(const Rect& area) const {
  const Rect inside = intersection(area, bounds());
  Image piece(inside.width, inside.height);
  piece.draw(*this, {-inside.x, -inside.y});
  return piece;
}

void Image::draw(const Image& piece, Point at) {
  const Rect target = intersection({at.x, at.y, piece.width_, piece.height_}, bounds());
  for (int y = target.y; y < target.bottom(); ++y) {
    const auto source =
        piece.pixels_.begin() + static_cast<std::ptrdiff_t>(piece.index(target.x - at.x, y - at.y));
    std::copy_n(source, target.width,
                pixels_.begin() + static_cast<std::ptrdiff_t>(index(target.x, y)));
  }
}

void Image::fill(const Rect& area, Pixel pixel) {
  const Rect inside = intersection(area, bounds());
  for (int y = inside.y; y < inside.bottom(); ++y) {
    std::fill_n(pixels_.begin() + static_cast<std::ptrdiff_t>(index(inside.x, y)), inside.width,
                pixel);
  }
}

}  // namespace kalvora
