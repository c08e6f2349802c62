// The only file that holds code of stb_image. It is built with wrapping arithmetic (see
// CMakeLists.txt): coded data can make its transforms overflow.
#include <cstdlib>
#include <memory>
#include <string>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_JPEG
#define STBI_NO_STDIO
#define STBI_NO_FAILURE_STRINGS
#define STBI_NO_THREAD_LOCALS
#define STBI_MAX_DIMENSIONS 8192
#define STBI_ASSERT(condition) static_cast<void>(0)
// Zeroed memory: what a damaged file leaves out is the same on every run.
#define STBI_MALLOC(size) std::calloc(1, size)
#define STBI_REALLOC(memory, size) std::realloc(memory, size)
#define STBI_FREE(memory) std::free(memory)
#include <stb_image.h>

#include "skin/PictureFormats.h"

namespace kalvora {

namespace {

constexpr int kColorParts = 3;

struct FreePixels {
  void operator()(stbi_uc* pixels) const { stbi_image_free(pixels); }
};

/// The pixels as a picture of 24 bits a pixel, as if it had been stored so.
Picture pictureOf(const stbi_uc* pixels, int width, int height) {
  const int bytesPerLine = (width * kColorParts + 3) / 4 * 4;
  Picture picture{Image(width, height), 24, bytesPerLine, {}};
  picture.bits.resize(static_cast<std::size_t>(bytesPerLine) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    std::uint8_t* bits = picture.bits.data() + static_cast<std::ptrdiff_t>(y) * bytesPerLine;
    for (int x = 0; x < width; ++x, pixels += kColorParts, bits += kColorParts) {
      picture.image.set(x, y, pixelOf(pixels[0], pixels[1], pixels[2]));
      bits[0] = pixels[2];
      bits[1] = pixels[1];
      bits[2] = pixels[0];
    }
  }
  return picture;
}

}  // namespace

Picture decodeJpeg(std::string_view bytes) {
  const std::string checked = checkedJpeg(bytes);
  int width = 0;
  int height = 0;
  int parts = 0;
  const std::unique_ptr<stbi_uc, FreePixels> pixels(stbi_load_from_memory(
      reinterpret_cast<const stbi_uc*>(checked.data()), static_cast<int>(checked.size()), &width,
      &height, &parts, kColorParts));
  if (!pixels) throw PictureError(L"The picture is damaged.");
  return pictureOf(pixels.get(), width, height);
}

}  // namespace kalvora
