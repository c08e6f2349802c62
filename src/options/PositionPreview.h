#pragma once

#include "base/Geometry.h"

namespace kalvora {

/// The least width and height of the window's shape: smaller it would not be seen.
inline constexpr int kLeastPreviewShape = 3;

/// A small picture of the screen with the main window on it, in pixels of the area it is drawn in.
struct PositionPreview {
  Rect screen;  // in the middle of the area, in the shape of the screen
  Rect window;  // may lie outside `screen`
  friend bool operator==(const PositionPreview&, const PositionPreview&) = default;
};

/// Scales the screen to fit `area`, aspect kept, and the window's place with it. The shape of the
/// window is at least 3 × 3 pixels.
PositionPreview previewOf(Size area, Size screen, const Rect& window);

}  // namespace kalvora
