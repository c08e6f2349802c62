#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "skin/Picture.h"
#include "skin/WindowShape.h"

namespace kalvora {

/// The outline of a shape picture pixel by pixel, as plainly as the rule can be put.
class PlainShape {
 public:
  explicit PlainShape(const Picture& picture) : picture_(picture) {}

  /// What is wrong with an outline; empty where nothing is.
  std::string faultOf(const std::optional<RowSpans>& region) const {
    const bool wanted = hasAnyPixel() && runCount() <= kMaxShapeSpans;
    if (region.has_value() != wanted) return wanted ? "no outline" : "an outline of nothing";
    return region ? faultOfSpans(*region) : std::string();
  }

 private:
  bool isWhite(int x, int y) const {
    const int bytes = (picture_.bitsPerPixel + 7) / 8;
    std::uint32_t value = 0;
    for (int i = 0; i < bytes; ++i) {
      const int at = y * picture_.bytesPerLine + x * bytes + i;
      const std::uint32_t byte = picture_.bits[static_cast<std::size_t>(at)];
      value |= byte << (8 * i);
    }
    const std::uint32_t white = bytes == 2 ? 0x7FFFU : 0xFFFFFFU;
    return (value & white) == white;
  }

  /// A pixel is in the window if it is not white, not in the last line, and not in the last column.
  bool isInWindow(int x, int y) const {
    return y < picture_.height() - 1 && x < picture_.width() - 1 && !isWhite(x, y);
  }

  /// Only a picture of more than 8 bits a pixel has a shape, and only if it is not all white.
  bool hasAnyPixel() const {
    if (picture_.bitsPerPixel <= 8) return false;
    for (int y = 0; y < picture_.height() - 1; ++y) {
      for (int x = 0; x < picture_.width(); ++x) {
        if (!isWhite(x, y)) return true;
      }
    }
    return false;
  }

  std::size_t runCount() const {
    std::size_t runs = 0;
    for (int y = 0; y < picture_.height() - 1; ++y) {
      for (int x = 0; x < picture_.width() - 1; ++x) {
        if (isInWindow(x, y) && (x == 0 || !isInWindow(x - 1, y))) ++runs;
      }
    }
    return runs;
  }

  std::string faultOfSpans(const RowSpans& spans) const {
    std::vector<bool> covered(picture_.image.pixels().size(), false);
    const RowSpan* last = nullptr;
    for (const RowSpan& span : spans) {
      if (span.left >= span.right) return "an empty run";
      const bool inOrder =
          last == nullptr || last->y < span.y || (last->y == span.y && last->right < span.left);
      if (!inOrder) return "runs that overlap, touch or stand out of order";
      last = &span;
      for (int x = span.left; x < span.right; ++x) covered.at(place(x, span.y)) = true;
    }
    for (int y = 0; y < picture_.height(); ++y) {
      for (int x = 0; x < picture_.width(); ++x) {
        if (covered[place(x, y)] != isInWindow(x, y)) return "runs that are not the mask";
      }
    }
    return {};
  }

  std::size_t place(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_.width()) +
           static_cast<std::size_t>(x);
  }

  const Picture& picture_;
};

}  // namespace kalvora
