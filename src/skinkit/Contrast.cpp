#include "skinkit/Contrast.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>

namespace kalvora {

namespace {

unsigned part(Pixel pixel, unsigned shift) {
  return (pixel >> shift) & 0xFFU;
}

double linear(unsigned value) {
  const double share = value / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(Pixel pixel) {
  return 0.2126 * linear(part(pixel, 16U)) + 0.7152 * linear(part(pixel, 8U)) +
         0.0722 * linear(part(pixel, 0U));
}

}  // namespace

double contrastBetween(Pixel a, Pixel b) {
  const double first = luminance(a) + 0.05;
  const double second = luminance(b) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

Pixel meanColor(const Image& picture, const Rect& area) {
  const Image piece = picture.crop(area);
  if (piece.empty()) return 0;
  std::uint64_t red = 0;
  std::uint64_t green = 0;
  std::uint64_t blue = 0;
  for (const Pixel pixel : piece.pixels()) {
    red += part(pixel, 16U);
    green += part(pixel, 8U);
    blue += part(pixel, 0U);
  }
  const std::uint64_t count = piece.pixels().size();
  return pixelOf(static_cast<unsigned>(red / count), static_cast<unsigned>(green / count),
                 static_cast<unsigned>(blue / count));
}

Pixel commonestColor(const Image& picture) {
  std::map<Pixel, std::size_t> counts;
  for (const Pixel pixel : picture.pixels()) ++counts[pixel];
  if (counts.empty()) return 0;
  const auto commonest =
      std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
  return commonest->first;
}

}  // namespace kalvora
