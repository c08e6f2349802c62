#include "skin/SkinDescription.h"

#include <gtest/gtest.h>

#include "fakes/FakeSkinValues.h"

namespace kalvora {
namespace {

using Places = std::array<ButtonPlace, kButtonCount>;

const std::array<const wchar_t*, kButtonCount> kSections = {
    L"Fast Delete", L"Rool Down/Up", L"Minimize", L"New",    L"Save",
    L"Delete",      L"Left",         L"Right",    L"Snooze", L"Done"};
constexpr std::size_t kFirstOfFace = 8;

SkinDescription read(FakeSkinValues& values) {
  return Odczytaj_ini(values, "skins/one");
}

TEST(SkinDescription, anEmptyFileGivesEveryButtonItsDefaultPlace) {
  FakeSkinValues values;
  const SkinDescription description = read(values);
  const Places expected = {{{150, 5, 15, 15},
                            {163, 5, 15, 15},
                            {163, 5, 15, 15},
                            {1, 1, 1, 1},
                            {1, 1, 1, 1},
                            {1, 1, 1, 1},
                            {1, 1, 1, 1},
                            {1, 1, 1, 1},
                            {0, 0, 0, 0},
                            {0, 0, 0, 0}}};
  EXPECT_EQ(description.buttons, expected);
}

TEST(SkinDescription, anEmptyFileGivesTheFontAndItsRowsTheirDefaults) {
  FakeSkinValues values;
  const SkinDescription description = read(values);
  EXPECT_EQ(description.cellWidth, 5);
  EXPECT_EQ(description.cellHeight, 6);
  EXPECT_EQ(description.row(RowId::lit), (RowPlace{10, 10, 20}));
  EXPECT_EQ(description.row(RowId::lit_czas), (RowPlace{10, 30, 10}));
  EXPECT_EQ(description.row(RowId::lit_czas2), (RowPlace{10, 40, 10}));
  EXPECT_EQ(description.row(RowId::lit_xof), (RowPlace{10, 50, 10}));
}

TEST(SkinDescription, anEmptyFileGivesBlackTextOnBlackGroundInTheThreeBoxes) {
  FakeSkinValues values;
  const SkinDescription description = read(values);
  for (const FieldId id : {FieldId::Text1, FieldId::Text2, FieldId::Text3}) {
    EXPECT_EQ(description.field(id), (FieldLook{10, 10, 10, 10, 0, 0U}));
  }
  EXPECT_EQ(description.field(FieldId::AmPmLabel), (FieldLook{10, 10, 10, 10, 0, std::nullopt}));
}

TEST(SkinDescription, everyButtonKeyIsReadIntoItsPlace) {
  FakeSkinValues values;
  Places expected;
  for (std::size_t i = 0; i < kButtonCount; ++i) {
    const auto base = static_cast<std::int16_t>(10 * (i + 1));
    expected[i] = {base, static_cast<std::int16_t>(base + 1), static_cast<std::int16_t>(base + 2),
                   static_cast<std::int16_t>(base + 3)};
    values.set(kSections[i], L"X", std::to_wstring(expected[i].x));
    values.set(kSections[i], L"Y", std::to_wstring(expected[i].y));
    values.set(kSections[i], L"W", std::to_wstring(expected[i].width));
    values.set(kSections[i], L"H", std::to_wstring(expected[i].height));
  }
  EXPECT_EQ(read(values).buttons, expected);
}

TEST(SkinDescription, everyFontKeyIsReadIntoItsPlace) {
  FakeSkinValues values;
  const std::array<const wchar_t*, 14> keys = {L"Cell Width",
                                               L"Cell Height",
                                               L"Scrool, X",
                                               L"Scrool, Y",
                                               L"Scrool, Length",
                                               L"File Date/Time, X",
                                               L"File Date/Time, Y",
                                               L"File Date/Time, Length",
                                               L"Current Date, X",
                                               L"Current Date, Y",
                                               L"Current Date, Length",
                                               L"x of n, X",
                                               L"x of n, Y",
                                               L"x of n, Length"};
  for (std::size_t i = 0; i < keys.size(); ++i) {
    values.set(L"Graphic Text", keys[i], std::to_wstring(100 + i));
  }
  const SkinDescription description = read(values);
  EXPECT_EQ(description.cellWidth, 100);
  EXPECT_EQ(description.cellHeight, 101);
  EXPECT_EQ(description.row(RowId::lit), (RowPlace{102, 103, 104}));
  EXPECT_EQ(description.row(RowId::lit_czas), (RowPlace{105, 106, 107}));
  EXPECT_EQ(description.row(RowId::lit_czas2), (RowPlace{108, 109, 110}));
  EXPECT_EQ(description.row(RowId::lit_xof), (RowPlace{111, 112, 113}));
}

TEST(SkinDescription, colorsPutRedInTheLowByte) {
  FakeSkinValues values;
  values.set(L"Note Text", L"Text color, R", L"1");
  values.set(L"Note Text", L"Text color, G", L"2");
  values.set(L"Note Text", L"Text color, B", L"3");
  values.set(L"Note Text", L"Background color, R", L"255");
  values.set(L"Note Text", L"Background color, G", L"128");
  values.set(L"Note Text", L"Background color, B", L"64");
  const SkinDescription description = read(values);
  EXPECT_EQ(description.field(FieldId::Text2).textColor, 0x030201U);
  EXPECT_EQ(description.field(FieldId::Text2).backgroundColor, 0x4080FFU);
}

TEST(SkinDescription, aColorPartBeyondItsRangeTakesTheNearestEnd) {
  FakeSkinValues values;
  values.set(L"Note Title", L"Text color, R", L"300");
  values.set(L"Note Title", L"Text color, G", L"-5");
  EXPECT_EQ(read(values).field(FieldId::Text1).textColor, 0x0000FFU);
}

TEST(SkinDescription, theLabelOfTheHalfDayHasNoBackgroundWhateverTheFileSays) {
  FakeSkinValues values;
  values.set(L"Note AmPm", L"Background color, R", L"9");
  values.set(L"Note AmPm", L"Background color, G", L"9");
  values.set(L"Note AmPm", L"Background color, B", L"9");
  values.set(L"Note AmPm", L"Text color, G", L"7");
  const SkinDescription description = read(values);
  EXPECT_EQ(description.field(FieldId::AmPmLabel).backgroundColor, std::nullopt);
  EXPECT_EQ(description.field(FieldId::AmPmLabel).textColor, 0x000700U);
  for (const auto& [section, key] : values.asked()) {
    EXPECT_FALSE(section == L"Note AmPm" && key.starts_with(L"Background"));
  }
}

TEST(SkinDescription, placesOfTheFieldsMayHaveFractions) {
  FakeSkinValues values;
  values.set(L"Note Alarm", L"X", L"12.25");
  values.set(L"Note Alarm", L"Y", L"-3.5");
  values.set(L"Note Alarm", L"W", L"40000");
  const SkinDescription description = read(values);
  EXPECT_FLOAT_EQ(description.field(FieldId::Text3).left, 12.25F);
  EXPECT_FLOAT_EQ(description.field(FieldId::Text3).top, -3.5F);
  EXPECT_FLOAT_EQ(description.field(FieldId::Text3).width, 40000.0F);
}

TEST(SkinDescription, aFractionOfAButtonPlaceIsRoundedHalvesToEven) {
  FakeSkinValues values;
  values.set(L"New", L"X", L"2.5");
  values.set(L"New", L"Y", L"3.5");
  EXPECT_EQ(read(values).button(ButtonId::Buttons_main_01), (ButtonPlace{2, 4, 1, 1}));
}

TEST(SkinDescription, aTextThatIsNoNumberTakesTheDefaultOfItsKeyAlone) {
  FakeSkinValues values;
  values.set(L"Minimize", L"X", L"ten");
  values.set(L"Minimize", L"Y", L"20");
  values.set(L"Graphic Text", L"Cell Width", L"5px");
  values.set(L"Note Title", L"X", L"left");
  values.set(L"Note Title", L"Y", L"7");
  values.set(L"Note Title", L"Text color, R", L"red");
  values.set(L"Note Title", L"Text color, G", L"1");
  const SkinDescription description = read(values);
  EXPECT_EQ(description.button(ButtonId::Buttons_Close), (ButtonPlace{163, 20, 15, 15}));
  EXPECT_EQ(description.cellWidth, 5);
  EXPECT_EQ(description.field(FieldId::Text1), (FieldLook{10, 7, 10, 10, 0x000100, 0U}));
}

TEST(SkinDescription, aNumberThatItsPlaceCannotHoldTakesTheDefault) {
  FakeSkinValues values;
  values.set(L"Fast Delete", L"X", L"32768");
  values.set(L"Fast Delete", L"Y", L"-32769");
  values.set(L"Fast Delete", L"W", L"32767");
  values.set(L"Fast Delete", L"H", L"-32768");
  values.set(L"Note Text", L"X", L"1e39");
  const SkinDescription description = read(values);
  EXPECT_EQ(description.button(ButtonId::Buttons_Delete), (ButtonPlace{150, 5, 32767, -32768}));
  EXPECT_FLOAT_EQ(description.field(FieldId::Text2).left, 10.0F);
}

TEST(SkinDescription, anEmptyValueTakesTheDefault) {
  FakeSkinValues values;
  values.set(L"Save", L"W", L"");
  EXPECT_EQ(read(values).button(ButtonId::Buttons_main_02).width, 1);
}

TEST(SkinDescription, theFileIsTheIniOfTheSkinFolder) {
  FakeSkinValues values;
  Odczytaj_ini(values, std::filesystem::path("skins") / "two");
  EXPECT_EQ(values.file(), std::filesystem::path("skins") / "two" / "config.ini");
}

TEST(SkinDescription, aFaceIsPlacedWhereBothItsButtonsHaveASize) {
  FakeSkinValues values;
  EXPECT_FALSE(read(values).placesFace());
  for (const wchar_t* section : {L"Snooze", L"Done"}) {
    for (const wchar_t* key : {L"W", L"H"}) values.set(section, key, L"1");
  }
  EXPECT_TRUE(read(values).placesFace());
  for (const wchar_t* section : {L"Snooze", L"Done"}) {
    for (const wchar_t* key : {L"W", L"H"}) {
      for (const wchar_t* size : {L"0", L"-3", L"wide", L""}) {
        FakeSkinValues others = values;
        others.set(section, key, size);
        EXPECT_FALSE(read(others).placesFace());
      }
    }
  }
}

TEST(SkinDescription, theKeysAreReadInTheOrderOfTheFormat) {
  FakeSkinValues values;
  read(values);
  std::vector<std::pair<std::wstring, std::wstring>> expected;
  const auto expectPlaces = [&](std::size_t first, std::size_t last) {
    for (std::size_t i = first; i < last; ++i) {
      for (const wchar_t* key : {L"X", L"Y", L"W", L"H"}) expected.emplace_back(kSections[i], key);
    }
  };
  expectPlaces(0, kFirstOfFace);
  for (const wchar_t* key :
       {L"Cell Width", L"Cell Height", L"Scrool, X", L"Scrool, Y", L"Scrool, Length",
        L"File Date/Time, X", L"File Date/Time, Y", L"File Date/Time, Length", L"Current Date, X",
        L"Current Date, Y", L"Current Date, Length", L"x of n, X", L"x of n, Y",
        L"x of n, Length"}) {
    expected.emplace_back(L"Graphic Text", key);
  }
  for (const wchar_t* section : {L"Note Title", L"Note Text", L"Note Alarm", L"Note AmPm"}) {
    for (const wchar_t* key :
         {L"X", L"Y", L"W", L"H", L"Text color, R", L"Text color, G", L"Text color, B",
          L"Background color, R", L"Background color, G", L"Background color, B"}) {
      const bool label = std::wstring_view(section) == L"Note AmPm";
      const bool ground = std::wstring_view(key).starts_with(L"Background");
      if (!(label && ground)) expected.emplace_back(section, key);
    }
  }
  expectPlaces(kFirstOfFace, kButtonCount);
  EXPECT_EQ(values.asked(), expected);
}

}  // namespace
}  // namespace kalvora
