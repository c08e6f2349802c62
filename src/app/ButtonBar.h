#pragma once

#include <optional>

#include "app/Module1.h"
#include "skin/SkinnedWindow.h"

namespace kalvora {

/// A button that was clicked, and with which mouse button: the left one, for it to act, or the
/// right one, for its menu.
struct ButtonClick {
  ButtonId button;
  MouseButton mouse;
  friend bool operator==(const ButtonClick&, const ButtonClick&) = default;
};

/// The skinned buttons under the mouse: a button that was pressed keeps the mouse until it
/// is released, and acts only where the release falls inside it.
class ButtonBar {
 public:
  /// `window` must outlive this object.
  explicit ButtonBar(SkinnedWindow& window) : window_(window) {}

  /// Points are in window pixels. False where no button stands there.
  bool mouseDown(MouseButton pressed, Point at);
  /// The second press of a double click: the same, but for a button that sends the window away and
  /// did so at the first.
  bool mouseDownAgain(MouseButton pressed, Point at);
  void mouseMove(MouseButton held, Point at);
  /// Nothing where the release makes no button act and opens no menu.
  std::optional<ButtonClick> mouseUp(MouseButton released, Point at);
  /// The mouse went elsewhere in the middle of a press, which then does nothing.
  void mouseLost();

 private:
  struct Press {
    ButtonId button;
    MouseButton mouse;
  };

  void show(std::optional<ButtonLook> look);

  SkinnedWindow& window_;
  std::optional<Press> press_;
  std::optional<ButtonId> acted_;  // at the last release
};

}  // namespace kalvora
