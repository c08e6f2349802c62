#include "skin/Picture.h"

#include <gtest/gtest.h>

#include "fakes/BmpBuilder.h"
#include "fakes/SkinFiles.h"
#include "skin/PictureFormats.h"

namespace kalvora {
namespace {

using Pixels = std::vector<Pixel>;

Pixels pixelsOf(const Picture& picture) {
  return {picture.image.pixels().begin(), picture.image.pixels().end()};
}

TEST(BmpPicture, oneBitAPixelTakesItsTwoColors) {
  BmpBuilder bmp(10, 2, 1);
  bmp.palette({0x102030, 0xFFEEDD}).set(0, 0, 1).set(9, 1, 1);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(picture.bitsPerPixel, 1);
  EXPECT_EQ(picture.image.at(0, 0), 0xFFEEDDU);
  EXPECT_EQ(picture.image.at(1, 0), 0x102030U);
  EXPECT_EQ(picture.image.at(9, 1), 0xFFEEDDU);
  EXPECT_EQ(picture.image.at(8, 1), 0x102030U);
  EXPECT_TRUE(picture.bits.empty());
}

TEST(BmpPicture, fourBitsAPixelPutTheLeftPixelInTheHighHalf) {
  BmpBuilder bmp(3, 1, 4);
  bmp.palette({0, 1, 2, 3}).set(0, 0, 3).set(1, 0, 2).set(2, 0, 1);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(picture.bitsPerPixel, 4);
  EXPECT_EQ(pixelsOf(picture), (Pixels{3, 2, 1}));
}

TEST(BmpPicture, eightBitsAPixelTakeThePalette) {
  BmpBuilder bmp(3, 2, 8);
  bmp.palette({0xAA0000, 0x00BB00, 0x0000CC}).set(1, 0, 1).set(2, 1, 2);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(picture.bitsPerPixel, 8);
  EXPECT_EQ(pixelsOf(picture),
            (Pixels{0xAA0000, 0x00BB00, 0xAA0000, 0xAA0000, 0xAA0000, 0x0000CC}));
}

TEST(BmpPicture, anIndexBeyondThePaletteIsBlack) {
  BmpBuilder bmp(1, 1, 8);
  bmp.palette({0xAA0000}).set(0, 0, 200);
  EXPECT_EQ(decodePicture(bmp.bytes()).image.at(0, 0), 0U);
}

TEST(BmpPicture, sixteenBitsAPixelAreFiveFiveFive) {
  BmpBuilder bmp(3, 1, 16);
  bmp.set(0, 0, 0x7FFF).set(1, 0, 0x7C00).set(2, 0, 0x001F);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(picture.bitsPerPixel, 16);
  EXPECT_EQ(pixelsOf(picture), (Pixels{0xFFFFFF, 0xFF0000, 0x0000FF}));
}

TEST(BmpPicture, fiveBitsAreRoundedToTheNearestOfEight) {
  BmpBuilder bmp(1, 1, 16);
  // 255 of 31 parts: 3 of them are 24.7, 5 are 41.1, 28 are 230.3.
  bmp.set(0, 0, 3U << 10U | 5U << 5U | 28U);
  EXPECT_EQ(pixelsOf(decodePicture(bmp.bytes())), Pixels{0x1929E6});
}

TEST(BmpPicture, colorMasksMakeSixteenBitsFiveSixFive) {
  BmpBuilder bmp(3, 1, 16);
  bmp.masks(0xF800, 0x07E0, 0x001F).set(0, 0, 0xFFFF).set(1, 0, 0xF800).set(2, 0, 0x07E0);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(pixelsOf(picture), (Pixels{0xFFFFFF, 0xFF0000, 0x00FF00}));
  EXPECT_EQ(picture.bits, (std::vector<std::uint8_t>{0xFF, 0xFF, 0x00, 0xF8, 0xE0, 0x07, 0, 0}));
}

TEST(BmpPicture, colorMasksOf32BitsMayStandInAnyOrder) {
  BmpBuilder bmp(1, 1, 32);
  bmp.masks(0x000000FF, 0x0000FF00, 0x00FF0000).set(0, 0, 0x00030201);
  EXPECT_EQ(decodePicture(bmp.bytes()).image.at(0, 0), 0x010203U);
}

TEST(BmpPicture, aColorMaskOfMoreThanEightBitsCountsByItsUpperEight) {
  BmpBuilder bmp(2, 1, 32);
  bmp.masks(0x3FF00000, 0x000FFC00, 0x000003FF).set(0, 0, 0x3FFFFFFF).set(1, 0, 0x20000000);
  EXPECT_EQ(pixelsOf(decodePicture(bmp.bytes())), (Pixels{0xFFFFFF, 0x800000}));
}

TEST(BmpPicture, theFourthByteOf32BitsIsKeptInTheBitsAndNotSeen) {
  BmpBuilder bmp(1, 1, 32, 0x80112233);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(picture.image.at(0, 0), 0x112233U);
  EXPECT_EQ(picture.bits, (std::vector<std::uint8_t>{0x33, 0x22, 0x11, 0x80}));
  EXPECT_EQ(picture.bytesPerLine, 4);
}

TEST(BmpPicture, bitsStandFromTopToBottomWithTheirPadding) {
  BmpBuilder bmp(1, 2, 24);
  bmp.padding(0x5A).set(0, 0, 0x010203).set(0, 1, 0x040506);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(picture.bytesPerLine, 4);
  EXPECT_EQ(picture.bits, (std::vector<std::uint8_t>{3, 2, 1, 0x5A, 6, 5, 4, 0x5A}));
  EXPECT_EQ(pixelsOf(picture), (Pixels{0x010203, 0x040506}));
}

TEST(BmpPicture, aNegativeHeightIsAPictureFromTheTopDown) {
  BmpBuilder upwards(2, 3, 24);
  upwards.set(0, 0, 1).set(1, 1, 2).set(0, 2, 3);
  BmpBuilder downwards = upwards;
  downwards.topDown();
  EXPECT_NE(upwards.bytes(), downwards.bytes());
  EXPECT_EQ(decodePicture(upwards.bytes()).image, decodePicture(downwards.bytes()).image);
  EXPECT_EQ(decodePicture(upwards.bytes()).bits, decodePicture(downwards.bytes()).bits);
}

TEST(BmpPicture, theOldestHeaderHasPaletteEntriesOfThreeBytes) {
  BmpBuilder bmp(2, 1, 8);
  std::vector<std::uint32_t> colors(256, 0);
  colors[7] = 0xABCDEF;
  bmp.oldestHeader().palette(colors).set(1, 0, 7);
  EXPECT_EQ(pixelsOf(decodePicture(bmp.bytes())), (Pixels{0, 0xABCDEF}));
}

TEST(BmpPicture, theLargerHeadersAreRead) {
  for (const std::uint32_t bytes : {52U, 56U, 64U, 108U, 124U}) {
    BmpBuilder bmp(2, 1, 24, 0x123456);
    bmp.headerBytes(bytes);
    EXPECT_EQ(pixelsOf(decodePicture(bmp.bytes())), (Pixels{0x123456, 0x123456})) << bytes;
    BmpBuilder masked(1, 1, 16, 0xF800);
    masked.headerBytes(bytes).masks(0xF800, 0x07E0, 0x001F);
    EXPECT_EQ(decodePicture(masked.bytes()).image.at(0, 0), 0xFF0000U) << bytes;
  }
}

TEST(BmpPicture, theLastLineMayLackItsPadding) {
  const std::string bytes = BmpBuilder(1, 2, 24, 0x010203).bytes();
  EXPECT_EQ(pixelsOf(decodePicture(bytes.substr(0, bytes.size() - 1))),
            (Pixels{0x010203, 0x010203}));
  EXPECT_THROW(decodePicture(bytes.substr(0, bytes.size() - 2)), PictureError);
}

TEST(BmpPicture, runsOfEightBitsAreUnpacked) {
  BmpBuilder bmp(4, 3, 8);
  // Bottom line: three of 1, the rest skipped by the line's end. Then two literals with a move
  // between. Then the end.
  const std::string data("\x03\x01\x00\x00\x00\x03\x02\x01\x02\x00\x00\x02\x01\x01\x01\x03\x00\x01",
                         18);
  bmp.palette({0, 10, 20, 30}).runs(1, data);
  const Picture picture = decodePicture(bmp.bytes());
  EXPECT_EQ(pixelsOf(picture), (Pixels{0, 0, 0, 0, 20, 10, 20, 0, 10, 10, 10, 0}));
  EXPECT_EQ(picture.bitsPerPixel, 8);
}

TEST(BmpPicture, runsOfFourBitsAlternateBetweenTwoColors) {
  BmpBuilder bmp(6, 1, 4);
  const std::string data("\x03\x12\x00\x03\x31\x20\x00\x01", 8);
  bmp.palette({0, 10, 20, 30}).runs(2, data);
  EXPECT_EQ(pixelsOf(decodePicture(bmp.bytes())), (Pixels{10, 20, 10, 30, 10, 20}));
}

TEST(BmpPicture, runsThatLeaveThePictureAreCutAtItsEdges) {
  BmpBuilder bmp(2, 2, 8);
  const std::string data("\xFF\x01\x00\x02\xFF\xFF\xFF\x01\x00\x01", 10);
  bmp.palette({0, 10}).runs(1, data);
  EXPECT_EQ(pixelsOf(decodePicture(bmp.bytes())), (Pixels{0, 0, 10, 10}));
}

TEST(BmpPicture, aHeaderOf60000By60000IsRefused) {
  for (const int depth : {1, 4, 8, 16, 24, 32}) {
    BmpBuilder bmp(4, 4, depth);
    bmp.claim(60000, 60000);
    EXPECT_THROW(decodePicture(bmp.bytes()), PictureError) << depth;
    bmp.topDown();
    EXPECT_THROW(decodePicture(bmp.bytes()), PictureError) << depth;
  }
}

TEST(BmpPicture, whatIsTooLargeIsRefusedThoughAllItsPixelsAreThere) {
  EXPECT_EQ(decodePicture(BmpBuilder(8192, 1, 8).palette({0}).bytes()).width(), 8192);
  EXPECT_EQ(decodePicture(BmpBuilder(1, 8192, 8).palette({0}).bytes()).height(), 8192);
  EXPECT_EQ(decodePicture(BmpBuilder(2000, 1000, 8).palette({0}).bytes()).width(), 2000);
  EXPECT_THROW(decodePicture(BmpBuilder(8193, 1, 8).palette({0}).bytes()), PictureError);
  EXPECT_THROW(decodePicture(BmpBuilder(1, 8193, 8).palette({0}).bytes()), PictureError);
  EXPECT_THROW(decodePicture(BmpBuilder(2000, 1001, 8).palette({0}).bytes()), PictureError);
}

TEST(BmpPicture, aCodedPictureOf60000By60000IsRefusedThoughItsFileIsWhole) {
  // One code ends the whole picture: no pixel of it has to be there.
  BmpBuilder bmp(4, 4, 8);
  bmp.palette({0}).runs(1, std::string("\0\1", 2)).claim(60000, 60000);
  EXPECT_THROW(decodePicture(bmp.bytes()), PictureError);
  BmpBuilder small(4, 4, 8);
  small.palette({0}).runs(1, std::string("\0\1", 2));
  EXPECT_EQ(decodePicture(small.bytes()).width(), 4);
}

TEST(BmpPicture, sizesAtTheEdgeOfTheNumbersAreRefused) {
  for (const auto& [width, height] :
       std::vector<std::pair<std::int32_t, std::int32_t>>{{0, 4},
                                                          {4, 0},
                                                          {-4, 4},
                                                          {2147483647, 2147483647},
                                                          {4, -2147483647 - 1},
                                                          {8193, 1},
                                                          {1, 8193},
                                                          {2000, 1001}}) {
    BmpBuilder bmp(4, 4, 24);
    bmp.claim(width, height);
    EXPECT_THROW(decodePicture(bmp.bytes()), PictureError) << width << " x " << height;
  }
}

TEST(BmpPicture, unknownDepthsAndCodingsAreRefused) {
  std::string bytes = BmpBuilder(4, 4, 24).bytes();
  for (const int depth : {0, 2, 3, 15, 64}) {
    bytes[28] = static_cast<char>(depth);
    EXPECT_THROW(decodePicture(bytes), PictureError) << depth;
  }
  bytes[28] = 24;
  for (const int compression : {1, 2, 3, 4, 5, 6, 11}) {
    bytes[30] = static_cast<char>(compression);
    EXPECT_THROW(decodePicture(bytes), PictureError) << compression;
  }
}
}  // namespace
}  // namespace kalvora
