#pragma once

#include "app/Form1Ports.h"
#include "app/OptionsForm.h"
#include "options/OptionsHost.h"

namespace kalvora {

/// What the options dialog needs of Form1 itself.
class OptionsActions {
 public:
  virtual ~OptionsActions() = default;
  /// Whether the main window is out on the screen.
  virtual bool windowShown() const = 0;
  /// The size of the main window with the note area rolled down, in pixels.
  virtual Size fullWindowSize() const = 0;
  /// Moves the main window, which stays at its size.
  virtual void moveWindow(Point topLeft) = 0;
  /// The label of the half of the day is cleared, and the time on show follows 12-hour time.
  virtual void applyToAlarmLine() = 0;
  /// Load the skin to the form while the program runs.
  virtual void wearCurrentSkin() = 0;
  /// Update the icon on the task bar.
  virtual void Update_Icon_on_task() = 0;
};

/// The main window's side of the options dialog: the settings in and out, and what they do to the
/// window.
class MainWindowOptions : public OptionsHost, private OptionsEffects {
 public:
  /// All must outlive this object.
  MainWindowOptions(const Form1Ports& ports, Settings& settings, OptionsActions& form);

  /// Whether the place where the user drops the main window goes into the position boxes.
  bool settingPosition() const { return settingPosition_; }

  void Options_to_form(OptionsView& form) const override;
  /// A main window that is out on the screen goes to the position that was entered, where that is
  /// on the screen.
  void Save_options_KV(const OptionsView& form) override;
  bool shown() const override { return form_.windowShown(); }
  Point windowPosition() const override;
  Size fullSize() const override { return form_.fullWindowSize(); }
  Size screenSize() const override { return ports_.view.screenSize(); }
  void startOpt_win_pos_tim() override;
  void stopOpt_win_pos_tim() override;
  void beginSetPosition() override;
  void endSetPosition() override { settingPosition_ = false; }
  std::int16_t currentSkin() const override { return settings_.Last_skin; }
  void setCurrentSkin(std::int16_t index) override { settings_.Last_skin = index; }
  void Load_skin_to_form() override { form_.wearCurrentSkin(); }
  std::optional<Image> skinPicture(std::wstring_view skin, Size room, Pixel ground) const override;
  void takeIcon(std::wstring_view fileName) override;
  void playSound(std::wstring_view waveFile) override { ports_.sounds.play(waveFile); }

 private:
  void clearAmPmLabel() override { form_.applyToAlarmLine(); }
  void OnTop() override;
  void RemOntop() override;
  void goToEnteredPosition() override;

  const Form1Ports& ports_;
  Settings& settings_;
  OptionsActions& form_;
  bool settingPosition_ = false;
};

}  // namespace kalvora
