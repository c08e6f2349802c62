#pragma once

#include <optional>
#include <string_view>

#include "base/Image.h"
#include "skin/Skin.h"

namespace kalvora {

/// The states that a skin can be pictured in: the note shown, the title strip alone, every button
/// held down, and a reminder, which has the two buttons of its face in place of the five main ones,
/// at rest and held down.
enum class SkinState { Full, RolledUp, Pressed, Reminder, ReminderPressed };

/// "full", "rolled-up", "pressed", "reminder" or "reminder-pressed"; nothing for another word.
std::optional<SkinState> skinStateOf(std::string_view word);

struct PreviewLook {
  SkinState state = SkinState::Full;
  /// Each pixel becomes a square of this many pixels a side.
  int scale = 1;
  /// The desktop around the window.
  Pixel ground = pixelOf(59, 110, 165);
};

/// The window in a skin, with sample texts and a few pixels of the desktop around it. The fields
/// are empty boxes: their text is the system's.
Image skinPicture(const Skin& skin, const PreviewLook& look);

}  // namespace kalvora
