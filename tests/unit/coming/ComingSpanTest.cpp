#include "coming/ComingSpan.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

using namespace std::chrono;

constexpr local_days kMonday{2026y / November / 23};

TEST(ComingSpanTest, todayIsOneOfTheDays) {
  EXPECT_EQ(daysOf(ComingSpan::Today, kMonday), 1U);
  EXPECT_EQ(daysOf(ComingSpan::Week, kMonday), 7U);
  EXPECT_EQ(daysOf(ComingSpan::Month, kMonday), 30U);
}

TEST(ComingSpanTest, aYearEndsBeforeTheSameDate) {
  EXPECT_EQ(daysOf(ComingSpan::Year, kMonday), 365U);
  EXPECT_EQ(daysOf(ComingSpan::Year, local_days{2027y / March / 1}), 366U);
  EXPECT_EQ(daysOf(ComingSpan::Year, local_days{2027y / February / 28}), 365U);
}

TEST(ComingSpanTest, aYearFromALeapDayHasAllItsDays) {
  EXPECT_EQ(daysOf(ComingSpan::Year, local_days{2028y / February / 29}), 366U);
  EXPECT_EQ(kMostComingDays, 366U);
}

TEST(ComingSpanTest, theShortestSpanThatHoldsADay) {
  EXPECT_EQ(spanWith(0, kMonday), ComingSpan::Today);
  EXPECT_EQ(spanWith(1, kMonday), ComingSpan::Week);
  EXPECT_EQ(spanWith(6, kMonday), ComingSpan::Week);
  EXPECT_EQ(spanWith(7, kMonday), ComingSpan::Month);
  EXPECT_EQ(spanWith(30, kMonday), ComingSpan::Year);
  EXPECT_EQ(spanWith(364, kMonday), ComingSpan::Year);
}

}  // namespace
}  // namespace kalvora
