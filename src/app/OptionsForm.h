#pragma once

#include <span>
#include <variant>

#include "app/Settings.h"
#include "options/OptionsView.h"

namespace kalvora {

/// One control of the options dialog and the setting that it shows.
struct OptionsRow {
  std::variant<CheckId, TextId> control;
  SettingMember member;
};

/// The only list of what the dialog shows, but for comfortTicks(): filling it and reading it go
/// through it from the first row to the last. The icon and the skin are not in it: the dialog
/// changes them at once.
std::span<const OptionsRow> optionsRows();

/// Options to form: fills the dialog's controls from the settings. A display switch that is off
/// clears item 0 of Display_chk, whichever switch it is, and items 1 to 4 are never cleared: item 0
/// is checked only where all five are on. This is meant.
void Options_to_form(const Settings& settings, OptionsView& form);

/// Whether the position boxes of the dialog count.
enum class PositionBoxes { Taken, Ignored };

/// The settings as the dialog's controls have them, and as they are held where it has none. Throws
/// OptionsInputError where a box holds what its setting cannot take.
Settings enteredOptions(const OptionsView& form, const Settings& held, PositionBoxes position);

}  // namespace kalvora
