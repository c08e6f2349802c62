#pragma once

#include <array>
#include <string_view>

#include "base/Geometry.h"
#include "skin/SkinDescription.h"

namespace kalvora {

class SkinnedWindow;

/// What a button is called where its picture does not say enough: in its tip, and for a screen
/// reader.
std::wstring_view nameOf(ButtonId button);

/// What a screen reader calls a field of the main window, which has no label that is seen.
std::wstring_view nameOf(FieldId field);

/// A skinned button as it is told to those who do not see its picture.
struct NamedButton {
  ButtonId id = ButtonId::Buttons_Delete;
  std::wstring_view name;
  Rect rect;  // in pixels of the window
  bool visible = false;
  friend bool operator==(const NamedButton&, const NamedButton&) = default;
};
using NamedButtons = std::array<NamedButton, kButtonCount>;

/// All buttons as they are now, in the order of kAllButtons.
NamedButtons namedButtons(const SkinnedWindow& window);

}  // namespace kalvora
