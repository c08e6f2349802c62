#pragma once

#include <optional>

#include "base/Geometry.h"

namespace kalvora {

/// The mouse buttons of an event. A press and a release have one, a move has all that are held.
enum class MouseButton : unsigned { None = 0, Left = 1, Right = 2, Middle = 4 };

constexpr MouseButton operator|(MouseButton a, MouseButton b) {
  return static_cast<MouseButton>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool holds(MouseButton held, MouseButton button) {
  return (static_cast<unsigned>(held) & static_cast<unsigned>(button)) != 0;
}

/// The two pictures that a skinned button can show: its items 1 and 2.
enum class ButtonLook { Normal, Pressed };

/// Button pressed: what item 0 shows then; nothing where it stays as it is, which it does for every
/// button but the left one.
std::optional<ButtonLook> Przycisk_wcisniety(MouseButton button);

/// Pointer moved over a button: what item 0 shows then; nothing where it stays as it is, which it
/// does unless the left mouse button is held. `pointer` is counted from the top left corner of the
/// button of `size`; here all four edges belong to the button.
std::optional<ButtonLook> Przycisk_ruch(MouseButton held, Point pointer, Size size);

struct ButtonRelease {
  ButtonLook look = ButtonLook::Normal;
  bool inside = false;  // the button's action runs
  friend bool operator==(const ButtonRelease&, const ButtonRelease&) = default;
};

/// Button released: what item 0 shows then, and whether the pointer was inside. Unlike in
/// Przycisk_ruch() a release exactly on an edge counts as outside; the mouse button is not asked.
ButtonRelease Przycisk_puszczony(MouseButton button, Point pointer, Size size);

}  // namespace kalvora
