#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skin/SkinnedWindow.h"

namespace kalvora {

/// A button, a row of cells or a field, as the checks of the layout see it.
struct LayoutPart {
  enum class Kind { Button, Row, Field };
  Kind kind = Kind::Button;
  /// Of its keys: L"[New]", or L"[Graphic Text] Scrool" for a row.
  std::wstring name;
  Rect rect;
  /// Whether it stays in sight when the window is rolled up.
  bool inTitleStrip = false;
  /// Those of the face take turns with the main buttons.
  enum class Shown { Always, WithoutReminder, WithReminder };
  Shown shown = Shown::Always;
};

/// All sixteen and, where the window has the face of a reminder, its two, by their kinds.
std::vector<LayoutPart> layoutParts(const SkinnedWindow& window);

std::wstring sectionName(ButtonId id);
std::wstring sectionName(RowId id);
std::wstring sectionName(FieldId id);

/// The pixels of `area` that an outline leaves in sight; without one, those inside `window`.
int pixelsInSight(const Rect& area, const std::optional<RowSpans>& outline, Size window);

}  // namespace kalvora
