#include "coming/ComingRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "alarms/Occurrences.h"

namespace kalvora {
namespace {

using namespace std::chrono;

constexpr local_days kToday{2026y / November / 23};  // a Monday
constexpr std::uint8_t kTuesdays = 1U << 2U;

LocalMinute at(local_days day, int hour, int minute) {
  return day + hours(hour) + minutes(minute);
}

struct NoteAndRule {
  std::wstring name;
  DueRule rule;
};

/// The rows of some notes, as the day and the time are read on the wall.
class ComingRowsTest : public testing::Test {
 protected:
  void give(std::vector<NoteAndRule> notes, local_days first = kToday) {
    FolderListing::Builder builder;
    for (const NoteAndRule& note : notes) builder.add(note.name);
    const auto listing = std::make_shared<const FolderListing>(builder.build());
    notes_ = ComingNotes(listing, first);
    for (std::size_t place = 0; place < listing->size(); ++place) {
      const auto note = std::ranges::find(notes, listing->name(place), &NoteAndRule::name);
      notes_.add(place, *kindOfFileName(note->name, kNoteKinds), note->rule);
    }
  }
  void show(ComingSpan span, LocalMinute now = at(kToday, 8, 0)) {
    rows_.show(marks_, kNoteKinds, now, daysOf(span, notes_.first()));
  }
  std::vector<std::wstring> texts() {
    std::vector<std::wstring> all;
    for (std::size_t i = 0; i < rows_.count(); ++i) {
      const ComingRow row = rows_.row(i);
      std::wstring text = momentToText(row.moment);
      if (row.allDay) text.resize(text.find(L' '));
      text += L" " + row.fileName;
      if (row.state == ComingState::Snoozed) text += L" snoozed";
      if (row.state == ComingState::Missed) text += L" missed";
      all.push_back(text);
    }
    return all;
  }

  ComingNotes notes_;
  ComingMarks marks_;
  ComingRows rows_{notes_};
};

using Texts = std::vector<std::wstring>;

DueRule daily(int hour, int minute) {
  return {.time = hours(hour) + minutes(minute)};
}

TEST_F(ComingRowsTest, eachDayHasItsMomentsByTime) {
  give({{L"Gym.tx1", daily(18, 30)}, {L"Bread.tx1", daily(7, 5)}});
  rows_.show(marks_, kNoteKinds, at(kToday, 6, 0), 2);
  EXPECT_EQ(texts(), (Texts{L"2026-11-23 07:05 Bread.tx1", L"2026-11-23 18:30 Gym.tx1",
                            L"2026-11-24 07:05 Bread.tx1", L"2026-11-24 18:30 Gym.tx1"}));
}

TEST_F(ComingRowsTest, ofTodayOnlyWhatComesFromThisMinuteOn) {
  give({{L"Now.tx1", daily(8, 0)}, {L"Past.tx1", daily(7, 59)}, {L"Rent.tx3", {}}});
  show(ComingSpan::Today);
  EXPECT_EQ(texts(), (Texts{L"2026-11-23 Rent.tx3", L"2026-11-23 08:00 Now.tx1"}));
}

TEST_F(ComingRowsTest, whatIsDueOnADayAsAWholeIsFirstInIt) {
  give({{L"Midnight.tx1", daily(0, 0)}, {L"Zero.tx4", {.days = 1U << 24U}}});
  show(ComingSpan::Week);
  EXPECT_EQ(texts().at(0), L"2026-11-24 Zero.tx4");
  EXPECT_EQ(texts().at(1), L"2026-11-24 00:00 Midnight.tx1");
}

TEST_F(ComingRowsTest, atTheSameMinuteByName) {
  give({{L"b.tx1", daily(9, 0)}, {L"A.txt", daily(9, 0)}, {L"C.tx1", daily(9, 0)}});
  show(ComingSpan::Today);
  EXPECT_EQ(texts(), (Texts{L"2026-11-23 09:00 A.txt", L"2026-11-23 09:00 b.tx1",
                            L"2026-11-23 09:00 C.tx1"}));
}

TEST_F(ComingRowsTest, weeklyNotesComeOnTheirDays) {
  give({{L"Bins.tx2", {.time = hours(7), .weekdays = kTuesdays}}});
  show(ComingSpan::Month);
  EXPECT_EQ(texts(), (Texts{L"2026-11-24 07:00 Bins.tx2", L"2026-12-01 07:00 Bins.tx2",
                            L"2026-12-08 07:00 Bins.tx2", L"2026-12-15 07:00 Bins.tx2",
                            L"2026-12-22 07:00 Bins.tx2"}));
}

TEST_F(ComingRowsTest, aYearOverALeapDay) {
  const local_days first{2027y / March / 1};
  give({{L"Leap.tx4", {.days = 1U << 29U, .months = 1U << 2U}}}, first);
  rows_.show(marks_, kNoteKinds, first, daysOf(ComingSpan::Year, first));
  EXPECT_EQ(texts(), Texts{L"2028-02-29 Leap.tx4"});
}

TEST_F(ComingRowsTest, theEndOfAMonthIsNotTheSameInEach) {
  give({{L"End.tx3", {.days = 1U << 31U}}});
  show(ComingSpan::Year);
  EXPECT_EQ(texts(), (Texts{L"2026-12-31 End.tx3", L"2027-01-31 End.tx3", L"2027-03-31 End.tx3",
                            L"2027-05-31 End.tx3", L"2027-07-31 End.tx3", L"2027-08-31 End.tx3",
                            L"2027-10-31 End.tx3"}));
}

// Moments are those of the clock on the wall: the day on which an hour is left out, or comes twice,
// has each note once.
TEST_F(ComingRowsTest, aDayOnWhichTheClockIsTurnedHasEachMomentOnce) {
  const local_days spring{2027y / March / 28};
  give({{L"Night.tx1", daily(2, 30)}}, spring - days(1));
  rows_.show(marks_, kNoteKinds, spring - days(1), 3);
  EXPECT_EQ(texts(), (Texts{L"2027-03-27 02:30 Night.tx1", L"2027-03-28 02:30 Night.tx1",
                            L"2027-03-29 02:30 Night.tx1"}));
}

TEST_F(ComingRowsTest, theRowsAreTheMomentsOfTheEngine) {
  const DueRule rule{.time = hours(8), .weekdays = kTuesdays | 1U, .months = 0x1554};
  give({{L"Odd.tx2", rule}});
  show(ComingSpan::Year);
  const auto moments = occurrences(rule, at(kToday, 8, 0), kToday + days(365));
  ASSERT_EQ(rows_.count(), moments.size());
  for (std::size_t i = 0; i < moments.size(); ++i) EXPECT_EQ(rows_.row(i).moment, moments[i]);
}

TEST_F(ComingRowsTest, whatWasMissedStandsFirst) {
  give({{L"Gym.tx1", daily(18, 30)}});
  marks_.missed = {{at(kToday - days(2), 7, 0), L"Old.tx1"}, {at(kToday, 7, 30), L"Late.tx1"}};
  show(ComingSpan::Today);
  EXPECT_EQ(texts(), (Texts{L"2026-11-21 07:00 Old.tx1 missed", L"2026-11-23 07:30 Late.tx1 missed",
                            L"2026-11-23 18:30 Gym.tx1"}));
}

TEST_F(ComingRowsTest, whatIsSnoozedStandsWhereItComesAgain) {
  give({{L"Gym.tx1", daily(18, 30)}, {L"Rent.tx3", {.days = 1U << 23U}}});
  marks_.snoozed = {{at(kToday, 8, 10), L"Rent.tx3"}, {at(kToday + days(1), 7, 0), L"Gym.tx1"}};
  rows_.show(marks_, kNoteKinds, at(kToday, 8, 0), 2);
  EXPECT_EQ(texts(), (Texts{L"2026-11-23 Rent.tx3", L"2026-11-23 08:10 Rent.tx3 snoozed",
                            L"2026-11-23 18:30 Gym.tx1", L"2026-11-24 07:00 Gym.tx1 snoozed",
                            L"2026-11-24 18:30 Gym.tx1"}));
}

TEST_F(ComingRowsTest, aMomentThatIsMarkedIsThereOnce) {
  give({{L"Now.tx1", daily(8, 0)}, {L"Rent.tx3", {.days = 1U << 23U}}});
  marks_.missed = {{at(kToday, 8, 0), L"Now.tx1"}, {at(kToday, 6, 1), L"Rent.tx3"}};
  show(ComingSpan::Today);
  EXPECT_EQ(texts(), (Texts{L"2026-11-23 Rent.tx3 missed", L"2026-11-23 08:00 Now.tx1 missed"}));
}

TEST_F(ComingRowsTest, marksOfKindsThatTheUserHasNotAreLeftOut) {
  give({});
  marks_.missed = {{at(kToday, 7, 0), L"Trip.tx5"}};
  rows_.show(marks_, NoteKinds(kNoteKinds).first(5), at(kToday, 8, 0), 1);
  EXPECT_EQ(rows_.count(), 0U);
}

TEST_F(ComingRowsTest, theFirstRowOfADay) {
  give({{L"Bins.tx2", {.time = hours(7), .weekdays = kTuesdays}}, {L"Gym.tx1", daily(18, 30)}});
  show(ComingSpan::Week);
  EXPECT_EQ(rows_.firstOf(kToday), 0U);
  EXPECT_EQ(rows_.firstOf(kToday + days(1)), 1U);
  EXPECT_EQ(rows_.firstOf(kToday + days(2)), 3U);
  EXPECT_EQ(rows_.firstOf(kToday + days(7)), std::nullopt);
  EXPECT_EQ(rows_.firstOf(kToday - days(1)), std::nullopt);
}

TEST_F(ComingRowsTest, aRowIsFoundAgainWhereverItIs) {
  give({{L"Bread.tx1", daily(8, 0)}, {L"Gym.tx1", daily(18, 30)}});
  show(ComingSpan::Week);
  const ComingRow row = rows_.row(2);
  EXPECT_EQ(rows_.find(row), 2U);
  show(ComingSpan::Week, at(kToday, 8, 1));
  EXPECT_EQ(rows_.find(row), 1U);
  EXPECT_EQ(rows_.row(1), row);
  ComingRow gone = row;
  gone.fileName = L"Other.tx1";
  EXPECT_EQ(rows_.find(gone), std::nullopt);
}

TEST_F(ComingRowsTest, aDayBeyondTheSpanHasSomethingOfTheYear) {
  give({{L"Bins.tx2", {.time = hours(7), .weekdays = kTuesdays}}});
  show(ComingSpan::Today);
  EXPECT_FALSE(rows_.hasAny(kToday));
  EXPECT_TRUE(rows_.hasAny(kToday + days(1)));
  EXPECT_TRUE(rows_.hasAny(kToday + days(358)));
  EXPECT_FALSE(rows_.hasAny(kToday + days(365)));
  EXPECT_FALSE(rows_.hasAny(kToday + days(372)));
  EXPECT_FALSE(rows_.hasAny(kToday - days(6)));
}

TEST_F(ComingRowsTest, manyRowsAreLookedAtWhereverTheyAre) {
  std::vector<NoteAndRule> many;
  for (int i = 0; i < 300; ++i) {
    many.push_back({L"Note " + std::to_wstring(1000 + i) + L".tx1", daily(i % 24, i % 60)});
  }
  give(std::move(many));
  show(ComingSpan::Year, kToday);
  ASSERT_EQ(rows_.count(), 300U * 365);
  EXPECT_EQ(rows_.row(0).moment, at(kToday, 0, 0));
  EXPECT_EQ(rows_.row(rows_.count() - 1).day(), kToday + days(364));
  EXPECT_EQ(rows_.firstOf(kToday + days(100)), 30'000U);
  // More than are kept at a time, there and back.
  for (std::size_t day = 0; day < 365; ++day)
    EXPECT_EQ(rows_.row(day * 300).day(), kToday + days(day));
  EXPECT_EQ(rows_.row(0).moment, at(kToday, 0, 0));
}

}  // namespace
}  // namespace kalvora
