#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "base/Comfort.h"
#include "base/Geometry.h"
#include "base/SettingsStore.h"

namespace kalvora {

/// The user's own settings. A member bears its key's name where that is an identifier; the values
/// here are those of a user who has saved nothing, except the window's place (see Window_X).
struct Settings {
  bool ShWatS = false;                 // shows the window when the program starts
  bool AShT = false;                   // rolls the note area down when the window is viewed
  bool WysRZF1 = true;                 // the window comes out with the note area rolled down
  bool ZRF1 = false;                   // resizes the window when minimizing and maximizing
  bool alwaysSaveWinPos = false;       // saves the window's place while the program runs
  std::int32_t Window1_interval = 10;  // milliseconds between two steps of the window's slide
  std::int32_t Window2_interval = 10;  // the same for the note area
  std::int16_t Win1_Jump = 10;         // pixels of one step of the window's slide
  std::int16_t Win2_Jump = 20;         // the same for the note area
  std::int16_t Window_X = 0;           // pixels; set by Load_options_KV, whatever the store holds
  std::int16_t Window_Y = 0;
  std::wstring iconFilename;  // a file of the icons folder; empty for the program's own icon
  bool Use_Sounds = false;
  std::wstring Snd_Show;  // paths of wave files; empty for no sound
  std::wstring Snd_Hide;
  std::wstring Snd_Notes_Show;
  std::wstring Snd_Notes_Hide;
  std::wstring Snd_Alarm;
  std::wstring Snd_Button_Press;
  std::wstring Snd_Button_Delete;
  bool AmPm = true;             // 12-hour time
  bool AlwOnTop = true;         // the main window is topmost
  bool Fast_delete_msg = true;  // asks before a fast delete
  std::int16_t Last_skin = 0;   // index among the sub-folders of the skins folder
  Comfort comfort;              // the ticks of comfortTicks(), in a section of their own

  friend bool operator==(const Settings&, const Settings&) = default;
};

/// The stored number of a window place that is to be computed from the screen.
inline constexpr std::int16_t kPlaceNotSet = 9999;

/// Where a setting lives in Settings; its type decides the text form.
using SettingMember = std::variant<bool Settings::*, std::int16_t Settings::*,
                                   std::int32_t Settings::*, std::wstring Settings::*>;

/// One row of the settings table.
struct SettingRow {
  std::wstring_view section;
  std::wstring_view key;
  std::wstring_view fallback;  // the text that stands for a missing value
  SettingMember member;
};

/// The only list of the settings but for comfortTicks(): loading and saving go through it from the
/// first row to the last.
std::span<const SettingRow> settingRows();

/// The five display switches in the order of their check boxes.
inline constexpr std::array<bool Settings::*, 5> kDisplaySwitches = {
    &Settings::ShWatS, &Settings::AShT, &Settings::WysRZF1, &Settings::ZRF1,
    &Settings::alwaysSaveWinPos};

/// The seven sounds in the order of their path boxes.
inline constexpr std::array<std::wstring Settings::*, 7> kSoundPaths = {
    &Settings::Snd_Show,         &Settings::Snd_Hide,  &Settings::Snd_Notes_Show,
    &Settings::Snd_Notes_Hide,   &Settings::Snd_Alarm, &Settings::Snd_Button_Press,
    &Settings::Snd_Button_Delete};

/// What the window's place is computed from where none is stored, in pixels.
struct PlacementSizes {
  Size screen;
  Size window;  // 200 × 161 when the program starts
};

/// Load the options: reads every row of the table, in order, into `settings`, then the ticks of
/// comfort, which are off where they are missing, and writes nothing. A
/// text that is not what its member takes counts as missing, so that one setting cannot keep the
/// program from starting.
/// A place of 9999 is replaced at once (computePlaceNotSet()). `applyAlwaysOnTop` is called with
/// AlwOnTop right after it is read, before the rows that follow it.
/// Returns what the user is to be told of the texts that could not be read, each in a line of its
/// own; empty where there were none.
[[nodiscard]] std::wstring Load_options_KV(
    const SettingsStore& store, const PlacementSizes& sizes, Settings& settings,
    const std::function<void(bool alwaysOnTop)>& applyAlwaysOnTop);

/// Puts the window where it stands when no place is stored: flush with the right edge of the
/// screen, centred vertically, halves to even. Throws OverflowError where that is beyond 16 bits.
void setComputedPlace(const PlacementSizes& sizes, Settings& settings);
/// Does so for each of the two numbers that is 9999.
void computePlaceNotSet(const PlacementSizes& sizes, Settings& settings);

/// Writes every row of the table, in order, then the ticks of comfort that are stored otherwise:
/// who never chose any has no such section. Throws Failure, with a line for each setting that could
/// not be stored; all the others are written.
void storeSettings(SettingsStore& store, const Settings& settings);

/// Writes Window_X, then Window_Y, and nothing else. Throws likewise.
void saveWindowPosition(SettingsStore& store, std::int16_t x, std::int16_t y);
/// Writes Last_skin, and nothing else.
void saveSkin(SettingsStore& store, std::int16_t index);
/// Writes "Icon filename", and nothing else.
void saveIcon(SettingsStore& store, std::wstring_view fileName);

}  // namespace kalvora
