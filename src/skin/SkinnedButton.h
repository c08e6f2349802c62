#pragma once

#include <array>
#include <utility>

#include "skin/PictureClip.h"

namespace kalvora {

/// A button of the window: three pictures under one name. Element 0 is what the user sees, element
/// 1 the normal look, element 2 the pressed look.
class SkinnedButton {
 public:
  /// Where it stands on the window.
  const Rect& rect() const { return rect_; }
  const PicturePiece& shown() const { return pieces_[element_]; }

  /// Element 0 takes element 1; says whether that changed what is seen.
  bool showNormal();
  /// Element 0 takes element 2; says whether that changed what is seen.
  bool showPressed();

  /// What is seen at its place while a reminder hides it.
  const Image& ground() const { return ground_; }
  void setGround(Image ground) { ground_ = std::move(ground); }

  PicturePiece& normalLook() { return pieces_[kNormal]; }
  PicturePiece& pressedLook() { return pieces_[kPressed]; }
  void place(const Rect& rect) { rect_ = rect; }

 private:
  static constexpr std::size_t kNormal = 0;
  static constexpr std::size_t kPressed = 1;

  Rect rect_;
  std::array<PicturePiece, 2> pieces_;
  Image ground_;
  std::size_t element_ = kNormal;
};

/// Move picture: cuts (x, y, w, h) from the clip's source as the normal look of `jaki`, puts the
/// button at the same place on the window and shows that look.
void Przesun_Pic(const PictureClip& clip, SkinnedButton& jaki, int x, int y, int w, int h);

}  // namespace kalvora
