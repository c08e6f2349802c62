#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "fakes/BmpBuilder.h"
#include "fakes/SkinFiles.h"
#include "skin/Picture.h"
#include "skin/WindowShape.h"

namespace kalvora {
namespace {

std::string runLengthPicture() {
  BmpBuilder bmp(4, 3, 8);
  bmp.palette({0, 10, 20, 30})
      .runs(1, std::string("\x03\x01\x00\x00\x00\x03\x02\x01\x02\x00\x04\x03\x00\x01", 14));
  return bmp.bytes();
}

std::vector<std::string> wholePictures() {
  BmpBuilder masked(5, 4, 16, 0x7FFF);
  masked.masks(0xF800, 0x07E0, 0x001F);
  BmpBuilder paletted(9, 4, 1);
  paletted.palette({0, 0xFFFFFF});
  return {BmpBuilder(5, 4, 24, 0x102030).bytes(),
          BmpBuilder(5, 4, 32, 0x102030).bytes(),
          masked.bytes(),
          paletted.bytes(),
          runLengthPicture(),
          samplePicture("plain.gif"),
          samplePicture("noise.gif"),
          samplePicture("interlaced.gif"),
          samplePicture("half.jpg"),
          samplePicture("progressive.jpg"),
          samplePicture("gray.jpg")};
}

/// Whatever the bytes are: a picture within the limits, or a PictureError.
void decodeOrRefuse(const std::string& bytes) {
  try {
    const Picture picture = decodePicture(bytes);
    ASSERT_GE(picture.width(), 1);
    ASSERT_GE(picture.height(), 1);
    ASSERT_LE(std::int64_t{picture.width()} * picture.height(), kMaxPicturePixels);
    SkinShapeToRegion(picture);
  } catch (const PictureError&) {
    // As it should be.
  }
}

TEST(DamagedPicture, cutOffAnywhereIsRefusedOrShown) {
  for (const std::string& bytes : wholePictures()) {
    ASSERT_NO_THROW(decodePicture(bytes));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      decodeOrRefuse(bytes.substr(0, length));
    }
  }
}

/// A JPEG of one scan, with that scan so often.
std::string withScans(int count) {
  const std::string bytes = samplePicture("half.jpg");
  const std::size_t scan = bytes.find("\xFF\xDA");
  std::string result = bytes.substr(0, scan);
  for (int i = 0; i < count; ++i) result += bytes.substr(scan, bytes.size() - 2 - scan);
  return result + "\xFF\xD9";
}

// A file of 2 KB kept the program busy for more than a second.
TEST(DamagedPicture, aPlainJpegHasAtMostAScanForEachColorPart) {
  const Image once = decodePicture(withScans(1)).image;
  EXPECT_EQ(decodePicture(withScans(4)).image, once);
  EXPECT_THROW(decodePicture(withScans(5)), PictureError);
}

TEST(DamagedPicture, aBmpOrGifThatLacksPixelsIsRefused) {
  const std::string bmp = BmpBuilder(5, 4, 24, 0x102030).bytes();
  const std::string gif = samplePicture("noise.gif");
  for (std::size_t length = 0; length + 2 < bmp.size(); ++length) {
    EXPECT_THROW(decodePicture(bmp.substr(0, length)), PictureError) << length;
  }
  for (std::size_t length = 0; length + 4 < gif.size(); ++length) {
    EXPECT_THROW(decodePicture(gif.substr(0, length)), PictureError) << length;
  }
}

TEST(DamagedPicture, singleBytesChangedAnywhereAreRefusedOrShown) {
  std::mt19937 random(1);
  for (const std::string& bytes : wholePictures()) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
      for (const char value : {'\0', '\x7F', '\x80', '\xFF', static_cast<char>(random())}) {
        std::string damaged = bytes;
        damaged[at] = value;
        decodeOrRefuse(damaged);
      }
    }
  }
}

TEST(DamagedPicture, manyBytesChangedAtOnceAreRefusedOrShown) {
  std::mt19937 random(2);
  for (const std::string& bytes : wholePictures()) {
    for (int round = 0; round < 300; ++round) {
      std::string damaged = bytes;
      for (int i = 0; i < 8; ++i) damaged[random() % damaged.size()] = static_cast<char>(random());
      decodeOrRefuse(damaged);
    }
  }
}

TEST(DamagedPicture, randomBytesBehindAKnownStartAreRefusedOrShown) {
  std::mt19937 random(3);
  for (const char* start : {"BM", "GIF89a", "\xFF\xD8\xFF\xC0", "\xFF\xD8\xFF\xC4", ""}) {
    for (int round = 0; round < 300; ++round) {
      std::string bytes = start;
      for (auto i = random() % 400; i > 0; --i) bytes += static_cast<char>(random());
      decodeOrRefuse(bytes);
    }
  }
}

TEST(DamagedPicture, aCodeStreamThatRepeatsItselfForEverStopsWhenTheFrameIsFull) {
  // A frame of 4 × 4 with megabytes of codes behind it.
  std::string gif = samplePicture("plain.gif");
  const std::size_t frame = gif.find('\x2C');
  std::string bytes = gif.substr(0, frame + 10);
  bytes += '\x08';
  for (int i = 0; i < 20'000; ++i) bytes += '\xFF' + std::string(255, '\x03');
  const auto before = std::chrono::steady_clock::now();
  decodeOrRefuse(bytes);
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2));
}

}  // namespace
}  // namespace kalvora
