#include "win32/toolkit/WindowRegion.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/HeldHandles.h"

namespace kalvora {
namespace {

/// The obvious way: span by span into one growing region.
UniqueRegion unitedOneByOne(const RowSpans& spans) {
  UniqueRegion region(CreateRectRgn(0, 0, 0, 0));
  for (const RowSpan& span : spans) {
    const UniqueRegion row(CreateRectRgn(span.left, span.y, span.right, span.y + 1));
    CombineRgn(region.get(), region.get(), row.get(), RGN_OR);
  }
  return region;
}

void expectSameRegion(const RowSpans& spans) {
  const UniqueRegion region = regionOf(spans);
  ASSERT_TRUE(region);
  EXPECT_TRUE(EqualRgn(region.get(), unitedOneByOne(spans).get()));
}

TEST(WindowRegion, isTheUnionOfItsSpans) {
  expectSameRegion({{0, 0, 1}});
  expectSameRegion({{0, 3, 9}, {1, 2, 10}, {1, 12, 13}, {5, 0, 4}});
}

TEST(WindowRegion, ofARaggedOutlineIsTheUnionOfItsSpans) {
  std::mt19937 random(5);
  RowSpans spans;
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 200;) {
      const int left = x + static_cast<int>(random() % 9);
      const int right = left + 1 + static_cast<int>(random() % 9);
      spans.push_back({y, left, right});
      x = right + 1;
    }
  }
  expectSameRegion(spans);
}

TEST(WindowRegion, ofNoSpansIsNone) {
  EXPECT_FALSE(regionOf({}));
}

TEST(WindowRegion, leavesNoHandleBehind) {
  const HeldHandles before;
  for (int i = 0; i < 20; ++i) regionOf({{0, 0, 5}, {1, 0, 5}, {2, 0, 5}});
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
