#include "app/ButtonBar.h"

namespace kalvora {

namespace {

/// The window, or the reminder on show.
bool sendsAway(ButtonId button) {
  return button == ButtonId::Buttons_Close || button == ButtonId::Buttons_Delete;
}

bool clicks(ButtonId button, MouseButton mouse) {
  return mouse == MouseButton::Left || (mouse == MouseButton::Right && button == ButtonId::Snooze);
}

}  // namespace

bool ButtonBar::mouseDown(MouseButton pressed, Point at) {
  // The pressed button keeps the mouse, whatever other mouse buttons do meanwhile.
  if (press_ && press_->mouse != pressed) return true;
  const std::optional<ButtonId> button = window_.buttonAt(at);
  if (!button) return false;
  press_ = Press{*button, pressed};
  show(Przycisk_wcisniety(pressed));
  return true;
}

bool ButtonBar::mouseDownAgain(MouseButton pressed, Point at) {
  // The first click of the two may have put a reminder away and let the next one come, which nobody
  // has seen yet. Or a reminder came after it, with its face in place of what was clicked.
  const std::optional<ButtonId> button = window_.buttonAt(at);
  if (button && acted_ && (isFaceButton(*button) || (sendsAway(*button) && button == acted_))) {
    return true;
  }
  return mouseDown(pressed, at);
}

void ButtonBar::mouseMove(MouseButton held, Point at) {
  if (!press_) return;
  const Rect rect = window_.buttonRect(press_->button);
  show(Przycisk_ruch(held, {at.x - rect.x, at.y - rect.y}, {rect.width, rect.height}));
}

std::optional<ButtonClick> ButtonBar::mouseUp(MouseButton released, Point at) {
  if (!press_ || press_->mouse != released) return std::nullopt;
  const Press press = *press_;
  const Rect rect = window_.buttonRect(press.button);
  const ButtonRelease release =
      Przycisk_puszczony(released, {at.x - rect.x, at.y - rect.y}, {rect.width, rect.height});
  show(release.look);
  press_.reset();
  acted_.reset();
  // A reminder that went in the middle of the press took the buttons of its face along.
  const bool gone = isFaceButton(press.button) && !window_.buttonVisible(press.button);
  if (gone || !release.inside || !clicks(press.button, press.mouse)) return std::nullopt;
  // Only the left mouse button ever presses a button down, so only it makes one act.
  if (press.mouse == MouseButton::Left) acted_ = press.button;
  return ButtonClick{press.button, press.mouse};
}

void ButtonBar::mouseLost() {
  if (!press_) return;
  show(ButtonLook::Normal);
  press_.reset();
}

void ButtonBar::show(std::optional<ButtonLook> look) {
  if (!look) return;
  *look == ButtonLook::Pressed ? window_.showPressed(press_->button)
                               : window_.showNormal(press_->button);
}

}  // namespace kalvora
