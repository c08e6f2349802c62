#include "skinkit/PngBytes.h"

#include <vector>

#include "base/Errors.h"

#ifndef __clang_analyzer__  // A library is not ours to mend.
#define STB_IMAGE_WRITE_IMPLEMENTATION
#endif
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#include <stb_image_write.h>

namespace kalvora {

namespace {

void append(void* bytes, void* data, int size) {
  static_cast<std::string*>(bytes)->append(static_cast<const char*>(data),
                                           static_cast<std::size_t>(size));
}

}  // namespace

std::string pngBytes(const Image& picture) {
  std::vector<unsigned char> parts;
  for (const Pixel pixel : picture.pixels()) {
    for (const unsigned shift : {16U, 8U, 0U}) {
      parts.push_back(static_cast<unsigned char>((pixel >> shift) & 0xFFU));
    }
  }
  std::string bytes;
  const int written = stbi_write_png_to_func(append, &bytes, picture.width(), picture.height(), 3,
                                             parts.data(), picture.width() * 3);
  if (written == 0) throw Failure(L"The picture cannot be made.");
  return bytes;
}

}  // namespace kalvora
