#pragma once

#include <windows.h>

#include <optional>

#include "app/Form1View.h"
#include "base/EventGuard.h"
#include "skin/TextScroll.h"

namespace kalvora {

/// The strip at the right edge of the note's text: a mark while the text goes on below, a thin
/// scroll bar while the pointer is there. While all of the text is to be seen, it is empty.
class TextScrollStrip {
 public:
  /// `guard` must outlive this object.
  explicit TextScrollStrip(EventGuard& guard) : guard_(guard) {}

  /// Belongs from now on to this edit control of several lines. A child of the same parent, which
  /// owns it.
  void attach(HWND text) { text_ = text; }
  /// The colours and the place of the text.
  void setLook(const FieldLook& look);
  /// The letters of the text: in pixels from one line to the next.
  void setLineHeight(int height) { lineHeight_ = height; }
  void setVisibility(Visibility visibility);
  /// The text has dealt with a message: the strip shows what came of it.
  void follow(UINT message) noexcept;

 private:
  LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void update();
  void create();
  void stand();
  TextExtent measure() const;
  void pointerIsAt(HWND control);
  void pointerLeft();
  bool textIsSeen() const { return (GetWindowLongPtrW(text_, GWL_STYLE) & WS_VISIBLE) != 0; }
  void showAs(TextScrollLook look);
  void paint() noexcept;
  void press(int y);
  void draw(int y);
  void release();

  EventGuard& guard_;
  HWND text_ = nullptr;
  HWND window_ = nullptr;
  FieldLook look_;
  Rect place_;
  int lineHeight_ = 1;
  TextExtent extent_;
  TextScrollLook shownAs_ = TextScrollLook::Mark;
  HWND trackedOn_ = nullptr;  // whose leaving by the pointer will be told
  struct Grip {
    int below;  // the thumb's upper end, in pixels
    int mouse;  // where it was last, in pixels of the strip
  };
  std::optional<Grip> grip_;  // of the mouse that draws the thumb
};

}  // namespace kalvora
