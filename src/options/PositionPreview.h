#pragma once

#include <vector>

#include "base/Desktop.h"

namespace kalvora {

/// The least width and height of the window's shape: smaller it would not be seen.
inline constexpr int kLeastPreviewShape = 3;

/// A small picture of the monitors with the main window on them, in pixels of the area it is drawn
/// in.
struct PositionPreview {
  std::vector<Rect> screens;  // as the monitors stand, in the middle of the area; the primary first
  Rect window;                // may lie outside `screens`
  friend bool operator==(const PositionPreview&, const PositionPreview&) = default;
};

/// Scales the desktop to fit `area`, aspect kept, and the window's place with it. The shape of the
/// window is at least 3 × 3 pixels.
PositionPreview previewOf(Size area, const Desktop& desktop, const Rect& window);

}  // namespace kalvora
