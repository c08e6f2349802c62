// What came due while the computer slept or the program was off.

#include "CatchUpFixture.h"

namespace kalvora {
namespace {

TEST_F(CatchingUp, theFirstRunWithItMissesNothing) {
  startAt(2, 9, 0);
  EXPECT_EQ(shows(), Calls{});
  checkAt(9, 1);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, whatCameDueWhileTheProgramWasOffIsShownOnceWithItsLatestMoment) {
  folder.notes[L"Pills.txt"] = "6|0|x";
  startAt(2, 6, 30);
  startAt(4, 7, 45);
  EXPECT_EQ(shows(), (Calls{L"2026-03-04 06:00 Pills.txt", L"2026-03-04 07:30 Gym.tx1"}));
  startAt(4, 7, 50);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, oneThatWasMissedSaysSo) {
  startAt(2, 6, 30);
  startAt(2, 7, 45);
  program->Sprawdz_jeden_alarm();
  const Calls calls = host.takeCalls();
  EXPECT_NE(std::ranges::find(calls, L"title [ MISSED] over Gym.tx1"), calls.end());
}

TEST_F(CatchingUp, aSleepOfHoursIsCaughtUpAtTheNextCheckAndTheMinuteItselfRingsAsUsual) {
  folder.notes[L"Now.txt"] = "8|30|x";
  startAt(2, 6, 30);
  checkAt(6, 31);
  checkAt(8, 30);
  EXPECT_EQ(shows(), (Calls{L"2026-03-02 07:30 Gym.tx1", L"Now.txt"}));
  checkAt(8, 31);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aSleepOfAWholeHourIsCaughtUpToo) {
  startAt(2, 7, 0);
  checkAt(7, 5);
  checkAt(8, 5);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
}

TEST_F(CatchingUp, aWokenComputerIsLookedAtAtOnceAndOnce) {
  startAt(2, 6, 30);
  setTime(7, 30, 17);
  program->clockChanged();
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  program->clockChanged();
  checkAt(7, 31);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aWokenComputerIsLeftAloneWithoutTheTick) {
  comfort.Catch_up = false;
  startAt(2, 6, 30);
  setTime(7, 30, 0);
  program->clockChanged();
  EXPECT_EQ(shows(), Calls{});
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  EXPECT_TRUE(store.values.empty());
}

TEST_F(CatchingUp, aTickThatJumpsOverItsSecondLosesNothing) {
  startAt(2, 7, 29);
  setTime(7, 30, 0);
  program->Spr1m();
  setTime(7, 30, 2);
  program->Spr1m();
  checkAt(7, 31);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
}

TEST_F(CatchingUp, atMostSevenDaysBack) {
  folder.notes = {{L"Rent.tx3", "20|||x"}};
  setDate(2, 19);
  setTime(12, 0, 30);
  start();
  startAt(2, 12, 0);
  EXPECT_EQ(shows(), Calls{}) << "ten days ago";
  setDate(3, 19);
  start();
  EXPECT_EQ(shows(), Calls{});
  setDate(3, 26);
  setTime(23, 59, 30);
  start();
  EXPECT_EQ(shows(), Calls{L"2026-03-20 00:00 Rent.tx3"});
}

TEST_F(CatchingUp, theDaysOfASleepBringTheirNotesAndTodayAsUsual) {
  folder.notes = {{L"Rent.tx3", "3|||x"}, {L"Mary.tx4", "4|2|||x"}};
  startAt(2, 9, 0);
  EXPECT_EQ(shows(), Calls{});
  startAt(4, 9, 0);
  EXPECT_EQ(shows(), (Calls{L"2026-03-03 00:00 Rent.tx3", L"Mary.tx4"}));
  startAt(4, 10, 0);
  EXPECT_EQ(shows(), Calls{}) << "a day's notes ring once";
}

TEST_F(CatchingUp, aNightThatWasSleptThroughBringsTheNotesOfTheDay) {
  folder.notes = {{L"Rent.tx3", "3|||x"}};
  for (const bool each : {false, true}) {
    store.values.clear();
    comfort.Each_day = each;
    startAt(2, 23, 0);
    setDate(3, 3);
    checkAt(8, 0);
    EXPECT_EQ(shows(), each ? Calls{L"Rent.tx3"} : Calls{L"2026-03-03 00:00 Rent.tx3"});
    checkAt(8, 1);
    EXPECT_EQ(shows(), Calls{});
    startAt(3, 9, 0);
    EXPECT_EQ(shows(), Calls{});
  }
}

TEST_F(CatchingUp, aDayNoteWrittenSinceRingsAtTheNextStart) {
  startAt(2, 9, 0);
  folder.notes[L"New.tx3"] = "2|||x";
  startAt(2, 10, 0);
  EXPECT_EQ(shows(), Calls{L"New.tx3"});
}

TEST_F(CatchingUp, whatWaitedOrStoodOnShowWhenTheProgramEndedIsShownAgain) {
  folder.notes[L"Run.tx1"] = "7|30|x";
  startAt(2, 7, 29);
  checkAt(7, 30);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  host.takeCalls();
  startAt(2, 7, 40);
  EXPECT_EQ(shows(), (Calls{L"2026-03-02 07:30 Gym.tx1", L"2026-03-02 07:30 Run.tx1"}));
  startAt(2, 7, 50);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, whatWaitsFollowsItsNoteToANewNameAndIsRememberedUnderIt) {
  folder.notes[L"Run.tx1"] = "7|30|x";
  startAt(2, 7, 29);
  checkAt(7, 30);
  const auto rename = [this](const wchar_t* from, const wchar_t* to) {
    folder.notes[to] = folder.notes[from];
    folder.notes.erase(from);
    program->noteRenamed(from, to);
  };
  // In the queue.
  rename(L"Run.tx1", L"Walk.tx1");
  host.takeCalls();
  startAt(2, 7, 40);
  // Among what was missed.
  rename(L"Walk.tx1", L"Swim.tx1");
  EXPECT_EQ(shows(), (Calls{L"2026-03-02 07:30 Gym.tx1", L"2026-03-02 07:30 Swim.tx1"}));
}

TEST_F(CatchingUp, whatWaitsInTheQueueComesUnderTheNewNameOfItsNote) {
  folder.notes[L"Run.tx1"] = "7|30|x";
  startAt(2, 7, 29);
  checkAt(7, 30);
  folder.notes[L"Walk.tx1"] = "7|30|x";
  folder.notes.erase(L"Run.tx1");
  program->noteRenamed(L"run.TX1", L"Walk.tx1");
  EXPECT_EQ(shows(), (Calls{L"Gym.tx1", L"Walk.tx1"}));
}

TEST_F(CatchingUp, whatWasMissedGoesWithItsNote) {
  folder.notes[L"Run.tx1"] = "7|30|x";
  startAt(2, 7, 29);
  startAt(2, 7, 40);
  folder.notes.erase(L"Gym.tx1");
  program->noteDeleted(L"gym.tx1");
  EXPECT_EQ(program->pending(), 1);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Run.tx1"});
}

TEST_F(CatchingUp, aStartInTheMinuteOfANoteThatRangDoesNotRingItAgain) {
  startAt(2, 7, 29);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  startAt(2, 7, 30);
  EXPECT_EQ(shows(), Calls{});
}

}  // namespace
}  // namespace kalvora
