#include "notes/NoteFields.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

const std::wstring kMissing(1, L'\0');

template <typename Fields>
Fields read(NoteKind kind, std::string_view bytes) {
  return std::get<Fields>(readFields(kind, bytes, Windows1252()));
}

TEST(NoteFields, dailyAndFastNotesHoldATimeAndTheContent) {
  for (const NoteKind kind : {NoteKind::Daily, NoteKind::Fast}) {
    EXPECT_EQ(read<ClockFields>(kind, "7|05|Gym"), (ClockFields{L"7", L"05", L"Gym"}));
  }
}

TEST(NoteFields, weeklyNoteAtHalfPastSevenOnMondayAndFriday) {
  const std::string_view bytes = "7|30|0|1|0|0|0|1|0|Gym";
  EXPECT_EQ(bytes.size(), 22U);
  EXPECT_EQ(read<WeeklyFields>(NoteKind::Weekly, bytes),
            (WeeklyFields{L"7", L"30", {L"0", L"1", L"0", L"0", L"0", L"1", L"0"}, L"Gym"}));
}

TEST(NoteFields, monthlyNoteHoldsADayAndTwoNumbersOfDays) {
  EXPECT_EQ(read<MonthlyFields>(NoteKind::Monthly, "31|21|7|Rent"),
            (MonthlyFields{L"31", L"21", L"7", L"Rent"}));
}

TEST(NoteFields, yearlyNoteHoldsADayAMonthAndTwoNumbersOfDays) {
  EXPECT_EQ(read<YearlyFields>(NoteKind::Yearly, "24|11|3|1|Presents"),
            (YearlyFields{L"24", L"11", L"3", L"1", L"Presents"}));
  EXPECT_EQ(read<YearlyFields>(NoteKind::Yearly, "24|-1|||").month, L"-1");
}

TEST(NoteFields, noteForOneDateHoldsTheDateWithItsMonthFromOneAndATime) {
  EXPECT_EQ(read<OnceFields>(NoteKind::Once, "2026|11|22|7|05|Dentist"),
            (OnceFields{L"2026", L"11", L"22", L"7", L"05", L"Dentist"}));
}

TEST(NoteFields, fileThatEndsEarlyLeavesOneNulCharacterInEachFieldAfterIt) {
  EXPECT_EQ(read<ClockFields>(NoteKind::Daily, ""), (ClockFields{kMissing, kMissing, kMissing}));
  EXPECT_EQ(read<YearlyFields>(NoteKind::Yearly, "24|11"),
            (YearlyFields{L"24", L"11", kMissing, kMissing, kMissing}));
  const auto weekly = read<WeeklyFields>(NoteKind::Weekly, "7|30|0|1");
  EXPECT_EQ(weekly.weekdays[1], L"1");
  EXPECT_EQ(weekly.weekdays[2], kMissing);
  EXPECT_EQ(weekly.content, kMissing);
}

TEST(NoteFields, textsAreKeptAsTheyAreStored) {
  EXPECT_EQ(read<ClockFields>(NoteKind::Fast, " 07 |x y| \r\n"),
            (ClockFields{L" 07 ", L"x y", L" \r\n"}));
}

TEST(NoteFields, emptyFieldsOfEveryKindAreEmptyInTheKindsOwnNumber) {
  const std::vector<std::size_t> counts = {3, 10, 4, 5, 3, 6};
  for (const NoteKind kind : kNoteKinds) {
    NoteFields fields = emptyFields(kind);
    const auto texts = inFileOrder(fields);
    EXPECT_EQ(texts.size(), counts[static_cast<std::size_t>(kind)]);
    for (const std::wstring* text : texts) EXPECT_EQ(*text, L"");
  }
}

TEST(WeekdayFlags, emptyAndLongFieldsCountAsNotTicked) {
  EXPECT_EQ(weekdayFlag(L""), L"0");
  EXPECT_EQ(weekdayFlag(L"11"), L"0");
  EXPECT_EQ(weekdayFlag(L" 1"), L"0");
  EXPECT_EQ(weekdayFlag(L"true"), L"0");
}

TEST(WeekdayFlags, oneCharacterStandsAsItIs) {
  EXPECT_EQ(weekdayFlag(L"0"), L"0");
  EXPECT_EQ(weekdayFlag(L"1"), L"1");
  EXPECT_EQ(weekdayFlag(L"x"), L"x");
  EXPECT_EQ(weekdayFlag(kMissing), kMissing);
}

TEST(WeekdayFlags, missingEmptyLongAndOtherFieldsGiveTheState0) {
  EXPECT_EQ(weekdayState(L"1"), 1);
  EXPECT_EQ(weekdayState(L"0"), 0);
  EXPECT_EQ(weekdayState(L"2"), 2);
  for (const std::wstring& text :
       {std::wstring(), std::wstring(L"11"), kMissing, std::wstring(L"x")}) {
    EXPECT_EQ(weekdayState(text), 0);
  }
}

}  // namespace
}  // namespace kalvora
