#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cstring>

#include "fakes/BmpBuilder.h"
#include "fakes/PlainShape.h"
#include "skin/WindowShape.h"

namespace kalvora {
namespace {

/// Shapes whose pixels are often white, often nearly so, and stand in runs as in a drawn picture.
BmpBuilder randomShape(int depth) {
  const int width = *rc::gen::inRange(1, 40);
  const int height = *rc::gen::inRange(1, 12);
  const auto values = *rc::gen::container<std::vector<std::uint32_t>>(
      static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
      rc::gen::weightedOneOf<std::uint32_t>(
          {{3, rc::gen::element<std::uint32_t>(0x7FFF, 0xFFFF, 0xFFFFFF, 0xFFFFFFFF, 0x5AFFFFFF)},
           {2, rc::gen::element<std::uint32_t>(0xFFDF, 0x7FFE, 0xFFFEFF, 0xFEFFFF, 0xFFFFFE)},
           {1, rc::gen::arbitrary<std::uint32_t>()}}));
  const int run = *rc::gen::inRange(1, 6);
  BmpBuilder bmp(width, height, depth);
  bmp.padding(*rc::gen::element<std::uint8_t>(0, 0xFF));
  for (int i = 0; i < width * height; ++i) {
    const int first = i - i % run;
    bmp.set(i % width, i / width, values[static_cast<std::size_t>(first)]);
  }
  if (*rc::gen::arbitrary<bool>()) bmp.topDown();
  return bmp;
}

void spansRebuildTheMask(int depth) {
  const Picture picture = decodePicture(randomShape(depth).bytes());
  RC_ASSERT(PlainShape(picture).faultOf(SkinShapeToRegion(picture)) == "");
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
