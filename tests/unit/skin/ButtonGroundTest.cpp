#include "skin/ButtonGround.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

constexpr Pixel kButton = pixelOf(1, 2, 3);

TEST(ButtonGround, goesOverFromTheLeftPixelToTheRightOne) {
  Image picture(5, 1, kButton);
  picture.set(0, 0, pixelOf(0, 100, 40));
  picture.set(4, 0, pixelOf(200, 100, 0));
  const Image ground = groundUnder(picture, {1, 0, 3, 1});
  EXPECT_EQ(ground.at(0, 0), pixelOf(50, 100, 30));
  EXPECT_EQ(ground.at(1, 0), pixelOf(100, 100, 20));
  EXPECT_EQ(ground.at(2, 0), pixelOf(150, 100, 10));
}

TEST(ButtonGround, atAnEdgeOfThePictureIsTheOneNeighbourThatThereIs) {
  Image picture(3, 1, kButton);
  picture.set(2, 0, pixelOf(9, 9, 9));
  EXPECT_EQ(groundUnder(picture, {0, 0, 2, 1}), Image(2, 1, pixelOf(9, 9, 9)));
  EXPECT_EQ(groundUnder(picture, {-5, -5, 7, 9}), Image(2, 1, pixelOf(9, 9, 9)));
}

TEST(ButtonGround, ofAButtonAsWideAsThePictureIsItsOwnLook) {
  const Image picture(3, 2, kButton);
  EXPECT_EQ(groundUnder(picture, {0, 0, 3, 2}), picture);
  EXPECT_TRUE(groundUnder(picture, {10, 10, 3, 2}).empty());
}

}  // namespace
}  // namespace kalvora
