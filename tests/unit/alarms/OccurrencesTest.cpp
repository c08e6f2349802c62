#include "alarms/Occurrences.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakePlatform.h"

namespace kalvora {
namespace {

using namespace std::chrono;

LocalMinute at(int ofYear, unsigned ofMonth, unsigned ofDay, int hour = 0, int minute = 0) {
  return local_days(year{ofYear} / month{ofMonth} / day{ofDay}) + hours(hour) + minutes(minute);
}

using Moments = std::vector<LocalMinute>;

/// When a note of these bytes is due.
Moments due(NoteKind kind, const std::string& bytes, LocalMinute from, LocalMinute to) {
  const Windows1252 codePage;
  const std::optional<DueRule> rule = dueRuleOf(kind, bytes, codePage);
  return rule ? occurrences(*rule, from, to) : Moments{};
}

/// The days of a month of 2026 on which it is due.
std::vector<unsigned> daysIn(unsigned month, NoteKind kind, const std::string& bytes) {
  const LocalMinute end = month == 12 ? at(2027, 1, 1) : at(2026, month + 1, 1);
  std::vector<unsigned> days;
  for (const LocalMinute moment : due(kind, bytes, at(2026, month, 1), end)) {
    days.push_back(static_cast<unsigned>(year_month_day(floor<std::chrono::days>(moment)).day()));
  }
  return days;
}

using DaysOfMonth = std::vector<unsigned>;

TEST(Occurrences, dailyAndFastNotesAreDueEachDayAtTheirTime) {
  const Moments twice = {at(2026, 3, 2, 7, 5), at(2026, 3, 3, 7, 5)};
  EXPECT_EQ(due(NoteKind::Daily, "7|5|x", at(2026, 3, 2), at(2026, 3, 4)), twice);
  EXPECT_EQ(due(NoteKind::Fast, "07|05|x", at(2026, 3, 2), at(2026, 3, 4)), twice);
}

TEST(Occurrences, theSpanHasItsFirstMomentAndNotItsLast) {
  const Moments once = {at(2026, 3, 2, 7, 5)};
  EXPECT_EQ(due(NoteKind::Daily, "7|5|x", at(2026, 3, 2, 7, 5), at(2026, 3, 3, 7, 5)), once);
  EXPECT_EQ(due(NoteKind::Daily, "7|5|x", at(2026, 3, 2, 7, 4), at(2026, 3, 2, 7, 6)), once);
  EXPECT_EQ(due(NoteKind::Daily, "7|5|x", at(2026, 3, 2, 7, 6), at(2026, 3, 3, 7, 5)), Moments{});
  EXPECT_EQ(due(NoteKind::Daily, "7|5|x", at(2026, 3, 3), at(2026, 3, 1)), Moments{});
}

TEST(Occurrences, weeklyNotesAreDueOnTheirTickedWeekdays) {
  // 2 March 2026 is a Monday.
  EXPECT_EQ(due(NoteKind::Weekly, "7|30|0|1|0|0|0|1|0|Gym", at(2026, 3, 1), at(2026, 3, 8)),
            (Moments{at(2026, 3, 2, 7, 30), at(2026, 3, 6, 7, 30)}));
  EXPECT_EQ(due(NoteKind::Weekly, "7|30|0|0|0|0|0|0|0|", at(2026, 3, 1), at(2026, 4, 1)),
            Moments{});
}

TEST(Occurrences, notesForOneDateAreDueOnce) {
  const Moments once = {at(2026, 11, 22, 7, 5)};
  EXPECT_EQ(due(NoteKind::Once, "2026|11|22|7|5|x", at(2020, 1, 1), at(2032, 1, 1)), once);
  EXPECT_EQ(due(NoteKind::Once, "2026|011|22|07|05|x", at(2026, 11, 22), at(2026, 11, 23)), once);
  EXPECT_EQ(due(NoteKind::Once, "2026|11|22|7|5|x", at(2026, 11, 22, 7, 6), at(2032, 1, 1)),
            Moments{});
  EXPECT_EQ(due(NoteKind::Once, "2028|2|29|23|59|", at(2026, 1, 1), at(2032, 1, 1)),
            (Moments{at(2028, 2, 29, 23, 59)}));
}

TEST(Occurrences, aDateThatThereIsNotIsNeverDue) {
  for (const char* bytes :
       {"2026|2|31|7|5|x", "2027|2|29|7|5|x", "2026|13|1|7|5|x", "2026|0|1|7|5|x", "2026|4|0|7|5|x",
        "2026|4|32|7|5|x", "26|4|1|7|5|x", "1752|4|1|7|5|x", "10000|4|1|7|5|x",
        "99999999999|4|1|7|5|x", "-2026|4|1|7|5|x"}) {
    EXPECT_EQ(due(NoteKind::Once, bytes, at(1, 1, 1), at(2100, 1, 1)), Moments{}) << bytes;
  }
}

TEST(Occurrences, noFieldOfANoteForOneDateIsTakenForSomethingElse) {
  // What is missing is no January, no first, no midnight; a month is none from 0, no number is
  // rounded, and a time in one field is no hour and minute.
  for (const char* bytes : {"",
                            "|||||x",
                            "|11|22|7|5|x",
                            "2026||22|7|5|x",
                            "2026|11||7|5|x",
                            "2026|11|22||5|x",
                            "2026|11|22|7||x",
                            "2026|11|22|24|0|x",
                            "2026|11|22|7|60|x",
                            "2026|11|22|7",
                            "2026|11|22",
                            "2026|11|22.4|7|5|x",
                            "2026|11| 22|7|5|x",
                            "2026|+11|22|7|5|x",
                            "2026|11|2e1|7|5|x",
                            "2026|11|22|7:30|5|x",
                            "2026|11|22|9 7|5|x",
                            "2026|11|22|7|5-x|x",
                            "7|5|x",
                            "7|5|2026|11|22|x",
                            "22|11|2026|7|5|x"}) {
    EXPECT_EQ(due(NoteKind::Once, bytes, at(2000, 1, 1), at(2040, 1, 1)), Moments{}) << bytes;
  }
}

TEST(Occurrences, monthlyNotesAreDueOnTheirDayAndAheadOfIt) {
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "20|||pay"), (DaysOfMonth{20}));
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "20|6|2|pay"), (DaysOfMonth{8, 10, 12, 14, 16, 18, 20}));
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "2|3|1|pay"), (DaysOfMonth{1, 2, 30, 31}));
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "2|3|2|pay"), (DaysOfMonth{2, 27, 29}));
  EXPECT_EQ(daysIn(2, NoteKind::Monthly, "2|3|1|pay"), (DaysOfMonth{1, 2}));
  EXPECT_EQ(daysIn(4, NoteKind::Monthly, "31|||pay"), DaysOfMonth{});
}

TEST(Occurrences, yearlyNotesAreDueInTheirMonthOnly) {
  EXPECT_EQ(daysIn(1, NoteKind::Yearly, "2|0|3|1|birthday"), (DaysOfMonth{1, 2, 30, 31}));
  EXPECT_EQ(daysIn(2, NoteKind::Yearly, "2|0|3|1|birthday"), DaysOfMonth{});
  EXPECT_EQ(daysIn(12, NoteKind::Yearly, "24|11|||"), (DaysOfMonth{24}));
  EXPECT_EQ(daysIn(12, NoteKind::Yearly, "24|12|||"), DaysOfMonth{});
  EXPECT_EQ(daysIn(12, NoteKind::Yearly, "24||||"), DaysOfMonth{});
}

TEST(Occurrences, aLeapDayIsDueInLeapYears) {
  EXPECT_EQ(due(NoteKind::Yearly, "29|1|||", at(2026, 1, 1), at(2033, 1, 1)),
            (Moments{at(2028, 2, 29), at(2032, 2, 29)}));
}

TEST(Occurrences, aDayNoteIsDueOnceThoughItsStepsFallOnOneDayTwice) {
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "15|31|1|"), [] {
    DaysOfMonth all;
    for (unsigned day = 1; day <= 31; ++day) all.push_back(day);
    return all;
  }());
}

TEST(Occurrences, timesThatTheClockDoesNotHaveAreNeverDue) {
  for (const char* bytes : {"24|0|", "7|60|", "|30|", "7||", "|", "", "x|30|", "7|3x|", "-7|30|",
                            "7:30|45|", "7|30-5|", "99999|0|", "7"}) {
    EXPECT_EQ(due(NoteKind::Daily, bytes, at(2026, 3, 2), at(2026, 3, 4)), Moments{}) << bytes;
  }
}

TEST(Occurrences, theTimeIsReadAsTheTimeTableIs) {
  // What is no digit throws away those before it.
  EXPECT_EQ(due(NoteKind::Daily, "9 x7|1 5|", at(2026, 3, 2), at(2026, 3, 3)),
            (Moments{at(2026, 3, 2, 7, 5)}));
}

TEST(Occurrences, numbersThatCannotBeReadLeaveTheNoteOutWhereTheyAreNeeded) {
  EXPECT_EQ(due(NoteKind::Weekly, "7|30|1|1|1|1|1|1|no|", at(2026, 3, 1), at(2026, 3, 8)),
            Moments{});
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "x|3|1|"), DaysOfMonth{});
  EXPECT_EQ(daysIn(1, NoteKind::Yearly, "5|x|3|1|"), DaysOfMonth{});
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "5|x|1|"), (DaysOfMonth{5}));
  EXPECT_EQ(daysIn(1, NoteKind::Monthly, "1|3|x|"), (DaysOfMonth{1}));
}

TEST(Occurrences, aNoteTooLongToBeOpenedIsNeverDue) {
  const std::string longest = "7|5|" + std::string(kLargestNoteSize - 4, 'x');
  EXPECT_EQ(due(NoteKind::Daily, longest, at(2026, 3, 2), at(2026, 3, 3)).size(), 1U);
  EXPECT_EQ(due(NoteKind::Daily, longest + "x", at(2026, 3, 2), at(2026, 3, 3)), Moments{});
}

}  // namespace
}  // namespace kalvora
