#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Comfort.h"
#include "base/Geometry.h"
#include "skin/SkinDescription.h"

namespace kalvora {

class SkinnedWindow;

/// What a screen reader calls a button, whose picture it does not see.
std::wstring_view nameOf(ButtonId button);
/// What a button does, in a few words that are true with these wishes.
std::wstring_view actionOf(ButtonId button, const Comfort& comfort);

/// What a screen reader calls a field of the main window, which has no label that is seen.
std::wstring_view nameOf(FieldId field);

/// What the mouse is told that rests on a field.
std::wstring_view tipOf(FieldId field);

/// A skinned button as it is told to those to whom its picture does not say enough.
struct NamedButton {
  ButtonId id = ButtonId::Buttons_Delete;
  std::wstring_view name;
  std::wstring_view action;
  std::wstring_view key;  // that does the same
  Rect rect;              // in pixels of the window
  bool visible = false;
  friend bool operator==(const NamedButton&, const NamedButton&) = default;
};
using NamedButtons = std::array<NamedButton, kButtonCount>;

/// What the mouse is told that rests on it: what it does, and its key.
std::wstring tipOf(const NamedButton& button);

/// All buttons as they are now, in the order of kAllButtons.
NamedButtons namedButtons(const SkinnedWindow& window, const Comfort& comfort);

}  // namespace kalvora
