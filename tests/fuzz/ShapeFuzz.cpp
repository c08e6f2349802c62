// The outline of a shape picture. The input's first three bytes are depth, width and height; the
// bytes after them fill its lines, again and again.
#include <array>

#include "FuzzCheck.h"
#include "fakes/PlainShape.h"

namespace kalvora {
namespace {

constexpr std::array kDepths = {8, 15, 16, 24, 32};

Picture shapeOf(std::string_view input) {
  const auto number = [&](std::size_t at) { return int{static_cast<unsigned char>(input[at])}; };
  Picture picture;
  picture.bitsPerPixel = kDepths.at(static_cast<std::size_t>(number(0)) % kDepths.size());
  picture.image = Image(number(1) + 1, number(2) + 1);
  const int pixelBytes = (picture.bitsPerPixel + 7) / 8;
  picture.bytesPerLine = (picture.width() * pixelBytes + 3) / 4 * 4;
  const std::string_view filling = input.substr(3);
  picture.bits.resize(static_cast<std::size_t>(picture.bytesPerLine) *
                      static_cast<std::size_t>(picture.height()));
  for (std::size_t i = 0; i < picture.bits.size() && !filling.empty(); ++i) {
    picture.bits[i] = static_cast<std::uint8_t>(filling[i % filling.size()]);
  }
  return picture;
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  if (size < 3) return 0;
  const Picture picture = shapeOf(bytesOf(data, size));
  const std::string fault = PlainShape(picture).faultOf(SkinShapeToRegion(picture));
  require(fault.empty(), fault);
  return 0;
}
