#include "skin/WindowPicture.h"

#include <algorithm>
#include <cmath>

namespace kalvora {

Pixel pixelOfColor(std::uint32_t redLow) {
  return pixelOf(redLow & 0xFFU, (redLow >> 8U) & 0xFFU, (redLow >> 16U) & 0xFFU);
}

Rect fieldRect(const FieldLook& look) {
  // A description may hold numbers that no int does; no window reaches beyond these.
  const auto whole = [](float value) {
    return static_cast<int>(std::lround(std::clamp(value, -32768.0F, 32767.0F)));
  };
  return {whole(look.left), whole(look.top), whole(look.width), whole(look.height)};
}

void fillFields(Image& picture, const SkinDescription& description) {
  for (const FieldId id : kAllFields) {
    const FieldLook& look = description.field(id);
    if (look.backgroundColor) picture.fill(fieldRect(look), pixelOfColor(*look.backgroundColor));
  }
}

Image cutOut(const Image& picture, const std::optional<RowSpans>& shape, Pixel ground) {
  if (!shape) return picture;
  Image result(picture.width(), picture.height(), ground);
  for (const RowSpan& span : *shape) {
    result.draw(picture, {0, 0}, {span.left, span.y, span.right - span.left, 1});
  }
  return result;
}

}  // namespace kalvora
