#include "PictureFuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kalvora::decodeAndCheck(kalvora::decodeJpeg, kalvora::bytesOf(data, size));
  return 0;
}
