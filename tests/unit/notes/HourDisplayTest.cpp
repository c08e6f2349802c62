#include "notes/HourDisplay.h"

#include <gtest/gtest.h>

#include "base/Errors.h"

namespace kalvora {
namespace {

ShownHour shown12(std::wstring_view stored) {
  return shownHour(stored, HourFormat::Hours12);
}

TEST(HourDisplay, zeroToTwelveAreAmUnchanged) {
  for (int hour = 0; hour <= 12; ++hour) {
    const std::wstring text = std::to_wstring(hour);
    EXPECT_EQ(shown12(text), (ShownHour{text, HalfOfDay::Am}));
  }
}

TEST(HourDisplay, aMorningHourIsShownWithTheNoughtsThatItIsStoredWith) {
  EXPECT_EQ(shown12(L"07"), (ShownHour{L"07", HalfOfDay::Am}));
  EXPECT_EQ(shown12(L"012"), (ShownHour{L"012", HalfOfDay::Am}));
  EXPECT_EQ(shown12(L"013"), (ShownHour{L"1", HalfOfDay::Pm}));
}

TEST(HourDisplay, thirteenAndMoreArePmAndTwelveLess) {
  for (int hour = 13; hour <= 24; ++hour) {
    EXPECT_EQ(shown12(std::to_wstring(hour)),
              (ShownHour{std::to_wstring(hour - 12), HalfOfDay::Pm}));
  }
}

TEST(HourDisplay, twelveAndTwentyFourAreKeptApart) {
  EXPECT_EQ(shown12(L"12"), (ShownHour{L"12", HalfOfDay::Am}));
  EXPECT_EQ(shown12(L"24"), (ShownHour{L"12", HalfOfDay::Pm}));
  EXPECT_EQ(storedHour(L"12", HalfOfDay::Am, HourFormat::Hours12), L"12");
  EXPECT_EQ(storedHour(L"12", HalfOfDay::Pm, HourFormat::Hours12), L"24");
  EXPECT_EQ(shown12(L"0"), (ShownHour{L"0", HalfOfDay::Am}));
}

TEST(HourDisplay, everyHourIsStoredAsItWasShown) {
  for (const HourFormat format : {HourFormat::Hours12, HourFormat::Hours24}) {
    for (int hour = 0; hour <= 24; ++hour) {
      const std::wstring stored = std::to_wstring(hour);
      const ShownHour shown = shownHour(stored, format);
      EXPECT_EQ(storedHour(shown.hour, shown.half.value_or(HalfOfDay::Pm), format), stored);
    }
  }
}

TEST(HourDisplay, emptyHourStaysEmptyWithoutAHalfOfTheDay) {
  EXPECT_EQ(shown12(L""), (ShownHour{L"", std::nullopt}));
  EXPECT_EQ(shownHour(L"", HourFormat::Hours24), (ShownHour{L"", std::nullopt}));
  EXPECT_EQ(storedHour(L"", HalfOfDay::Pm, HourFormat::Hours12), L"");
}

TEST(HourDisplay, twentyFourHourDisplayShowsAnyTextAsItIs) {
  for (const wchar_t* text : {L"0", L"07", L"13", L"24", L"99999", L"seven"}) {
    EXPECT_EQ(shownHour(text, HourFormat::Hours24), (ShownHour{text, std::nullopt}));
  }
}

TEST(HourDisplay, storedHoursAreNormalised) {
  EXPECT_EQ(storedHour(L"07", HalfOfDay::Am, HourFormat::Hours12), L"7");
  EXPECT_EQ(storedHour(L"07", HalfOfDay::Am, HourFormat::Hours24), L"7");
  EXPECT_EQ(storedHour(L" 7 ", HalfOfDay::Pm, HourFormat::Hours12), L"19");
}

TEST(HourDisplay, halfOfTheDayDoesNotCountIn24HourDisplay) {
  EXPECT_EQ(storedHour(L"7", HalfOfDay::Pm, HourFormat::Hours24), L"7");
}

TEST(HourDisplay, hourThatIsNoNumberIsAConversionError) {
  for (const std::wstring& text : {std::wstring(L"seven"), std::wstring(1, L'\0'),
                                   std::wstring(L" "), std::wstring(L"7:30")}) {
    EXPECT_THROW(shown12(text), ConversionError);
    EXPECT_THROW(storedHour(text, HalfOfDay::Am, HourFormat::Hours24), ConversionError);
  }
}

TEST(HourDisplay, hourBeyond16BitsOverflows) {
  EXPECT_THROW(shown12(L"99999"), OverflowError);
  EXPECT_THROW(storedHour(L"99999", HalfOfDay::Am, HourFormat::Hours24), OverflowError);
  EXPECT_THROW(storedHour(L"32760", HalfOfDay::Pm, HourFormat::Hours12), OverflowError);
}

TEST(HourDisplay, settingAmPmSwitches) {
  EXPECT_EQ(hourFormatOf(true), HourFormat::Hours12);
  EXPECT_EQ(hourFormatOf(false), HourFormat::Hours24);
}

TEST(HourDisplay, aRefusedHourIsNamedAsOne) {
  for (const wchar_t* hour : {L"38400", L"32767", L"seven"}) {
    try {
      storedHour(hour, HalfOfDay::Pm, HourFormat::Hours12);
      FAIL() << "no error";
    } catch (const Failure& failure) {
      EXPECT_TRUE(failure.message().starts_with(L"The hour of the note's alarm: "));
    }
  }
}

}  // namespace
}  // namespace kalvora
