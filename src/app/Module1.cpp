#include "app/Module1.h"

namespace kalvora {

std::optional<ButtonLook> Przycisk_wcisniety(MouseButton button) {
  if (button != MouseButton::Left) return std::nullopt;
  return ButtonLook::Pressed;
}

std::optional<ButtonLook> Przycisk_ruch(MouseButton held, Point pointer, Size size) {
  if (!holds(held, MouseButton::Left)) return std::nullopt;
  const bool outside =
      pointer.x < 0 || pointer.y < 0 || pointer.x > size.width || pointer.y > size.height;
  return outside ? ButtonLook::Normal : ButtonLook::Pressed;
}

ButtonRelease Przycisk_puszczony(MouseButton /*button*/, Point pointer, Size size) {
  const bool inside =
      pointer.x > 0 && pointer.x < size.width && pointer.y > 0 && pointer.y < size.height;
  return {ButtonLook::Normal, inside};
}

}  // namespace kalvora
