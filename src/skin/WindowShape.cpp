#include "skin/WindowShape.h"

#include <algorithm>
#include <cstring>

namespace kalvora {

namespace {

/// One line of a shape picture of each depth; says which of its pixels are pure white.
struct Line16 {
  static constexpr int kBytes = 2;
  const std::uint8_t* bits;
  /// The top bit does not count, so white is white in 5-5-5 as in 5-6-5.
  bool isWhite(int x) const {
    const std::uint8_t* const pixel = bits + static_cast<std::ptrdiff_t>(x) * kBytes;
    return pixel[0] == 0xFF && (pixel[1] & 0x7FU) == 0x7F;
  }
};

struct Line24 {
  static constexpr int kBytes = 3;
  const std::uint8_t* bits;
  bool isWhite(int x) const {
    const std::uint8_t* const pixel = bits + static_cast<std::ptrdiff_t>(x) * kBytes;
    return (pixel[0] & pixel[1] & pixel[2]) == 0xFF;
  }
};

struct Line32 {
  static constexpr int kBytes = 4;
  const std::uint8_t* bits;
  /// The fourth byte does not count.
  bool isWhite(int x) const {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, bits + static_cast<std::ptrdiff_t>(x) * kBytes, sizeof pixel);
    return (pixel & 0xFFFFFFU) == 0xFFFFFFU;
  }
};

enum class Scan { Empty, Found, TooMany };

template <typename Line>
Scan scanLine(const Line& line, int y, int width, RowSpans& spans) {
  Scan result = Scan::Empty;
  for (int x = 0; x < width;) {
    while (x < width && line.isWhite(x)) ++x;
    const int start = x;
    while (x < width && !line.isWhite(x)) ++x;
    if (start == width) break;
    result = Scan::Found;
    // A run that touches the right edge loses its last pixel, and so all of itself if it has only
    // that one.
    const int end = std::min(x, width - 1);
    if (end == start) break;
    if (spans.size() == kMaxShapeSpans) return Scan::TooMany;
    spans.push_back({y, start, end});
  }
  return result;
}

template <typename Line>
std::optional<RowSpans> regionOf(const Picture& shape) {
  RowSpans spans;
  bool any = false;
  // The last line is never looked at.
  for (int y = 0; y < shape.height() - 1; ++y) {
    const Line line{shape.bits.data() + static_cast<std::ptrdiff_t>(y) * shape.bytesPerLine};
    const Scan found = scanLine(line, y, shape.width(), spans);
    if (found == Scan::TooMany) return std::nullopt;
    any = any || found == Scan::Found;
  }
  if (!any) return std::nullopt;
  return spans;
}

}  // namespace

std::optional<RowSpans> SkinShapeToRegion(const Picture& shape) {
  switch (shape.bitsPerPixel) {
    case 15:
    case 16:
      return regionOf<Line16>(shape);
    case 24:
      return regionOf<Line24>(shape);
    case 32:
      return regionOf<Line32>(shape);
    default:
      return std::nullopt;
  }
}

}  // namespace kalvora
