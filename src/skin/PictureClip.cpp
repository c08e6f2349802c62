#include "skin/PictureClip.h"

#include <algorithm>

namespace kalvora {

PicturePiece PictureClip::clip(const Rect& area) const {
  if (source_ == nullptr) return {};
  return {source_->crop(area), {std::max(0, -area.x), std::max(0, -area.y)}};
}

void Wytnij(const PictureClip& clip, PicturePiece& obj, int x, int y, int w, int h) {
  obj = clip.clip({x, y, w, h});
}

}  // namespace kalvora
