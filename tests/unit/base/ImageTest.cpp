#include "base/Image.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kalvora {
namespace {

/// Every pixel another one.
Image numbered(int width, int height) {
  Image image(width, height);
  Pixel next = 1;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.set(x, y, next++);
  }
  return image;
}

TEST(Pixels, areRedGreenBlueFromTheTop) {
  EXPECT_EQ(pixelOf(0x12, 0x34, 0x56), 0x123456U);
}

TEST(Images, areFilledAndKnowTheirSize) {
  const Image image(3, 2, 7);
  EXPECT_EQ(image.size(), (Size{3, 2}));
  EXPECT_EQ(image.bounds(), (Rect{0, 0, 3, 2}));
  EXPECT_EQ(image.pixels().size(), 6U);
  EXPECT_TRUE(std::ranges::all_of(image.pixels(), [](Pixel pixel) { return pixel == 7; }));
  EXPECT_FALSE(image.empty());
}

TEST(Images, withoutWidthOrHeightAreEmpty) {
  EXPECT_TRUE(Image().empty());
  EXPECT_TRUE(Image(0, 5).empty());
  EXPECT_TRUE(Image(5, 0).empty());
  EXPECT_TRUE(Image(-5, 5).empty());
  EXPECT_EQ(Image(-5, -5).size(), (Size{0, 0}));
}

TEST(Images, keepRowsFromTopToBottom) {
  const Image image = numbered(3, 2);
  EXPECT_EQ(image.at(2, 0), 3U);
  EXPECT_EQ(image.at(0, 1), 4U);
  EXPECT_EQ(image.pixels()[5], 6U);
}

TEST(ImageCrop, isThePieceInside) {
  const Image piece = numbered(4, 4).crop({1, 2, 2, 2});
  EXPECT_EQ(piece.size(), (Size{2, 2}));
  EXPECT_EQ(piece.at(0, 0), 10U);
  EXPECT_EQ(piece.at(1, 1), 15U);
}

TEST(ImageCrop, isSmallerWhereTheAreaReachesBeyond) {
  const Image image = numbered(4, 4);
  EXPECT_EQ(image.crop({-1, -2, 3, 3}), image.crop({0, 0, 2, 1}));
  EXPECT_EQ(image.crop({3, 3, 100, 100}).size(), (Size{1, 1}));
  EXPECT_EQ(image.crop({3, 3, 100, 100}).at(0, 0), 16U);
}

TEST(ImageCrop, isEmptyOutside) {
  const Image image = numbered(4, 4);
  EXPECT_TRUE(image.crop({4, 0, 2, 2}).empty());
  EXPECT_TRUE(image.crop({0, 0, 0, 2}).empty());
  EXPECT_TRUE(image.crop({2, 2, -1, 2}).empty());
  EXPECT_TRUE(Image().crop({0, 0, 2, 2}).empty());
}

TEST(ImageDraw, putsThePieceAtItsPlace) {
  Image image(4, 4);
  image.draw(numbered(2, 2), {1, 2});
  EXPECT_EQ(image.at(1, 2), 1U);
  EXPECT_EQ(image.at(2, 3), 4U);
  EXPECT_EQ(std::ranges::count(image.pixels(), 0U), 12);
}

TEST(ImageDraw, leavesOutWhatFallsOutsideAtEachEdge) {
  for (const auto& [place, kept] :
       {std::pair{Point{-1, -1}, 4U}, {Point{3, -1}, 3U}, {Point{-1, 3}, 2U}, {Point{3, 3}, 1U}}) {
    Image image(4, 4);
    image.draw(numbered(2, 2), place);
    EXPECT_EQ(std::ranges::count(image.pixels(), 0U), 15);
    EXPECT_EQ(std::ranges::count(image.pixels(), kept), 1);
  }
}

TEST(ImageDraw, outsideOrEmptyChangesNothing) {
  Image image = numbered(4, 4);
  image.draw(numbered(2, 2), {4, 0});
  image.draw(numbered(2, 2), {0, -2});
  image.draw(Image(), {0, 0});
  EXPECT_EQ(image, numbered(4, 4));
}

TEST(ImageDraw, largerPieceCoversTheWholeImage) {
  Image image(2, 2);
  image.draw(numbered(4, 4), {-1, -1});
  EXPECT_EQ(image, numbered(4, 4).crop({1, 1, 2, 2}));
}

TEST(ImageFill, fillsThePartInside) {
  Image image(4, 4);
  image.fill({2, 2, 10, 10}, 5);
  EXPECT_EQ(std::ranges::count(image.pixels(), 5U), 4);
  EXPECT_EQ(image.at(2, 2), 5U);
  image.fill({-5, -5, 6, 6}, 9);
  EXPECT_EQ(std::ranges::count(image.pixels(), 9U), 1);
  EXPECT_EQ(image.at(0, 0), 9U);
  image.fill({1, 1, 0, 3}, 8);
  EXPECT_EQ(std::ranges::count(image.pixels(), 8U), 0);
}

}  // namespace
}  // namespace kalvora
