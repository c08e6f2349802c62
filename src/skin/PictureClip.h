#pragma once

#include "base/Image.h"

namespace kalvora {

/// A rectangle cut from a picture. Where the rectangle reaches beyond the picture, the image is
/// only what there is, and `offset` says where in the rectangle its top left corner belongs.
struct PicturePiece {
  Image image;
  Point offset;
};

/// Hands out rectangular pieces of one source picture at a time. The source is not owned and must
/// outlive its use here.
class PictureClip {
 public:
  void setSource(const Image& source) { source_ = &source; }
  /// The piece at a rectangle of the source in pixels; empty without a source.
  PicturePiece clip(const Rect& area) const;

 private:
  const Image* source_ = nullptr;
};

/// Cut: makes `obj` the piece of the clip's source that lies at (x, y) and is w × h pixels.
void Wytnij(const PictureClip& clip, PicturePiece& obj, int x, int y, int w, int h);

}  // namespace kalvora
