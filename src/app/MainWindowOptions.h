#pragma once

#include <functional>

#include "app/Form1View.h"
#include "app/Settings.h"
#include "app/SoundPlayer.h"
#include "app/TrayIcon.h"
#include "app/WindowMotion.h"
#include "base/FileSystem.h"
#include "base/ProgramFolders.h"
#include "options/OptionsHost.h"
#include "skin/SkinValues.h"

namespace kalvora {

/// What the options dialog changes and tries out, beside the main window's own parts.
struct OptionsPorts {
  SettingsStore& store;
  Form1View& view;
  TrayIcon& tray;
  SoundPlayer& sounds;
  const FileSystem& files;
  SkinValues& skinValues;
  ProgramFolders folders;
};

/// The main window's side of the options dialog: the settings in and out, and what they do to the
/// window.
class MainWindowOptions : public OptionsHost {
 public:
  /// `followOptions` lets the note on show follow what was entered, `wearCurrentSkin` loads the
  /// skin of the settings to the form while the program runs. All must outlive this object.
  MainWindowOptions(const OptionsPorts& ports, Settings& settings, WindowMotion& motion,
                    std::function<void()> followOptions, std::function<void()> wearCurrentSkin);

  /// Whether the place where the user drops the main window goes into the position boxes.
  bool settingPosition() const { return settingPosition_; }

  void Options_to_form(OptionsView& form) const override;
  /// A main window that is out on the screen goes to the position that was entered, where a monitor
  /// shows something of it there, and to the computed one for 9999. A position that is on no
  /// monitor is stored and not used.
  void Save_options_KV(const OptionsView& form) override;
  bool shown() const override { return motion_.shown(); }
  Point windowPosition() const override;
  Size fullSize() const override;
  Desktop desktop() const override { return ports_.view.desktop(); }
  void startOpt_win_pos_tim() override;
  void stopOpt_win_pos_tim() override;
  void beginSetPosition() override;
  void endSetPosition() override { settingPosition_ = false; }
  std::int16_t currentSkin() const override { return settings_.Last_skin; }
  void wearSkin(std::int16_t index) override;
  std::optional<Image> skinPicture(std::wstring_view skin, Size room, Pixel ground) const override;
  void takeIcon(std::wstring_view fileName) override;
  void playSound(std::wstring_view waveFile) override { ports_.sounds.play(waveFile); }

 private:
  /// Apply the options: takes the dialog's controls into the settings and applies them. Returns the
  /// settings as they were entered, which differ in a position that cannot be used.
  Settings Options_apply(const OptionsView& form);
  /// Puts a main window that is out where the settings say now. A position that cannot be used is
  /// replaced there: by the computed one, or by the one that was held `before`.
  void goToEnteredPosition(Point before);

  OptionsPorts ports_;
  Settings& settings_;
  WindowMotion& motion_;
  std::function<void()> followOptions_;
  std::function<void()> wearCurrentSkin_;
  bool settingPosition_ = false;
};

}  // namespace kalvora
