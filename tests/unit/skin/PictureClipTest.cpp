#include "skin/PictureClip.h"

#include <gtest/gtest.h>

#include "skin/SkinnedButton.h"

namespace kalvora {
namespace {

/// Every pixel says where it stands: column + 100 × line.
Image numbered(int width, int height) {
  Image image(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.set(x, y, static_cast<Pixel>(x + 100 * y));
  }
  return image;
}

TEST(PictureClip, handsOutTheRectangleOfItsSource) {
  const Image source = numbered(20, 10);
  PictureClip clip;
  clip.setSource(source);
  PicturePiece piece;
  Wytnij(clip, piece, 3, 2, 4, 5);
  EXPECT_EQ(piece.image.size(), (Size{4, 5}));
  EXPECT_EQ(piece.image.at(0, 0), 203U);
  EXPECT_EQ(piece.image.at(3, 4), 606U);
  EXPECT_EQ(piece.offset, Point{});
}

TEST(PictureClip, takesThePieceOfTheSourceSetLast) {
  const Image first = numbered(4, 4);
  const Image second(4, 4, 7);
  PictureClip clip;
  clip.setSource(first);
  clip.setSource(second);
  EXPECT_EQ(clip.clip({1, 1, 2, 2}).image, Image(2, 2, 7));
}

TEST(PictureClip, aRectangleBeyondTheSourceGivesWhatThereIs) {
  const Image source = numbered(20, 10);
  PictureClip clip;
  clip.setSource(source);
  EXPECT_EQ(clip.clip({15, 8, 10, 10}).image.size(), (Size{5, 2}));
  EXPECT_TRUE(clip.clip({20, 0, 5, 5}).image.empty());
  EXPECT_TRUE(clip.clip({0, 0, 0, 5}).image.empty());
  EXPECT_TRUE(clip.clip({5, 5, -3, 4}).image.empty());
  EXPECT_TRUE(clip.clip({32767, 32767, 32767, 32767}).image.empty());
}

TEST(PictureClip, aPieceThatStartsBeforeTheSourceKeepsItsPlaceInTheRectangle) {
  const Image source = numbered(20, 10);
  PictureClip clip;
  clip.setSource(source);
  const PicturePiece piece = clip.clip({-3, -2, 10, 6});
  EXPECT_EQ(piece.image.size(), (Size{7, 4}));
  EXPECT_EQ(piece.image.at(0, 0), 0U);
  EXPECT_EQ(piece.offset, (Point{3, 2}));
}

TEST(PictureClip, withoutASourceEveryPieceIsEmpty) {
  EXPECT_TRUE(PictureClip().clip({0, 0, 5, 5}).image.empty());
}

TEST(SkinnedButton, standsWhereItsPictureLies) {
  const Image source = numbered(20, 10);
  PictureClip clip;
  clip.setSource(source);
  SkinnedButton button;
  Przesun_Pic(clip, button, 4, 3, 5, 2);
  EXPECT_EQ(button.rect(), (Rect{4, 3, 5, 2}));
  EXPECT_EQ(button.shown().image.at(0, 0), 304U);
}

TEST(SkinnedButton, showsThePressedLookFromPressToRelease) {
  SkinnedButton button;
  button.normalLook() = {Image(2, 2, 1), {}};
  button.pressedLook() = {Image(2, 2, 2), {}};
  EXPECT_EQ(button.shown().image.at(0, 0), 1U);
  EXPECT_TRUE(button.showPressed());
  EXPECT_EQ(button.shown().image.at(0, 0), 2U);
  EXPECT_FALSE(button.showPressed());
  EXPECT_TRUE(button.showNormal());
  EXPECT_EQ(button.shown().image.at(0, 0), 1U);
  EXPECT_FALSE(button.showNormal());
}

TEST(SkinnedButton, placedAnewShowsItsNormalLook) {
  const Image source = numbered(20, 10);
  PictureClip clip;
  clip.setSource(source);
  SkinnedButton button;
  Wytnij(clip, button.pressedLook(), 0, 0, 5, 5);
  button.showPressed();
  Przesun_Pic(clip, button, 4, 3, 5, 2);
  EXPECT_EQ(button.shown().image.at(0, 0), 304U);
}

}  // namespace
}  // namespace kalvora
