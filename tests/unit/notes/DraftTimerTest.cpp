#include "notes/DraftTimer.h"

#include <gtest/gtest.h>

#include "fakes/FakeClock.h"

namespace kalvora {
namespace {

class DraftTimerTest : public testing::Test {
 protected:
  /// The interval that the timer was started with since this was asked last; 0 for not at all.
  int started() { return std::exchange(started_, 0); }
  int waitAt(int second) {
    clock_.time.second = second;
    timer_.stopped();
    timer_.typed();
    return started();
  }
  int nextTryAt(int second) {
    clock_.time.second = second;
    timer_.stopped();
    timer_.tryAgain();
    return started();
  }

  FakeClock clock_;
  int started_ = 0;
  DraftTimer timer_{clock_, [this](int interval) { started_ = interval; }};
};

TEST_F(DraftTimerTest, noneIsWrittenWhileAMinutesCheckIsNear) {
  EXPECT_EQ(waitAt(53), 3000);
  EXPECT_EQ(waitAt(54), 8000);
  EXPECT_EQ(waitAt(56), 6000);
  EXPECT_EQ(waitAt(58), 4000);
  EXPECT_EQ(waitAt(59), 3000);
  EXPECT_EQ(waitAt(0), 3000);
}

TEST_F(DraftTimerTest, noneIsTriedAgainThenEither) {
  EXPECT_EQ(nextTryAt(0), 10000);
  EXPECT_EQ(nextTryAt(46), 10000);
  EXPECT_EQ(nextTryAt(47), 15000);
  EXPECT_EQ(nextTryAt(50), 12000);
  EXPECT_EQ(nextTryAt(51), 11000);
  EXPECT_EQ(nextTryAt(52), 10000);
}

TEST_F(DraftTimerTest, typingOnDoesNotPutItOff) {
  EXPECT_EQ(waitAt(0), 3000);
  timer_.typed();
  EXPECT_EQ(started(), 0);
  timer_.stopped();
  timer_.typed();
  EXPECT_EQ(started(), 3000);
}

TEST_F(DraftTimerTest, newLettersDoNotWaitForTheNextTry) {
  EXPECT_EQ(nextTryAt(0), 10000);
  timer_.typed();
  EXPECT_EQ(started(), 3000);
  timer_.typed();
  EXPECT_EQ(started(), 0);
}

}  // namespace
}  // namespace kalvora
