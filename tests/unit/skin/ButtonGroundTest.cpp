#include "skin/ButtonGround.h"

#include <gtest/gtest.h>

#include <array>

namespace kalvora {
namespace {

constexpr Pixel kButton = pixelOf(1, 2, 3);

/// Under the only button.
Image groundOf(const Image& picture, const Rect& button) {
  return groundUnder(picture, button, std::array{button});
}

TEST(ButtonGround, goesOverFromTheLeftPixelToTheRightOne) {
  Image picture(5, 1, kButton);
  picture.set(0, 0, pixelOf(0, 100, 40));
  picture.set(4, 0, pixelOf(200, 100, 0));
  const Image ground = groundOf(picture, {1, 0, 3, 1});
  EXPECT_EQ(ground.at(0, 0), pixelOf(50, 100, 30));
  EXPECT_EQ(ground.at(1, 0), pixelOf(100, 100, 20));
  EXPECT_EQ(ground.at(2, 0), pixelOf(150, 100, 10));
}

TEST(ButtonGround, atAnEdgeOfThePictureIsTheOneNeighbourThatThereIs) {
  Image picture(3, 1, kButton);
  picture.set(2, 0, pixelOf(9, 9, 9));
  EXPECT_EQ(groundOf(picture, {0, 0, 2, 1}), Image(2, 1, pixelOf(9, 9, 9)));
  EXPECT_EQ(groundOf(picture, {-5, -5, 7, 9}), Image(2, 1, pixelOf(9, 9, 9)));
}

TEST(ButtonGround, ofAButtonAsWideAsThePictureIsItsOwnLook) {
  const Image picture(3, 2, kButton);
  EXPECT_EQ(groundOf(picture, {0, 0, 3, 2}), picture);
  EXPECT_TRUE(groundOf(picture, {10, 10, 3, 2}).empty());
}

TEST(ButtonGround, nextToOtherButtonsGoesOverFromBeyondThem) {
  Image picture(8, 2, kButton);
  const std::array<Rect, 3> buttons = {{{1, 0, 2, 2}, {3, 0, 2, 1}, {5, 0, 2, 2}}};
  picture.set(0, 0, pixelOf(0, 70, 7));
  picture.set(7, 0, pixelOf(140, 70, 0));
  const Image ground = groundUnder(picture, buttons[1], buttons);
  EXPECT_EQ(ground.size(), (Size{2, 1}));
  EXPECT_EQ(ground.at(0, 0), pixelOf(60, 70, 4));
  EXPECT_EQ(ground.at(1, 0), pixelOf(80, 70, 3));
}

TEST(ButtonGround, ofButtonsThatFillTheRowTogetherIsTheirOwnLook) {
  const Image picture(4, 1, kButton);
  const std::array<Rect, 2> buttons = {{{0, 0, 2, 1}, {2, 0, 2, 1}}};
  EXPECT_EQ(groundUnder(picture, buttons[0], buttons), Image(2, 1, kButton));
}

}  // namespace
}  // namespace kalvora
