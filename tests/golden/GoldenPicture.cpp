#include "golden/GoldenPicture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_PNG
#include <stb_image.h>

#include "ProjectFolders.h"
#include "posix/StandardFileWriter.h"
#include "skin/WindowPicture.h"
#include "skinkit/PngBytes.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

constexpr Pixel kCutAway = pixelOf(255, 0, 255);
constexpr Pixel kDifferent = pixelOf(255, 0, 0);

fs::path keptFile(const std::string& name) {
  return fs::path(kSourceFolder) / "tests/golden/pictures" / (name + ".png");
}

fs::path failureFile(const std::string& name, const std::string& what) {
  return fs::path(kBuildFolder) / "golden-failures" / (name + "." + what + ".png");
}

void writePng(const fs::path& file, const Image& image) {
  fs::create_directories(file.parent_path());
  StandardFileWriter().writeSafely(file, pngBytes(image));
}

Image readPng(const fs::path& file) {
  int width = 0;
  int height = 0;
  int channels = 0;
  unsigned char* const bytes = stbi_load(file.string().c_str(), &width, &height, &channels, 3);
  if (bytes == nullptr) return {};
  Image image(width, height);
  const unsigned char* next = bytes;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x, next += 3) image.set(x, y, pixelOf(next[0], next[1], next[2]));
  }
  stbi_image_free(bytes);
  return image;
}

Image differenceOf(const Image& kept, const Image& actual) {
  Image difference = actual;
  for (int y = 0; y < actual.height(); ++y) {
    for (int x = 0; x < actual.width(); ++x) {
      const bool same = x < kept.width() && y < kept.height() && kept.at(x, y) == actual.at(x, y);
      difference.set(x, y, same ? (actual.at(x, y) >> 2U) & 0x3F3F3FU : kDifferent);
    }
  }
  return difference;
}

bool renewing() {
  const char* const asked = std::getenv("KALVORA_RENEW_GOLDEN");
  return asked != nullptr && std::string_view(asked) == "1";
}

}  // namespace

Image shaped(const Image& picture, const std::optional<RowSpans>& shape) {
  return cutOut(picture, shape, kCutAway);
}

void expectGolden(const Image& actual, const std::string& name) {
  if (renewing()) {
    writePng(keptFile(name), actual);
    return;
  }
  const Image kept = readPng(keptFile(name));
  if (kept == actual) return;
  writePng(failureFile(name, "actual"), actual);
  writePng(failureFile(name, "difference"), differenceOf(kept, actual));
  FAIL() << "the picture differs from " << keptFile(name) << "; see "
         << failureFile(name, "actual");
}

}  // namespace kalvora
