#include "skin/SkinDescription.h"

#include <algorithm>
#include <span>

#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

struct ButtonSection {
  std::wstring_view section;
  ButtonPlace defaults;
};

/// The names are those of the file format, its odd spelling included. Two buttons share a default
/// place on purpose; those of a reminder's face have none.
constexpr std::array<ButtonSection, kButtonCount> kButtonSections = {{
    {L"Fast Delete", {150, 5, 15, 15}},
    {L"Rool Down/Up", {163, 5, 15, 15}},
    {L"Minimize", {163, 5, 15, 15}},
    {L"New", {1, 1, 1, 1}},
    {L"Save", {1, 1, 1, 1}},
    {L"Delete", {1, 1, 1, 1}},
    {L"Left", {1, 1, 1, 1}},
    {L"Right", {1, 1, 1, 1}},
    {L"Snooze", {0, 0, 0, 0}},
    {L"Done", {0, 0, 0, 0}},
}};

struct RowKeys {
  std::wstring_view x;
  std::wstring_view y;
  std::wstring_view length;
  RowPlace defaults;
};

constexpr std::wstring_view kTextSection = L"Graphic Text";
constexpr std::array<RowKeys, kRowCount> kRowKeys = {{
    {L"Scrool, X", L"Scrool, Y", L"Scrool, Length", {10, 10, 20}},
    {L"File Date/Time, X", L"File Date/Time, Y", L"File Date/Time, Length", {10, 30, 10}},
    {L"Current Date, X", L"Current Date, Y", L"Current Date, Length", {10, 40, 10}},
    {L"x of n, X", L"x of n, Y", L"x of n, Length", {10, 50, 10}},
}};

/// The label of the half of the day keeps the background it has by design.
constexpr std::array<std::wstring_view, 3> kFieldsWithBackground = {L"Note Title", L"Note Text",
                                                                    L"Note Alarm"};
constexpr std::wstring_view kLabelSection = L"Note AmPm";

/// One description file, read key by key.
class DescriptionReader {
 public:
  DescriptionReader(SkinValues& values, std::filesystem::path file)
      : values_(values), file_(std::move(file)) {}

  std::int16_t whole(std::wstring_view section, std::wstring_view key, std::int16_t fallback) {
    return usable<std::int16_t>(section, key, fallback, textToInt16);
  }

  float single(std::wstring_view section, std::wstring_view key, std::int16_t fallback) {
    return usable<float>(section, key, fallback, textToSingle);
  }

  /// Three keys that start alike, such as "Text color, R", "… G" and "… B".
  std::uint32_t color(std::wstring_view section, const std::wstring& name) {
    const std::uint32_t red = colorPart(section, name + L", R");
    const std::uint32_t green = colorPart(section, name + L", G");
    const std::uint32_t blue = colorPart(section, name + L", B");
    return red | (green << 8U) | (blue << 16U);
  }

 private:
  template <typename Number, typename Convert>
  Number usable(std::wstring_view section, std::wstring_view key, std::int16_t fallback,
                Convert convert) {
    const std::wstring text = values_.value(section, key, file_, numberToText(fallback));
    // A slip in one key must not take the whole skin from the user.
    try {
      return convert(text);
    } catch (const ConversionError&) {
      return fallback;
    } catch (const OverflowError&) {
      return fallback;
    }
  }

  std::uint32_t colorPart(std::wstring_view section, std::wstring_view key) {
    const int part = whole(section, key, 0);
    return static_cast<std::uint32_t>(std::clamp(part, 0, 255));
  }

  SkinValues& values_;
  std::filesystem::path file_;
};

ButtonPlace readButton(DescriptionReader& read, const ButtonSection& button) {
  ButtonPlace place;
  place.x = read.whole(button.section, L"X", button.defaults.x);
  place.y = read.whole(button.section, L"Y", button.defaults.y);
  place.width = read.whole(button.section, L"W", button.defaults.width);
  place.height = read.whole(button.section, L"H", button.defaults.height);
  return place;
}

RowPlace readRow(DescriptionReader& read, const RowKeys& keys) {
  RowPlace place;
  place.x = read.whole(kTextSection, keys.x, keys.defaults.x);
  place.y = read.whole(kTextSection, keys.y, keys.defaults.y);
  place.length = read.whole(kTextSection, keys.length, keys.defaults.length);
  return place;
}

FieldLook readField(DescriptionReader& read, std::wstring_view section) {
  constexpr std::int16_t kDefaultPlace = 10;
  FieldLook look;
  look.left = read.single(section, L"X", kDefaultPlace);
  look.top = read.single(section, L"Y", kDefaultPlace);
  look.width = read.single(section, L"W", kDefaultPlace);
  look.height = read.single(section, L"H", kDefaultPlace);
  look.textColor = read.color(section, L"Text color");
  return look;
}

void readButtons(DescriptionReader& read, std::span<const ButtonId> ids,
                 SkinDescription& description) {
  for (const ButtonId id : ids) {
    const auto place = static_cast<std::size_t>(id);
    description.buttons[place] = readButton(read, kButtonSections[place]);
  }
}

}  // namespace

bool SkinDescription::placesFace() const {
  return std::ranges::all_of(
      kFaceButtons, [this](ButtonId id) { return button(id).width > 0 && button(id).height > 0; });
}

SkinDescription Odczytaj_ini(SkinValues& values, const std::filesystem::path& skinFolder) {
  DescriptionReader read(values, skinFolder / kDescriptionFile);
  SkinDescription description;
  readButtons(read, kEverySkinsButtons, description);
  description.cellWidth = read.whole(kTextSection, L"Cell Width", 5);
  description.cellHeight = read.whole(kTextSection, L"Cell Height", 6);
  for (std::size_t i = 0; i < kRowCount; ++i) description.rows[i] = readRow(read, kRowKeys[i]);
  for (std::size_t i = 0; i < kFieldsWithBackground.size(); ++i) {
    FieldLook& look = description.fields[i];
    look = readField(read, kFieldsWithBackground[i]);
    look.backgroundColor = read.color(kFieldsWithBackground[i], L"Background color");
  }
  description.fields[static_cast<std::size_t>(FieldId::AmPmLabel)] = readField(read, kLabelSection);
  readButtons(read, kFaceButtons, description);
  return description;
}

}  // namespace kalvora
