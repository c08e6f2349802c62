#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cstring>

#include "fakes/BmpBuilder.h"
#include "skin/WindowShape.h"

namespace kalvora {
namespace {

/// Shapes whose pixels are often white, often nearly so, and stand in runs as in a drawn picture.
BmpBuilder randomShape(int depth) {
  const int width = *rc::gen::inRange(1, 40);
  const int height = *rc::gen::inRange(1, 12);
  const auto values = *rc::gen::container<std::vector<std::uint32_t>>(
      static_cast<std::size_t>(width * height),
      rc::gen::weightedOneOf<std::uint32_t>(
          {{3, rc::gen::element<std::uint32_t>(0x7FFF, 0xFFFF, 0xFFFFFF, 0xFFFFFFFF, 0x5AFFFFFF)},
           {2, rc::gen::element<std::uint32_t>(0xFFDF, 0x7FFE, 0xFFFEFF, 0xFEFFFF, 0xFFFFFE)},
           {1, rc::gen::arbitrary<std::uint32_t>()}}));
  const int run = *rc::gen::inRange(1, 6);
  BmpBuilder bmp(width, height, depth);
  bmp.padding(*rc::gen::element<std::uint8_t>(0, 0xFF));
  for (int i = 0; i < width * height; ++i) {
    bmp.set(i % width, i / width, values[static_cast<std::size_t>(i / run * run)]);
  }
  if (*rc::gen::arbitrary<bool>()) bmp.topDown();
  return bmp;
}

bool isWhite(const Picture& picture, int x, int y) {
  const int bytes = picture.bitsPerPixel / 8;
  std::uint32_t value = 0;
  for (int i = 0; i < bytes; ++i) {
    const auto at = static_cast<std::size_t>(y * picture.bytesPerLine + x * bytes + i);
    value |= static_cast<std::uint32_t>(picture.bits[at]) << (8 * i);
  }
  const std::uint32_t white = bytes == 2 ? 0x7FFFU : 0xFFFFFFU;
  return (value & white) == white;
}

/// The rule pixel by pixel: a pixel is in the window if it is not white, not in the last line, and
/// not in the last column.
bool isInWindow(const Picture& picture, int x, int y) {
  return y < picture.height() - 1 && x < picture.width() - 1 && !isWhite(picture, x, y);
}

bool hasAnyRun(const Picture& picture) {
  for (int y = 0; y < picture.height() - 1; ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (!isWhite(picture, x, y)) return true;
    }
  }
  return false;
}

void spansRebuildTheMask(int depth) {
  const Picture picture = decodePicture(randomShape(depth).bytes());
  const std::optional<RowSpans> region = SkinShapeToRegion(picture);
  RC_ASSERT(region.has_value() == hasAnyRun(picture));
  if (!region) return;

  std::vector<int> covered(picture.image.pixels().size(), 0);
  const RowSpan* last = nullptr;
  for (const RowSpan& span : *region) {
    RC_ASSERT(span.left < span.right);
    if (last != nullptr) {
      RC_ASSERT(last->y < span.y || (last->y == span.y && last->right < span.left));
    }
    last = &span;
    for (int x = span.left; x < span.right; ++x) {
      ++covered.at(static_cast<std::size_t>(span.y * picture.width() + x));
    }
  }
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int wanted = isInWindow(picture, x, y) ? 1 : 0;
      RC_ASSERT(covered[static_cast<std::size_t>(y * picture.width() + x)] == wanted);
    }
  }
}

RC_GTEST_PROP(WindowShapeProperty, spansRebuildTheMaskOf16Bits, ()) {
  spansRebuildTheMask(16);
}
RC_GTEST_PROP(WindowShapeProperty, spansRebuildTheMaskOf24Bits, ()) {
  spansRebuildTheMask(24);
}
RC_GTEST_PROP(WindowShapeProperty, spansRebuildTheMaskOf32Bits, ()) {
  spansRebuildTheMask(32);
}

}  // namespace
}  // namespace kalvora
