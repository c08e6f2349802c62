#include "PictureFuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kalvora::decodeAndCheck(
      [](std::string_view bytes) { return kalvora::decodeBmp(bytes, kalvora::StoredBits::Kept); },
      kalvora::bytesOf(data, size));
  return 0;
}
