#include "skin/Picture.h"

#include <gtest/gtest.h>

#include "fakes/BmpBuilder.h"
#include "fakes/SkinFiles.h"
#include "skin/PictureFormats.h"

namespace kalvora {
namespace {

TEST(GifPicture, aGifHasEightBitsAndNoBits) {
  const Picture picture = decodePicture(samplePicture("plain.gif"));
  EXPECT_EQ(picture.image.size(), (Size{6, 4}));
  EXPECT_EQ(picture.bitsPerPixel, 8);
  EXPECT_TRUE(picture.bits.empty());
  EXPECT_EQ(picture.image.at(0, 0), 0xF0C010U);
  EXPECT_EQ(picture.image.at(1, 1), 0xF0C010U);
  EXPECT_EQ(picture.image.at(2, 1), 0x204060U);
  EXPECT_EQ(picture.image.at(5, 3), 0x204060U);
}

/// FNV-1a over red, green and blue of each pixel, as another decoder gave them for the same file.
std::uint32_t hashOf(const Picture& picture) {
  std::uint32_t hash = 2166136261U;
  for (const Pixel pixel : picture.image.pixels()) {
    for (const unsigned shift : {16U, 8U, 0U}) {
      hash = (hash ^ ((pixel >> shift) & 0xFFU)) * 16777619U;
    }
  }
  return hash;
}

TEST(GifPicture, aLongCodeStreamIsDecodedToTheLastPixel) {
  EXPECT_EQ(hashOf(decodePicture(samplePicture("big.gif"))), 0x643dcf30U);
  EXPECT_EQ(hashOf(decodePicture(samplePicture("noise.gif"))), 0x663b667cU);
  EXPECT_EQ(hashOf(decodePicture(samplePicture("plain.gif"))), 0x1dbe26a5U);
}

/// The codes in the widths that a decoder expects, which defines one with each but the first.
std::string packed(const std::vector<unsigned>& codes) {
  std::string bytes;
  unsigned bits = 0;
  unsigned count = 0;
  unsigned width = 9;
  unsigned next = 258;
  for (std::size_t i = 0; i < codes.size(); ++i) {
    bits |= codes[i] << count;
    for (count += width; count >= 8; count -= 8) {
      bytes += static_cast<char>(bits & 0xFFU);
      bits >>= 8U;
    }
    // The clear code before them defines none, nor does the first.
    if (i > 1 && ++next == 1U << width && width < 12) ++width;
  }
  return bytes + static_cast<char>(bits);
}

/// A picture of one frame, 256 greys, from these bytes of codes.
std::string gifOf(unsigned width, unsigned height, const std::string& codes) {
  const auto number = [](unsigned value) {
    return std::string{static_cast<char>(value & 0xFFU), static_cast<char>(value >> 8U)};
  };
  const std::string size = number(width) + number(height);
  std::string bytes = "GIF89a" + size + std::string("\xF7\0\0", 3);
  for (int grey = 0; grey < 256; ++grey) bytes += std::string(3, static_cast<char>(grey));
  bytes += "," + number(0) + number(0) + size + std::string("\0\x08", 2);
  for (std::size_t at = 0; at < codes.size(); at += 255) {
    const std::string part = codes.substr(at, 255);
    bytes += static_cast<char>(part.size()) + part;
  }
  return bytes + std::string("\0;", 2);
}

TEST(GifPicture, theLastCodeOfAFullTableIsKnown) {
  constexpr unsigned kClear = 256;
  constexpr unsigned kEnd = 257;
  // The second code defines 258, so the 3839th defines 4095: its index and the first of the next.
  std::vector<unsigned> codes = {kClear};
  for (unsigned i = 1; i <= 3838; ++i) codes.push_back(7);
  codes.insert(codes.end(), {9, 4095, kEnd});
  const Picture picture = decodePicture(gifOf(23, 167, packed(codes)));
  EXPECT_EQ(picture.image.at(20, 166), 0x090909U);
  EXPECT_EQ(picture.image.at(19, 166), 0x070707U);
  EXPECT_EQ(picture.image.at(21, 166), 0x070707U);
  EXPECT_EQ(picture.image.at(22, 166), 0x090909U);
}

TEST(GifPicture, anInterlacedGifLooksLikeThePlainOne) {
  const std::string interlaced = samplePicture("interlaced.gif");
  EXPECT_NE(interlaced, samplePicture("noise.gif"));
  EXPECT_EQ(decodePicture(interlaced).image, decodePicture(samplePicture("noise.gif")).image);
}

TEST(GifPicture, onlyTheFirstFrameOfAnAnimationIsTaken) {
  const Picture picture = decodePicture(samplePicture("animated.gif"));
  EXPECT_EQ(picture.image, Image(5, 5, 0xFF0000));
}

TEST(GifPicture, whatIsSeeThroughIsWhite) {
  const Picture picture = decodePicture(samplePicture("seethrough.gif"));
  EXPECT_EQ(picture.image.at(0, 0), 0xFFFFFFU);
  EXPECT_EQ(picture.image.at(1, 1), 0x102030U);
}

TEST(GifPicture, aScreenOf60000By60000IsRefused) {
  std::string bytes = samplePicture("plain.gif");
  bytes.replace(6, 4, "\x60\xEA\x60\xEA");
  EXPECT_THROW(decodePicture(bytes), PictureError);
}

TEST(GifPicture, aFrameOf60000By60000IsRefused) {
  std::string bytes = samplePicture("plain.gif");
  const std::size_t frame = bytes.find('\x2C');
  ASSERT_NE(frame, std::string::npos);
  bytes.replace(frame + 5, 4, "\x60\xEA\x60\xEA");
  EXPECT_THROW(decodePicture(bytes), PictureError);
}

TEST(JpegPicture, aJpegHas24BitsAndBitsOfItsPixels) {
  const Picture picture = decodePicture(samplePicture("half.jpg"));
  EXPECT_EQ(picture.image.size(), (Size{16, 16}));
  EXPECT_EQ(picture.bitsPerPixel, 24);
  EXPECT_EQ(picture.bytesPerLine, 48);
  EXPECT_EQ(picture.image.at(3, 3), 0x203040U);
  EXPECT_EQ(picture.image.at(12, 12), 0xFFFFFFU);
  EXPECT_EQ(picture.bits[0], 0x40);
  EXPECT_EQ(picture.bits[1], 0x30);
  EXPECT_EQ(picture.bits[2], 0x20);
  EXPECT_EQ(picture.bits.size(), 48U * 16U);
}

TEST(JpegPicture, aProgressiveOneLooksLikeThePlainOne) {
  EXPECT_EQ(decodePicture(samplePicture("progressive.jpg")).image,
            decodePicture(samplePicture("half.jpg")).image);
}

TEST(JpegPicture, aGreyOneIsReadAsColor) {
  const Picture picture = decodePicture(samplePicture("gray.jpg"));
  EXPECT_EQ(picture.bitsPerPixel, 24);
  EXPECT_EQ(picture.image.at(8, 8), 0x808080U);
}

TEST(JpegPicture, aFrameOf60000By60000IsRefused) {
  std::string bytes = samplePicture("half.jpg");
  const std::size_t frame = bytes.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes.replace(frame + 5, 4, "\xEA\x60\xEA\x60");
  EXPECT_THROW(decodePicture(bytes), PictureError);
}

/// A segment that defines one code table with `longest` codes of 16 bits and as many of 15.
std::string codeTable(int longest) {
  const int codes = 2 * longest;
  const int length = 2 + 1 + 16 + codes;
  std::string segment = "\xFF\xC4";
  segment += static_cast<char>(length / 256);
  segment += static_cast<char>(length % 256);
  segment += '\0';
  segment.append(14, '\0');
  segment.append(2, static_cast<char>(longest));
  segment.append(static_cast<std::size_t>(codes), '\x01');
  return segment;
}

TEST(JpegPicture, aCodeTableOfMoreCodesThanItCanHoldIsRefused) {
  const std::string bytes = samplePicture("half.jpg");
  const auto with = [&](int longest) { return std::string(bytes).insert(2, codeTable(longest)); };
  EXPECT_EQ(decodePicture(with(128)).image, decodePicture(bytes).image);
  EXPECT_THROW(decodePicture(with(129)), PictureError);
  EXPECT_THROW(checkedJpeg(with(129)), PictureError);
}

TEST(JpegPicture, whatLooksLikeACodeTableInsideAnotherTableIsRefused) {
  std::string bytes = samplePicture("half.jpg");
  const std::size_t table = bytes.find("\xFF\xDB");
  ASSERT_NE(table, std::string::npos);
  bytes.replace(table + 10, 2, "\xFF\xC4");
  EXPECT_THROW(checkedJpeg(bytes), PictureError);
}

TEST(JpegPicture, aScanThatNamesTablesWhichTheFileForgotMeetsPlainOnes) {
  std::string bytes = samplePicture("half.jpg");
  for (std::size_t at = bytes.find("\xFF\xC4"); at != std::string::npos;
       at = bytes.find("\xFF\xC4")) {
    const std::size_t length =
        static_cast<std::size_t>(static_cast<unsigned char>(bytes[at + 2])) * 256U +
        static_cast<unsigned char>(bytes[at + 3]);
    bytes.erase(at, length + 2);
  }
  EXPECT_THROW(decodePicture(bytes), PictureError);
  // Zeros are codes of the plain tables, so coded data of zeros alone is a grey picture.
  const std::size_t scan = bytes.find("\xFF\xDA");
  ASSERT_NE(scan, std::string::npos);
  EXPECT_EQ(decodePicture(bytes.substr(0, scan + 14) + std::string(200, '\0') + "\xFF\xD9").image,
            Image(16, 16, 0x808080));
}

TEST(JpegPicture, endlessScansAreRefused) {
  std::string bytes = samplePicture("progressive.jpg");
  const std::size_t scan = bytes.find("\xFF\xDA");
  ASSERT_NE(scan, std::string::npos);
  const std::size_t next = bytes.find("\xFF\xC4", scan);
  ASSERT_NE(next, std::string::npos);
  const std::string one = bytes.substr(scan, next - scan);
  std::string many = bytes.substr(0, scan);
  for (int i = 0; i < 65; ++i) many += one;
  EXPECT_THROW(decodePicture(many + "\xFF\xD9"), PictureError);
}

TEST(JpegPicture, whatIsSaidAboutThePictureDoesNotMatter) {
  std::string bytes = samplePicture("half.jpg");
  // A comment that holds what looks like a code table.
  bytes.insert(2, std::string("\xFF\xFE\x00\x06\xFF\xC4\xFF\xFF", 8));
  EXPECT_EQ(decodePicture(bytes).image, decodePicture(samplePicture("half.jpg")).image);
}

TEST(Picture, theKindIsToldByTheBytesAndAnythingElseIsRefused) {
  for (const char* bytes : {"", "B", "BM", "GIF8", "GIF89a", "\xFF\xD8", "\x89PNG\r\n", "hello"}) {
    EXPECT_THROW(decodePicture(bytes), PictureError) << bytes;
  }
}

TEST(Picture, theLimitsAreInclusive) {
  EXPECT_NO_THROW(checkPictureSize(8192, 244));
  EXPECT_NO_THROW(checkPictureSize(2000, 1000));
  EXPECT_THROW(checkPictureSize(2000, 1001), PictureError);
  EXPECT_THROW(checkPictureSize(8193, 1), PictureError);
}

}  // namespace
}  // namespace kalvora
