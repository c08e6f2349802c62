#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/Desktop.h"
#include "base/Image.h"
#include "options/OptionsView.h"

namespace kalvora {

/// What the options dialog needs of the main window.
class OptionsHost {
 public:
  virtual ~OptionsHost() = default;

  /// Options to form: fills the controls from the settings that are held.
  virtual void Options_to_form(OptionsView& form) const = 0;
  /// Save the options: takes the controls into the settings, applies them and stores all settings.
  /// Throws OptionsInputError, with nothing taken and nothing stored, where a box holds what its
  /// setting cannot take.
  virtual void Save_options_KV(const OptionsView& form) = 0;

  /// Whether the main window is out on the screen.
  virtual bool shown() const = 0;
  /// Where the main window stands now, in pixels of the screen.
  virtual Point windowPosition() const = 0;
  /// Its size with the note area rolled down.
  virtual Size fullSize() const = 0;
  virtual Desktop desktop() const = 0;

  /// Starts and stops the timer Opt_win_pos_tim, each tick of which tells the dialog where the main
  /// window stands.
  virtual void startOpt_win_pos_tim() = 0;
  virtual void stopOpt_win_pos_tim() = 0;
  /// The mode in which the place where the user drops the main window goes into the position boxes.
  /// Beginning it brings a main window that is out on the screen to the front.
  virtual void beginSetPosition() = 0;
  virtual void endSetPosition() = 0;

  virtual std::int16_t currentSkin() const = 0;
  /// Makes that skin the current one, which the main window wears at once.
  virtual void wearSkin(std::int16_t index) = 0;
  /// A picture of the main window in a skin, no larger than `room`, on a ground of one colour;
  /// nothing where the skin is not whole.
  virtual std::optional<Image> skinPicture(std::wstring_view skin, Size room,
                                           Pixel ground) const = 0;

  /// Makes a file of the icons folder the tray icon, at once.
  virtual void takeIcon(std::wstring_view fileName) = 0;
  /// Plays a wave file, whether sounds are switched on or not.
  virtual void playSound(std::wstring_view waveFile) = 0;
};

}  // namespace kalvora
