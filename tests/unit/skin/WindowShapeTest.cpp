#include "skin/WindowShape.h"

#include <gtest/gtest.h>

#include "fakes/BmpBuilder.h"
#include "fakes/SkinFiles.h"

namespace kalvora {
namespace {

std::optional<RowSpans> regionOf(const BmpBuilder& bmp) {
  return SkinShapeToRegion(decodePicture(bmp.bytes()));
}

RowSpans square(int left, int top, int right, int bottom) {
  RowSpans spans;
  for (int y = top; y < bottom; ++y) spans.push_back({y, left, right});
  return spans;
}

TEST(WindowShape, aSquareOfTenByTenAtFiveFiveIsCutOutOfWhite) {
  BmpBuilder bmp(40, 30, 24, kWhite);
  bmp.fill(5, 5, 10, 10, kInk);
  EXPECT_EQ(regionOf(bmp), square(5, 5, 15, 15));
}

TEST(WindowShape, theSameSquareAtTheRightEdgeIsNinePixelsWide) {
  BmpBuilder bmp(40, 30, 24, kWhite);
  bmp.fill(30, 5, 10, 10, kInk);
  EXPECT_EQ(regionOf(bmp), square(30, 5, 39, 15));
}

TEST(WindowShape, theLastLineIsNeverPartOfTheShape) {
  BmpBuilder bmp(40, 30, 24, kWhite);
  bmp.fill(5, 20, 10, 10, kInk);
  EXPECT_EQ(regionOf(bmp), square(5, 20, 15, 29));
}

TEST(WindowShape, somethingInTheLastLineAloneMakesNoRegion) {
  BmpBuilder bmp(40, 30, 24, kWhite);
  bmp.fill(5, 29, 10, 1, kInk);
  EXPECT_EQ(regionOf(bmp), std::nullopt);
}

TEST(WindowShape, allWhiteMakesNoRegion) {
  for (const int depth : {16, 24, 32}) {
    EXPECT_EQ(regionOf(BmpBuilder(8, 8, depth, depth == 16 ? 0x7FFFU : kWhite)), std::nullopt);
  }
}

TEST(WindowShape, aWhollyOpaqueShapeLosesItsLastColumnAndItsLastLine) {
  EXPECT_EQ(regionOf(BmpBuilder(8, 4, 24, kInk)), square(0, 0, 7, 3));
}

TEST(WindowShape, oneOpaquePixelAtTheRightEdgeMakesARegionOfNothing) {
  BmpBuilder bmp(8, 4, 24, kWhite);
  bmp.set(7, 1, kInk);
  EXPECT_EQ(regionOf(bmp), RowSpans{});
}

TEST(WindowShape, aLineMayHaveSeveralRuns) {
  BmpBuilder bmp(8, 2, 24, kWhite);
  bmp.set(1, 0, kInk).set(3, 0, kInk).set(4, 0, kInk).set(6, 0, kInk).set(7, 0, kInk);
  EXPECT_EQ(regionOf(bmp), (RowSpans{{0, 1, 2}, {0, 3, 5}, {0, 6, 7}}));
}

TEST(WindowShape, aPictureOfOneLineMakesNoRegion) {
  EXPECT_EQ(regionOf(BmpBuilder(8, 1, 24, kInk)), std::nullopt);
}

TEST(WindowShape, eightBitsAndLessMakeNoRegion) {
  for (const int depth : {1, 4, 8}) {
    BmpBuilder bmp(8, 8, depth, 0);
    bmp.palette({kInk, kWhite});
    EXPECT_EQ(regionOf(bmp), std::nullopt) << depth;
  }
}

TEST(WindowShape, aGifMakesNoRegion) {
  EXPECT_EQ(SkinShapeToRegion(decodePicture(samplePicture("plain.gif"))), std::nullopt);
}

TEST(WindowShape, aJpegMakesARegionOfItsColors) {
  EXPECT_EQ(SkinShapeToRegion(decodePicture(samplePicture("half.jpg"))), square(0, 0, 8, 15));
}

TEST(WindowShape, sixteenBitsAreWhiteWhateverTheirTopBit) {
  BmpBuilder bmp(5, 2, 16, 0xFFFF);
  bmp.set(0, 0, 0x7FFF).set(2, 0, 0xFFDF);
  EXPECT_EQ(regionOf(bmp), (RowSpans{{0, 2, 3}}));
  bmp.masks(0xF800, 0x07E0, 0x001F);
  EXPECT_EQ(regionOf(bmp), (RowSpans{{0, 2, 3}}));
}

TEST(WindowShape, of24BitsAllThreeBytesMustBeFull) {
  BmpBuilder bmp(5, 2, 24, kWhite);
  bmp.set(0, 0, 0xFEFFFF).set(1, 0, 0xFFFEFF).set(2, 0, 0xFFFFFE);
  EXPECT_EQ(regionOf(bmp), (RowSpans{{0, 0, 3}}));
}

TEST(WindowShape, of32BitsTheFourthByteDoesNotCount) {
  BmpBuilder bmp(5, 2, 32, kWhite);
  bmp.set(0, 0, 0xAAFFFFFF).set(2, 0, 0xFFFFFFFE).set(3, 0, 0x00FFFEFF);
  EXPECT_EQ(regionOf(bmp), (RowSpans{{0, 2, 4}}));
}

TEST(WindowShape, thePaddingOfALineIsNotPartOfTheShape) {
  for (const int width : {1, 2, 3, 5, 6, 7}) {
    BmpBuilder bmp(width, 3, 24, kWhite);
    bmp.padding(0);
    EXPECT_EQ(regionOf(bmp), std::nullopt) << width;
  }
  BmpBuilder narrow(3, 3, 16, 0x7FFF);
  narrow.padding(0);
  EXPECT_EQ(regionOf(narrow), std::nullopt);
}

TEST(WindowShape, aPictureFromTheTopDownHasTheSameShape) {
  BmpBuilder bmp(40, 30, 24, kWhite);
  bmp.fill(5, 3, 10, 10, kInk).topDown();
  EXPECT_EQ(regionOf(bmp), square(5, 3, 15, 13));
}

/// `count` runs of one pixel, a hundred a line.
BmpBuilder dotted(int count) {
  BmpBuilder bmp(200, count / 100 + 2, 24, kWhite);
  for (int i = 0; i < count; ++i) bmp.set(i % 100 * 2, i / 100, kInk);
  return bmp;
}

TEST(WindowShape, aShapeOfThirtyThousandRunsIsOne) {
  const std::optional<RowSpans> region = regionOf(dotted(30'000));
  ASSERT_TRUE(region);
  EXPECT_EQ(region->size(), 30'000U);
}

TEST(WindowShape, aShapeOfMoreRunsMakesNoRegion) {
  EXPECT_EQ(regionOf(dotted(30'001)), std::nullopt);
}

}  // namespace
}  // namespace kalvora
