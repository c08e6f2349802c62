#include "alarms/Animation.h"

#include <gtest/gtest.h>

#include "base/Errors.h"

namespace kalvora {
namespace {

TEST(Animation, anIntervalWithWhichATimerNeverTicksCountsAsOneMillisecond) {
  EXPECT_EQ(timerIntervalInUse(10), 10);
  EXPECT_EQ(timerIntervalInUse(1), 1);
  EXPECT_EQ(timerIntervalInUse(0), 1);
  EXPECT_EQ(timerIntervalInUse(-2147483647 - 1), 1);
}

TEST(Animation, aStepIsFifteenTwipsAPixelAndNoneBelowOnePixel) {
  EXPECT_EQ(stepInUse(1), 15);
  EXPECT_EQ(stepInUse(2184), 32760);
  EXPECT_EQ(stepInUse(0), std::nullopt);
  EXPECT_EQ(stepInUse(-1), std::nullopt);
  EXPECT_EQ(stepInUse(-32768), std::nullopt);
  EXPECT_THROW(stepInUse(2185), OverflowError);
}

TEST(Animation, aTickThatFailsStopsItsTimerBeforeTheFailureGoesOn) {
  bool stopped = false;
  const auto stopTimer = [&] { stopped = true; };
  EXPECT_EQ(tickOrStop([] { return 7; }, stopTimer), 7);
  EXPECT_FALSE(stopped);
  EXPECT_THROW(tickOrStop([]() -> int { throw OverflowError(40000); }, stopTimer), OverflowError);
  EXPECT_TRUE(stopped);
}

}  // namespace
}  // namespace kalvora
