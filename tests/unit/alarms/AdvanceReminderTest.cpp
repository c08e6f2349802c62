#include "alarms/AdvanceReminder.h"

#include <gtest/gtest.h>

#include <vector>

namespace kalvora {
namespace {

/// The days of the month on which a note of day D is queued, walked one step at a time: back a day
/// on a sheet of 31 days whose top goes on at its bottom, then back (every - 1) days for each day
/// walked, which may leave the sheet.
std::vector<int> walkedDays(int D, int B, int E) {
  std::vector<int> days;
  int onSheet = D;
  for (int k = 0; k <= B; ++k) {
    int x = onSheet;
    for (int i = 0; i < k; ++i) {
      for (int j = 1; j < E; ++j) --x;
    }
    days.push_back(x);
    onSheet = onSheet == 1 ? 31 : onSheet - 1;
  }
  return days;
}

int countOf(const std::vector<int>& days, int T) {
  int count = 0;
  for (const int day : days) count += day == T ? 1 : 0;
  return count;
}

/// All days of the month on which a note rings.
std::vector<int> ringingDays(std::int16_t D, std::int16_t B, std::int16_t E) {
  std::vector<int> days;
  for (int T = 31; T >= 1; --T) {
    if (advanceMatches(D, B, E, T) > 0) days.push_back(T);
  }
  return days;
}

using Days = std::vector<int>;

TEST(AdvanceReminder, agreesWithWalkingBackForEveryNoteAndEveryDayOfTheMonth) {
  for (std::int16_t D = 1; D <= 31; ++D) {
    for (std::int16_t B = 1; B <= 21; ++B) {
      for (std::int16_t E = 1; E <= 7; ++E) {
        const Days walked = walkedDays(D, B, E);
        for (int T = 1; T <= 31; ++T) {
          ASSERT_EQ(advanceMatches(D, B, E, T), countOf(walked, T))
              << "D " << D << " B " << B << " E " << E << " T " << T;
        }
      }
    }
  }
}

TEST(AdvanceReminder, day20SixDaysBeforeEveryTwoRingsOnEverySecondDayDownTo8) {
  EXPECT_EQ(ringingDays(20, 6, 2), (Days{20, 18, 16, 14, 12, 10, 8}));
}

TEST(AdvanceReminder, day2ThreeDaysBeforeEveryDayGoesOnAtTheEndOfTheMonth) {
  EXPECT_EQ(ringingDays(2, 3, 1), (Days{31, 30, 2, 1}));
}

TEST(AdvanceReminder, day2ThreeDaysBeforeEveryTwoLosesTheStepThatFallsOnDayZero) {
  EXPECT_EQ(ringingDays(2, 3, 2), (Days{29, 27, 2}));
}

TEST(AdvanceReminder, stepsThatMeetOnOneDayCountEach) {
  // Every 0 days, the subtraction gives back what the step took: all steps stand on the day.
  EXPECT_EQ(advanceMatches(20, 3, 0, 20), 4);
}

TEST(AdvanceReminder, countsOfDaysBeforeBelowZeroHaveNoSteps) {
  EXPECT_EQ(advanceMatches(20, -1, 1, 20), 0);
}

TEST(AdvanceReminder, onlyOneWrapIsMade) {
  // Day 1 less 40 is below 1 even after 31 days are added.
  EXPECT_EQ(ringingDays(1, 40, 1).size(), 31U);
  EXPECT_EQ(advanceMatches(1, 40, 1, 31), 1);
}

TEST(AdvanceReminder, theLargestNumbersNeitherOverflowNorMatch) {
  for (const std::int16_t E : {std::int16_t{32767}, std::int16_t{-32768}}) {
    EXPECT_EQ(advanceMatches(32767, 32767, E, 15), 0);
    EXPECT_EQ(advanceMatches(-32768, 32767, E, 15), 0);
  }
}

}  // namespace
}  // namespace kalvora
