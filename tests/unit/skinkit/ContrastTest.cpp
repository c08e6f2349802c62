#include "skinkit/Contrast.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(Contrast, isThatOfTheGuidelines) {
  EXPECT_NEAR(contrastBetween(pixelOf(0, 0, 0), pixelOf(255, 255, 255)), 21.0, 0.001);
  EXPECT_NEAR(contrastBetween(pixelOf(255, 255, 255), pixelOf(0, 0, 0)), 21.0, 0.001);
  EXPECT_NEAR(contrastBetween(pixelOf(9, 9, 9), pixelOf(9, 9, 9)), 1.0, 0.001);
  // Known pairs: mid grey and pure blue on white.
  EXPECT_NEAR(contrastBetween(pixelOf(118, 118, 118), pixelOf(255, 255, 255)), 4.54, 0.01);
  EXPECT_NEAR(contrastBetween(pixelOf(119, 119, 119), pixelOf(255, 255, 255)), 4.48, 0.01);
  EXPECT_NEAR(contrastBetween(pixelOf(0, 0, 255), pixelOf(255, 255, 255)), 8.59, 0.01);
}

TEST(Contrast, takesTheMeanOfAnArea) {
  Image picture(4, 2, pixelOf(10, 20, 30));
  picture.set(1, 0, pixelOf(30, 40, 50));
  EXPECT_EQ(meanColor(picture, {0, 0, 2, 1}), pixelOf(20, 30, 40));
  EXPECT_EQ(meanColor(picture, {2, 0, 9, 9}), pixelOf(10, 20, 30));
  EXPECT_EQ(meanColor(picture, {9, 9, 2, 2}), pixelOf(0, 0, 0));
}

TEST(Contrast, findsTheCommonestColor) {
  Image picture(3, 1, pixelOf(1, 1, 1));
  picture.set(2, 0, pixelOf(9, 9, 9));
  EXPECT_EQ(commonestColor(picture), pixelOf(1, 1, 1));
  picture.set(1, 0, pixelOf(9, 9, 9));
  EXPECT_EQ(commonestColor(picture), pixelOf(9, 9, 9));
}

}  // namespace
}  // namespace kalvora
