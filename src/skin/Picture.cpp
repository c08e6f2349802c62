#include "skin/Picture.h"

#include "skin/PictureFormats.h"

namespace kalvora {

Picture decodePicture(std::string_view bytes) {
  if (bytes.starts_with("BM")) return decodeBmp(bytes);
  if (bytes.starts_with("GIF8")) return decodeGif(bytes);
  if (bytes.starts_with("\xFF\xD8")) return decodeJpeg(bytes);
  throw PictureError(L"This is not a picture of a known kind.");
}

void checkPictureSize(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1) throw PictureError(L"The picture is empty.");
  if (width > kMaxPictureSide || height > kMaxPictureSide || width * height > kMaxPicturePixels) {
    throw PictureError(L"The picture is too large.");
  }
}

}  // namespace kalvora
