#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileSystem.h"
#include "base/Image.h"
#include "base/InputFilters.h"
#include "base/ProgramFolders.h"
#include "options/OptionsHost.h"
#include "options/OptionsView.h"

namespace kalvora {

/// The options dialog's presenter. Its settings are what its controls show: they are filled when it
/// opens and taken when the user applies them. Skins and icons take effect at once.
class Options {
 public:
  /// All that is referred to must outlive this object.
  Options(const FileSystem& files, ProgramFolders folders, OptionsHost& host, OptionsView& view);

  /// Loads the dialog, fills it from the settings and shows it. One that is open already keeps what
  /// the user entered and comes to the front.
  void open();
  /// Closes the dialog and stores nothing; harmless where it is not open.
  void unload();

  /// Load the form: the lists, the tree, the preview, and the main window's position from now on.
  void Form_Load();
  /// Unload the form: the main window's position is not followed any more.
  void Form_Unload();

  /// Show options: the page of a node, by the node's text.
  void Pokaz_opcje(std::wstring_view nodeText);
  /// Reads the skins folder anew and chooses the current skin in the list.
  void Refresh_skins();
  /// Reads the icons folder anew: one button a file.
  void Load_All_Icons();
  /// Draw again: the shape of the window where the position boxes put it. Boxes that hold no
  /// position leave the shape where it is.
  void Przerysuj();

  /// The user clicked a display switch: items 1 and 2 exclude each other.
  void Display_chk_Click(int item);
  /// Ticks all of the page "Comfort"; they are taken with the others.
  void allComfort_Click();
  /// The user typed in a position box: it keeps to digits.
  void WinPos_Change(int item);
  void cmdSetWinPos_Click();
  /// The main window's timer: where that window stands now, in pixels of the screen. The boxes are
  /// written when it has moved, so that a position can be typed in while it stands still.
  void Opt_win_pos_tim_Timer(Point position);
  /// The user dropped the main window in the set-position mode.
  void windowDropped(Point position);

  /// Lets the user pick the wave file of a sound.
  void cmd_sound_Click(int item);
  /// Plays the wave file that stands in a sound's box.
  void playSound(int item);

  void Lista_skor_Click();
  /// Puts on the skin that is chosen in the list and closes the dialog.
  void Command2_Click();
  void cmd_refresh_Click();
  /// The picture of a skin of the list: see OptionsHost::skinPicture().
  std::optional<Image> skinPicture(int index, Size room, Pixel ground) const;

  void Icon_btn_Click(int item);
  void Command3_Click();

  /// Takes and stores all settings. Where a box holds what its setting cannot take, the box gets
  /// the keyboard, and OptionsInputError is thrown with nothing taken and nothing stored.
  void cmdApply_Click();
  /// The same, then closes the dialog.
  void cmdOK_Click();

 private:
  /// Where the user begins to look for another sound.
  std::filesystem::path soundFolder(int item) const;
  void showWindowPosition(Point position);
  void showSkinPosition(int index);
  DigitBox boxOfPosition(int item) const;
  std::optional<Point> enteredPosition() const;

  const FileSystem& files_;
  ProgramFolders folders_;
  OptionsHost& host_;
  OptionsView& view_;
  bool loaded_ = false;
  std::vector<std::wstring> skins_;
  std::vector<std::wstring> Lista_ikon_FileListBox;
  std::optional<Point> followedPosition_;  // where the main window stood at the last tick
  Point previewPosition_;
};

}  // namespace kalvora
