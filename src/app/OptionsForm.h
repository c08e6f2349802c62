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

/// The only list of what the dialog shows: filling it and reading it go through it from the first
/// row to the last. The icon and the skin are not in it: the dialog changes them at once.
std::span<const OptionsRow> optionsRows();

/// What reading the options dialog does to the main window.
class OptionsEffects {
 public:
  virtual ~OptionsEffects() = default;
  /// Whether the main window is out on the screen.
  virtual bool shown() const = 0;
  /// Takes the half of the day off the main window until the clock writes it again, and has the
  /// time on show follow 12-hour time.
  virtual void clearAmPmLabel() = 0;
  /// Always on top, and not any more.
  virtual void OnTop() = 0;
  virtual void RemOntop() = 0;
  /// Puts a main window that is out where the settings say now.
  virtual void goToEnteredPosition() = 0;
};

/// Options to form: fills the dialog's controls from the settings. A display switch that is off
/// clears item 0 of Display_chk, whichever switch it is, and items 1 to 4 are never cleared: item 0
/// is checked only where all five are on. This is meant.
void Options_to_form(const Settings& settings, OptionsView& form);

/// Apply the options: takes the dialog's controls into the settings and applies them. The position
/// boxes are taken only while the main window is shown.
/// Throws OptionsInputError, with nothing taken, where a box holds what its setting cannot take.
void Options_apply(const OptionsView& form, Settings& settings, OptionsEffects& effects);

/// Save the options: Options_apply(), then storeSettings(). Where the first throws, nothing is
/// stored.
void Save_options_KV(const OptionsView& form, Settings& settings, OptionsEffects& effects,
                     SettingsStore& store);

}  // namespace kalvora
