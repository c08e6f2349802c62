#include "notes/NoteWriter.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "notes/NoteKind.h"

namespace kalvora {
namespace {

const Windows1252 kLatinPage;

std::string saved12(std::wstring_view time, HalfOfDay half) {
  return fastNoteBytes(time, L"x", half, HourFormat::Hours12, kLatinPage);
}

std::string saved24(std::wstring_view time) {
  return fastNoteBytes(time, L"x", HalfOfDay::Pm, HourFormat::Hours24, kLatinPage);
}

std::string savedText(std::wstring_view text) {
  return fastNoteBytes(L"", text, HalfOfDay::Am, HourFormat::Hours12, kLatinPage);
}

TEST(NoteWriter, aTimeBecomesTwoFieldsBeforeTheText) {
  EXPECT_EQ(saved12(L"7:30", HalfOfDay::Am), "7|30|x");
  EXPECT_EQ(saved24(L"19:30"), "19|30|x");
}

TEST(NoteWriter, anEmptyTimeBecomesTwoEmptyFields) {
  EXPECT_EQ(saved12(L"", HalfOfDay::Am), "||x");
  EXPECT_EQ(saved12(L"", HalfOfDay::Pm), "||x");
  EXPECT_EQ(saved24(L""), "||x");
}

TEST(NoteWriter, twelveIsAddedAtPmWithTwelveHourTimeOnly) {
  EXPECT_EQ(saved12(L"7:30", HalfOfDay::Pm), "19|30|x");
  EXPECT_EQ(saved24(L"7:30"), "7|30|x");
}

TEST(NoteWriter, twelveAtPmIsStoredAs24AndTwelveAtAmAs12) {
  EXPECT_EQ(saved12(L"12:00", HalfOfDay::Pm), "24|00|x");
  EXPECT_EQ(saved12(L"12:00", HalfOfDay::Am), "12|00|x");
  EXPECT_EQ(saved12(L"0:15", HalfOfDay::Am), "0|15|x");
}

TEST(NoteWriter, theHourLosesItsLeadingNoughtsAndTheMinuteKeepsThem) {
  EXPECT_EQ(saved12(L"07:05", HalfOfDay::Am), "7|05|x");
  EXPECT_EQ(saved24(L"007:005"), "7|005|x");
}

TEST(NoteWriter, aTimeWithoutAColonIsAnHourWithoutAMinute) {
  EXPECT_EQ(saved24(L"7"), "7||x");
  EXPECT_EQ(saved12(L"7", HalfOfDay::Pm), "19||x");
}

TEST(NoteWriter, aPartBesideTheColonMayBeMissing) {
  EXPECT_EQ(saved24(L"7:"), "7||x");
  EXPECT_EQ(saved24(L":30"), "|30|x");
  EXPECT_EQ(saved24(L":"), "||x");
}

TEST(NoteWriter, aSecondColonIsRefusedRatherThanCutOff) {
  for (const wchar_t* time : {L"7:30:15", L"7::30", L":::"}) {
    EXPECT_THROW(saved24(time), ConversionError);
  }
}

TEST(NoteWriter, anHourTooLargeForItsPlaceOverflows) {
  EXPECT_THROW(saved24(L"40000:00"), OverflowError);
  EXPECT_THROW(saved12(L"32760:00", HalfOfDay::Pm), OverflowError);
  EXPECT_EQ(saved12(L"32760:00", HalfOfDay::Am), "32760|00|x");
}

TEST(NoteWriter, aTimeThatIsNoNumberIsRefused) {
  for (const wchar_t* time : {L"x", L"7:3x", L"7|30", L" :30", L"7:|", L"-7:30", L"1e1:0"}) {
    EXPECT_THROW(saved24(time), ConversionError) << std::wstring(time).size();
  }
}

TEST(NoteWriter, aLoneLineFeedBecomesAWindowsLineEnd) {
  EXPECT_EQ(savedText(L"a\nb"), "||a\r\nb");
  EXPECT_EQ(savedText(L"\n"), "||\r\n");
  EXPECT_EQ(savedText(L"a\n\nb"), "||a\r\n\r\nb");
}

TEST(NoteWriter, aWindowsLineEndStaysAsItIs) {
  EXPECT_EQ(savedText(L"a\r\nb\r\n\r\n"), "||a\r\nb\r\n\r\n");
  EXPECT_EQ(savedText(L"a\r"), "||a\r");
}

TEST(NoteWriter, aSeparatorInTheTextIsWrittenAsItIs) {
  EXPECT_EQ(savedText(L"a|b"), "||a|b");
}

TEST(NoteWriter, theTextIsWrittenInTheCodePage) {
  EXPECT_EQ(savedText(L"\u20AC\u00E9\u0141"), "||\x80\xE9?");
}

TEST(NoteWriter, aNoteOfTheLargestSizeIsSavedAndAByteMoreIsRefusedByName) {
  EXPECT_NO_THROW(requireNoteSize(L"Gym.txt", std::string(32767, 'a')));
  try {
    requireNoteSize(L"Gym.txt", std::string(32768, 'a'));
    FAIL() << "a note that could not be opened again";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.message(),
              L"This note is too large to be saved, it takes 32768 bytes, and a note can hold "
              L"32767: Gym.txt");
  }
}

TEST(NoteWriter, theSizeCountsTheLineEndsAsTheyAreWritten) {
  EXPECT_EQ(savedText(std::wstring(16382, L'\n')).size(), 32766U);
  EXPECT_EQ(savedText(std::wstring(16383, L'\n')).size(), 32768U);
}

TEST(NoteWriter, aWeeklyNoteIsItsFieldsWithSeparatorsBetween) {
  const WeeklyFields gym{L"7", L"30", {L"0", L"1", L"0", L"0", L"0", L"1", L"0"}, L"Gym"};
  EXPECT_EQ(joinFields(gym, kLatinPage), "7|30|0|1|0|0|0|1|0|Gym");
}

TEST(NoteWriter, theOtherKindsHaveTheirOwnLayouts) {
  EXPECT_EQ(joinFields(MonthlyFields{L"20", L"6", L"2", L"Rent"}, kLatinPage), "20|6|2|Rent");
  EXPECT_EQ(joinFields(YearlyFields{L"3", L"11", L"", L"", L"a\nb"}, kLatinPage), "3|11|||a\r\nb");
  EXPECT_EQ(joinFields(ClockFields{}, kLatinPage), "||");
}

}  // namespace
}  // namespace kalvora
