#include "skin/Picture.h"

#include "skin/PictureFormats.h"

namespace kalvora {

namespace {

Picture decodeAny(std::string_view bytes, StoredBits bits) {
  if (bytes.starts_with("BM")) return decodeBmp(bytes, bits);
  if (bytes.starts_with("GIF8")) return decodeGif(bytes);
  if (bytes.starts_with("\xFF\xD8")) return decodeJpeg(bytes);
  throw PictureError(L"This is not a picture of a known kind.");
}

}  // namespace

Picture decodePicture(std::string_view bytes, StoredBits bits) {
  Picture picture = decodeAny(bytes, bits);
  if (bits == StoredBits::Dropped) picture.bits = {};
  return picture;
}

void checkPictureSize(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1) throw PictureError(L"The picture is empty.");
  if (width > kMaxPictureSide || height > kMaxPictureSide || width * height > kMaxPicturePixels) {
    throw PictureError(L"The picture is too large.");
  }
}

}  // namespace kalvora
