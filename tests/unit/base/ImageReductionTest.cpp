#include "base/ImageReduction.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(ImageReductionTest, aPictureThatFitsStaysAsItIs) {
  Image picture(3, 2, 0x102030);
  picture.set(1, 1, 0xFFFFFF);
  EXPECT_EQ(reducedToFit(picture, {3, 2}), picture);
  EXPECT_EQ(reducedToFit(picture, {30, 20}), picture);
}

TEST(ImageReductionTest, keepsTheAspect) {
  EXPECT_EQ(reducedToFit(Image(320, 160), {80, 80}).size(), (Size{80, 40}));
  EXPECT_EQ(reducedToFit(Image(160, 320), {80, 80}).size(), (Size{40, 80}));
}

TEST(ImageReductionTest, aPixelIsTheAverageOfThoseItStandsFor) {
  Image picture(4, 2, 0x000000);
  picture.set(0, 0, 0xFF0000);
  picture.set(1, 1, 0x00FF00);
  picture.fill({2, 0, 2, 2}, 0x0000FF);
  const Image reduced = reducedToFit(picture, {2, 1});
  EXPECT_EQ(reduced.size(), (Size{2, 1}));
  EXPECT_EQ(reduced.at(0, 0), 0x404000U);
  EXPECT_EQ(reduced.at(1, 0), 0x0000FFU);
}

TEST(ImageReductionTest, oneColourStaysThatColour) {
  const Image reduced = reducedToFit(Image(97, 61, 0xABCDEF), {31, 17});
  for (const Pixel pixel : reduced.pixels()) EXPECT_EQ(pixel, 0xABCDEFU);
}

TEST(ImageReductionTest, isNeverThinnerThanAPixel) {
  EXPECT_EQ(reducedToFit(Image(1000, 2), {10, 10}).size(), (Size{10, 1}));
}

TEST(ImageReductionTest, nothingComesOfNoPictureAndNoRoom) {
  EXPECT_TRUE(reducedToFit({}, {10, 10}).empty());
  EXPECT_TRUE(reducedToFit(Image(4, 4), {0, 10}).empty());
}

}  // namespace
}  // namespace kalvora
