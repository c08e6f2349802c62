#pragma once

#include <cstddef>
#include <string>

namespace kalvora {

/// The check boxes of the options dialog. Display_chk is an array of five; of Comfort there is one
/// for each of comfortTicks().
enum class CheckBox {
  Display_chk,
  Sound_ch_all,
  AmPmCheck,
  AlwOnTop,
  Fast_delete_msg_check,
  Comfort
};

/// The edit boxes of the options dialog: the time of a step (milliseconds) and its size (pixels)
/// for the main window and for the notes, WinPos (left and top, pixels) and the seven Sound_path.
enum class TextBox { WindowTime, WindowSize, NotesTime, NotesSize, WinPos, Sound_path };

inline constexpr int kDisplayCheckCount = 5;
inline constexpr int kWinPosCount = 2;
inline constexpr int kSoundPathCount = 7;

/// One check box; `item` is its place in its array, 0 where there is none.
struct CheckId {
  CheckBox box = CheckBox::Display_chk;
  int item = 0;
  friend bool operator==(const CheckId&, const CheckId&) = default;
};

/// One edit box, likewise.
struct TextId {
  TextBox box = TextBox::WindowTime;
  int item = 0;
  friend bool operator==(const TextId&, const TextId&) = default;
};

/// What the user knows a box by, for a message about it.
std::wstring nameOf(TextId id);

/// The pages of the dialog: the items of the array Tree_pic.
enum class OptionsPage {
  Comfort = 0,
  Graphics = 1,
  WindowDisplay = 2,
  SetWindowPosition = 3,
  Sounds = 4,
  Systems = 5,
  Skins = 6,
  Icons = 7
};
inline constexpr int kOptionsPageCount = 8;

/// The page that a box stands on.
OptionsPage pageOf(TextId id);

}  // namespace kalvora
