#include "base/Geometry.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(Rects, areHalfOpen) {
  constexpr Rect kRect = {2, 3, 4, 5};
  EXPECT_EQ(kRect.right(), 6);
  EXPECT_EQ(kRect.bottom(), 8);
  EXPECT_TRUE(kRect.contains({2, 3}));
  EXPECT_TRUE(kRect.contains({5, 7}));
  EXPECT_FALSE(kRect.contains({6, 7}));
  EXPECT_FALSE(kRect.contains({5, 8}));
  EXPECT_FALSE(kRect.contains({1, 3}));
  EXPECT_FALSE(kRect.contains({2, 2}));
}

TEST(Rects, withoutWidthOrHeightAreEmpty) {
  EXPECT_TRUE((Rect{1, 1, 0, 5}.empty()));
  EXPECT_TRUE((Rect{1, 1, 5, 0}.empty()));
  EXPECT_TRUE((Rect{1, 1, -1, 5}.empty()));
  EXPECT_FALSE((Rect{1, 1, 1, 1}.empty()));
  EXPECT_FALSE((Rect{1, 1, -3, 5}.contains({0, 2})));
}

TEST(Intersection, isTheCommonPartEitherWayRound) {
  const Rect a = {0, 0, 10, 10};
  const Rect b = {5, -2, 10, 6};
  EXPECT_EQ(intersection(a, b), (Rect{5, 0, 5, 4}));
  EXPECT_EQ(intersection(b, a), (Rect{5, 0, 5, 4}));
  EXPECT_EQ(intersection(a, {2, 3, 4, 5}), (Rect{2, 3, 4, 5}));
}

TEST(Intersection, isEmptyAtTheOriginWhereThereIsNone) {
  const Rect a = {0, 0, 10, 10};
  EXPECT_EQ(intersection(a, {10, 0, 5, 5}), Rect{});
  EXPECT_EQ(intersection(a, {0, 10, 5, 5}), Rect{});
  EXPECT_EQ(intersection(a, {20, 20, 5, 5}), Rect{});
  EXPECT_EQ(intersection(a, {5, 5, 0, 5}), Rect{});
  EXPECT_EQ(intersection(a, {5, 5, -2, 5}), Rect{});
}

TEST(RowSpans, compareByAllTheirNumbers) {
  EXPECT_EQ((RowSpan{1, 2, 3}), (RowSpan{1, 2, 3}));
  EXPECT_NE((RowSpan{1, 2, 3}), (RowSpan{1, 2, 4}));
}

}  // namespace
}  // namespace kalvora
