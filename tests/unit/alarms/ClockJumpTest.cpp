// A clock that jumps by days, into the future or the past, and is put right, for a user who wants
// to be told of what was missed.

#include "CatchUpFixture.h"

namespace kalvora {
namespace {

class ClockJump : public CatchingUp {
 protected:
  /// A date of the clock, with its year.
  void jumpTo(int year, int month, int day) {
    setDate(month, day);
    clock.time.year = year;
  }
  /// The last check under a wrong clock, and perhaps another start.
  void endJump(bool restarted) {
    if (restarted) start();
    shows();
  }
};

TEST_F(ClockJump, intoThePastAndBackShowsNothingTwiceAndCatchesUpOnTheTimeBetween) {
  for (const int year : {2020, 2026}) {
    for (const bool restarted : {false, true}) {
      store.values.clear();
      folder.notes = {{L"Gym.tx1", "7|30|x"}, {L"Run.tx1", "9|5|x"}};
      jumpTo(2026, 3, 2);
      startAt(2, 7, 0);
      checkAt(7, 30);
      EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
      checkAt(9, 0);
      jumpTo(year, 2, 1);
      checkAt(8, 55);
      EXPECT_EQ(shows(), Calls{});
      endJump(restarted);
      jumpTo(2026, 3, 2);
      checkAt(9, 10);
      EXPECT_EQ(shows(), Calls{L"2026-03-02 09:05 Run.tx1"}) << year << restarted;
      setDate(3, 3);
      checkAt(9, 10);
      EXPECT_EQ(shows(), (Calls{L"2026-03-03 07:30 Gym.tx1", L"2026-03-03 09:05 Run.tx1"}));
    }
  }
}

TEST_F(ClockJump, aStartWithAClockThatIsAheadLosesNothingOnceItIsRight) {
  folder.notes[L"Rent.tx3"] = "2|||x";
  for (const bool restarted : {false, true}) {
    store.values.clear();
    startAt(1, 18, 0);
    startAt(20, 9, 0);
    endJump(restarted);
    setDate(3, 2);
    checkAt(9, 0);
    EXPECT_EQ(shows(), (Calls{L"2026-03-02 00:00 Rent.tx3", L"2026-03-02 07:30 Gym.tx1"}));
  }
}

TEST_F(ClockJump, whileTheFolderIsAwayItSilencesNothing) {
  startAt(2, 7, 0);
  folder.away = true;
  setDate(3, 4);
  checkAt(8, 0);
  setDate(3, 2);
  folder.away = false;
  checkAt(7, 20);
  EXPECT_EQ(shows(), Calls{});
  for (const int day : {2, 3, 4}) {
    setDate(3, day);
    checkAt(7, 29);
    shows();
    checkAt(7, 30);
    EXPECT_EQ(shows(), Calls{L"Gym.tx1"}) << day;
  }
}

TEST_F(ClockJump, whatWaitedUnderItSilencesNothingLater) {
  startAt(2, 7, 0);
  setDate(3, 4);
  checkAt(8, 0);
  ASSERT_EQ(host.onShow, L"Gym.tx1");
  setDate(3, 2);
  checkAt(7, 10);
  host.takeCalls();
  startAt(3, 8, 0);
  EXPECT_EQ(shows(), Calls{L"2026-03-04 07:30 Gym.tx1"});
  setDate(3, 4);
  checkAt(7, 29);
  shows();
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
}

TEST_F(ClockJump, aLastMinuteThatCannotBeReadIsTheLastThatSomethingRangIn) {
  for (const wchar_t* seen : {L"", L"tomorrow", L"2026-03-20 09:00"}) {
    store.values = {{L"Comfort/Seen", seen}, {L"Comfort/Rung", L"2026-03-01 07:30|Gym.tx1|"}};
    startAt(2, 9, 0);
    EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"}) << seen;
  }
}

TEST_F(ClockJump, aDayLaterTheClockIsRight) {
  startAt(2, 7, 0);
  setDate(3, 10);
  checkAt(8, 0);
  shows();
  for (const int day : {10, 11, 12}) {
    setDate(3, day);
    for (int hour = 9; hour < 24; ++hour) checkAt(hour, 0);
    shows();
  }
  setDate(3, 4);
  checkAt(9, 0);
  EXPECT_EQ(shows(), Calls{}) << "of the time before it went back nothing is known";
}

}  // namespace
}  // namespace kalvora
