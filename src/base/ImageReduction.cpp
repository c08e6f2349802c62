#include "base/ImageReduction.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kalvora {

namespace {

Size reducedSize(Size size, Size room) {
  const double factor = std::min(static_cast<double>(room.width) / size.width,
                                 static_cast<double>(room.height) / size.height);
  const auto reduced = [factor](int length) {
    return std::max(1, static_cast<int>(std::floor(length * factor + 1e-9)));
  };
  return {reduced(size.width), reduced(size.height)};
}

/// The average colour of an area of the picture; its edges may cut through pixels.
Pixel average(const Image& picture, double left, double top, double right, double bottom) {
  std::array<double, 3> sums{};
  double weights = 0;
  for (int y = static_cast<int>(top); y < std::min<double>(bottom, picture.height()); ++y) {
    const double rowPart = std::min<double>(y + 1, bottom) - std::max<double>(y, top);
    for (int x = static_cast<int>(left); x < std::min<double>(right, picture.width()); ++x) {
      const double weight = rowPart * (std::min<double>(x + 1, right) - std::max<double>(x, left));
      const Pixel pixel = picture.at(x, y);
      sums[0] += weight * ((pixel >> 16U) & 0xFFU);
      sums[1] += weight * ((pixel >> 8U) & 0xFFU);
      sums[2] += weight * (pixel & 0xFFU);
      weights += weight;
    }
  }
  const auto part = [weights](double sum) {
    return static_cast<unsigned>(std::lround(sum / weights));
  };
  return pixelOf(part(sums[0]), part(sums[1]), part(sums[2]));
}

}  // namespace

Image reducedToFit(const Image& picture, Size room) {
  if (picture.empty() || room.width <= 0 || room.height <= 0) return {};
  if (picture.width() <= room.width && picture.height() <= room.height) return picture;
  const Size size = reducedSize(picture.size(), room);
  const double stepX = static_cast<double>(picture.width()) / size.width;
  const double stepY = static_cast<double>(picture.height()) / size.height;
  Image result(size.width, size.height);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      result.set(x, y, average(picture, x * stepX, y * stepY, (x + 1) * stepX, (y + 1) * stepY));
    }
  }
  return result;
}

}  // namespace kalvora
