#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "skin/SkinValues.h"

namespace kalvora {

/// The most bytes that a "config.ini" may have.
inline constexpr std::size_t kMostDescriptionBytes = 1U << 20U;

/// The name of the description file in a skin's folder.
inline constexpr std::wstring_view kDescriptionFile = L"config.ini";

/// The buttons in the order in which they lie over each other: a later one hides an earlier one.
enum class ButtonId {
  Buttons_Delete,   // fast delete
  Buttons_Down,     // roll down or up
  Buttons_Close,    // minimize
  Buttons_main_01,  // new
  Buttons_main_02,  // save
  Buttons_main_03,  // delete
  Buttons_main_04,  // left
  Buttons_main_05,  // right
  Snooze,           // this one and the next are of a reminder's face
  Done,
};
inline constexpr std::size_t kButtonCount = 10;
inline constexpr std::array<ButtonId, kButtonCount> kAllButtons = {
    ButtonId::Buttons_Delete,  ButtonId::Buttons_Down,
    ButtonId::Buttons_Close,   ButtonId::Buttons_main_01,
    ButtonId::Buttons_main_02, ButtonId::Buttons_main_03,
    ButtonId::Buttons_main_04, ButtonId::Buttons_main_05,
    ButtonId::Snooze,          ButtonId::Done};
/// Those that every skin has, and the two that a skin may bring for a reminder on show.
inline constexpr std::array<ButtonId, 8> kEverySkinsButtons = {
    ButtonId::Buttons_Delete,  ButtonId::Buttons_Down,    ButtonId::Buttons_Close,
    ButtonId::Buttons_main_01, ButtonId::Buttons_main_02, ButtonId::Buttons_main_03,
    ButtonId::Buttons_main_04, ButtonId::Buttons_main_05};
inline constexpr std::array<ButtonId, 2> kFaceButtons = {ButtonId::Snooze, ButtonId::Done};

/// The five under the note, in whose place those of the face stand.
inline constexpr std::array<ButtonId, 5> kMainButtons = {
    ButtonId::Buttons_main_01, ButtonId::Buttons_main_02, ButtonId::Buttons_main_03,
    ButtonId::Buttons_main_04, ButtonId::Buttons_main_05};

constexpr bool isMainButton(ButtonId id) {
  return id >= ButtonId::Buttons_main_01 && id <= ButtonId::Buttons_main_05;
}
constexpr bool isFaceButton(ButtonId id) {
  return id == ButtonId::Snooze || id == ButtonId::Done;
}

/// The four rows of font cells: the scrolling title, the note's date and time, the current date
/// and the "x of n" counter.
enum class RowId { lit, lit_czas, lit_czas2, lit_xof };
inline constexpr std::size_t kRowCount = 4;
inline constexpr std::array<RowId, kRowCount> kAllRows = {RowId::lit, RowId::lit_czas,
                                                          RowId::lit_czas2, RowId::lit_xof};

/// The four system controls on the window: the note's title, its text, its alarm line, and the
/// label of the half of the day.
enum class FieldId { Text1, Text2, Text3, AmPmLabel };
inline constexpr std::size_t kFieldCount = 4;
inline constexpr std::array<FieldId, kFieldCount> kAllFields = {FieldId::Text1, FieldId::Text2,
                                                                FieldId::Text3, FieldId::AmPmLabel};

/// Where a button lies in the skin's pictures and stands on the window, in pixels.
struct ButtonPlace {
  std::int16_t x = 0;
  std::int16_t y = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;
  friend bool operator==(const ButtonPlace&, const ButtonPlace&) = default;
};

/// Where a row of cells starts, in pixels, and how many cells the skin asks for.
struct RowPlace {
  std::int16_t x = 0;
  std::int16_t y = 0;
  std::int16_t length = 0;
  friend bool operator==(const RowPlace&, const RowPlace&) = default;
};

/// Place (pixels) and colours of a system control. A colour is 0x00BBGGRR: red in the low byte.
struct FieldLook {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  std::uint32_t textColor = 0;
  /// Nothing where the control keeps its own background.
  std::optional<std::uint32_t> backgroundColor;
  friend bool operator==(const FieldLook&, const FieldLook&) = default;
};

/// Everything that a skin's description file says. The numbers are kept as they were read: a
/// row's length may be negative or more than the row can hold.
struct SkinDescription {
  std::array<ButtonPlace, kButtonCount> buttons;
  std::int16_t cellWidth = 0;
  std::int16_t cellHeight = 0;
  std::array<RowPlace, kRowCount> rows;
  std::array<FieldLook, kFieldCount> fields;

  const ButtonPlace& button(ButtonId id) const { return buttons[static_cast<std::size_t>(id)]; }
  /// Whether both buttons of a reminder's face have a size: a skin without them has none.
  bool placesFace() const;
  const RowPlace& row(RowId id) const { return rows[static_cast<std::size_t>(id)]; }
  const FieldLook& field(FieldId id) const { return fields[static_cast<std::size_t>(id)]; }

  friend bool operator==(const SkinDescription&, const SkinDescription&) = default;
};

/// Read description file: the whole "config.ini" of a skin, key by key in a fixed order. A key
/// that is missing, or whose text is no number that its place can hold, takes its default; a
/// colour part above 255 counts as 255, one below 0 as 0.
SkinDescription Odczytaj_ini(SkinValues& values, const std::filesystem::path& skinFolder);

}  // namespace kalvora
