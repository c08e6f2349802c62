#include "skin/SkinnedButton.h"

#include <utility>

namespace kalvora {

bool SkinnedButton::showNormal() {
  return std::exchange(element_, kNormal) != kNormal;
}

bool SkinnedButton::showPressed() {
  return std::exchange(element_, kPressed) != kPressed;
}

void Przesun_Pic(const PictureClip& clip, SkinnedButton& jaki, int x, int y, int w, int h) {
  Wytnij(clip, jaki.normalLook(), x, y, w, h);
  jaki.place({x, y, w, h});
  jaki.showNormal();
}

}  // namespace kalvora
