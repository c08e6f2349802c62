// Clocks that go back and settings that cannot be read, for a user who wants to be told of what was
// missed.

#include "CatchUpFixture.h"

namespace kalvora {
namespace {

TEST_F(CatchingUp, aClockSetBackRingsNothingTwiceInThisRunNorInTheNext) {
  folder.notes[L"Run.tx1"] = "8|0|x";
  startAt(2, 7, 0);
  checkAt(7, 30);
  checkAt(8, 0);
  EXPECT_EQ(shows().size(), 2U);
  checkAt(7, 15);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{});
  startAt(2, 7, 40);
  checkAt(8, 0);
  EXPECT_EQ(shows(), Calls{});
  setDate(3, 3);
  checkAt(8, 0);
  EXPECT_EQ(shows(), (Calls{L"2026-03-03 07:30 Gym.tx1", L"Run.tx1"}));
}

TEST_F(CatchingUp, aClockSetBackBetweenTwoRunsRingsNothingTwice) {
  startAt(2, 7, 0);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  startAt(2, 7, 10);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aNoteWrittenAfterTheClockWasSetBackRings) {
  startAt(2, 7, 0);
  checkAt(8, 0);
  shows();
  checkAt(7, 10);
  folder.notes[L"New.tx1"] = "7|20|x";
  program->Update_All_Al();
  checkAt(7, 20);
  EXPECT_EQ(shows(), Calls{L"New.tx1"});
}

TEST_F(CatchingUp, aClockThatWasWrongByDaysRingsAsUsualOnceItIsRight) {
  startAt(9, 7, 0);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  setDate(3, 2);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
}

TEST_F(CatchingUp, whatRangWhileTheClockWasWrongRingsOnItsRealDayAlsoInTheNextRun) {
  for (const int wrongDay : {4, 5, 9}) {
    for (const bool restarted : {false, true}) {
      store.values.clear();
      startAt(2, 7, 0);
      setDate(3, wrongDay);
      checkAt(8, 0);
      EXPECT_EQ(shows(), Calls{L"2026-03-0" + std::to_wstring(wrongDay) + L" 07:30 Gym.tx1"});
      setDate(3, 2);
      if (restarted) startAt(2, 7, 10);
      checkAt(7, 20);
      EXPECT_EQ(shows(), Calls{});
      for (int day = 2; day <= 9; ++day) {
        setDate(3, day);
        for (int hour = day == 2 ? 7 : 0; hour < 24; ++hour) {
          for (const int minute : {0, 20, 30, 40}) checkAt(hour, minute);
        }
        EXPECT_EQ(shows().size(), 1U) << wrongDay << restarted << day;
      }
    }
  }
}

TEST_F(CatchingUp, whatWasAheadOfAClockThatIsNowRightSilencesNothingLater) {
  // The last moment for sure was before a folder that is away, what rang well after it.
  store.values = {{L"Comfort/Seen", L"2026-03-03 06:00"},
                  {L"Comfort/Rung", L"2026-03-04 07:30|Gym.tx1|"}};
  startAt(2, 8, 0);
  setDate(3, 4);
  checkAt(7, 29);
  shows();
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
}

TEST_F(CatchingUp, aFirstRunWhoseClockGoesBackRingsWhatIsDueThen) {
  startAt(2, 8, 0);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
}

TEST_F(CatchingUp, whoTicksItInTheMiddleOfARunMissesNothingOfBefore) {
  startAt(1, 6, 0);
  comfort.Catch_up = false;
  startAt(2, 6, 30);
  comfort.Catch_up = true;
  checkAt(8, 0);
  EXPECT_EQ(shows(), Calls{});
  checkAt(8, 2);
  EXPECT_EQ(shows(), Calls{});
  startAt(3, 8, 0);
  EXPECT_EQ(shows(), Calls{L"2026-03-03 07:30 Gym.tx1"});
}

TEST_F(CatchingUp, settingsThatCannotBeReadLoseNoReminderThatIsDue) {
  for (const wchar_t* seen : {L"", L"yesterday", L"2026-02-31 07:00", L"2026-13-99 99:99",
                              L"9999-12-31 23:59", L"0000-01-01 00:00"}) {
    for (const wchar_t* list : {L"", L"|", L"||||", L"x", L"2026-03-02 07:00", L"x|Gym.tx1"}) {
      store.values = {{L"Comfort/Seen", seen}, {L"Comfort/Waiting", list}, {L"Comfort/Rung", list}};
      startAt(2, 7, 29);
      shows();
      checkAt(7, 30);
      EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
    }
  }
}

TEST_F(CatchingUp, aLastMomentInTheFutureSilencesNothing) {
  for (const wchar_t* seen : {L"2026-03-02 20:00", L"2026-03-03 06:00", L"2026-03-09 06:00"}) {
    store.values = {{L"Comfort/Seen", seen}};
    startAt(2, 7, 29);
    checkAt(7, 30);
    EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
    setDate(3, 3);
    checkAt(7, 31);
    EXPECT_EQ(shows(), Calls{L"2026-03-03 07:30 Gym.tx1"});
  }
}

TEST_F(CatchingUp, whoTakesTheTickAwayLeavesNothingOldBehind) {
  startAt(2, 7, 29);
  checkAt(7, 30);
  comfort.Catch_up = false;
  checkAt(7, 31);
  for (const wchar_t* key : {L"Comfort/Seen", L"Comfort/Waiting", L"Comfort/Rung"}) {
    EXPECT_EQ(store.values[key], L"");
  }
}

TEST_F(CatchingUp, whatARunLeftIsForgottenByTheNextOneWithoutTheTick) {
  startAt(2, 7, 29);
  checkAt(7, 30);
  comfort.Catch_up = false;
  startAt(3, 9, 0);
  shows();
  comfort.Catch_up = true;
  startAt(5, 9, 0);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aSaveInTheMinuteOfANoteThatRangAndAStartInItRingItOnce) {
  startAt(2, 7, 29);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  folder.notes[L"New.tx1"] = "7|30|x";
  comfort.Once_a_minute = true;
  setTime(7, 30, 20);
  program->Update_All_Al();
  EXPECT_EQ(shows(), Calls{L"New.tx1"});
  startAt(2, 7, 30);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, whereverARunIsKilledNothingIsLostAndNothingIsShownTwice) {
  folder.notes[L"Rent.tx3"] = "2|||x";
  for (const Fault fault : {Fault::KillBefore, Fault::KillAfter}) {
    for (int save = 1;; ++save) {
      store = MemorySettingsStore();
      startAt(2, 7, 28);
      EXPECT_EQ(shows(), Calls{L"Rent.tx3"});
      store.arm(fault, save);
      checkAt(7, 29);
      checkAt(7, 30);
      host.takeCalls();
      const bool reached = store.wasReached();
      store.revive();
      startAt(2, 7, 45);
      EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"}) << save;
      if (!reached) break;
    }
  }
}

TEST_F(CatchingUp, whereverAStartIsKilledANoteOfTheDayIsShownOnce) {
  folder.notes = {{L"Rent.tx3", "2|||x"}};
  for (int save = 1;; ++save) {
    store = MemorySettingsStore();
    store.arm(Fault::KillAfter, save);
    startAt(2, 9, 0);
    host.takeCalls();
    const bool reached = store.wasReached();
    store.revive();
    startAt(2, 9, 5);
    EXPECT_EQ(shows().size(), 1U) << save;
    if (!reached) break;
  }
}

TEST_F(CatchingUp, aNoteThatWaitedAtAMomentNobodyCanReadIsShown) {
  store.values = {{L"Comfort/Seen", L"2026-03-02 06:00"}, {L"Comfort/Waiting", L"?|Gym.tx1|"}};
  startAt(2, 6, 1);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 06:01 Gym.tx1"});
}

TEST_F(CatchingUp, aStoreThatTakesNothingIsToldOnceAndEverythingRings) {
  startAt(2, 7, 28);
  store.refuses = true;
  checkAt(7, 29);
  checkAt(7, 30);
  int told = 0;
  for (const std::wstring& call : host.calls) told += call.starts_with(L"Error!") ? 1 : 0;
  EXPECT_EQ(told, 1);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
}

TEST_F(CatchingUp, aSleepWithTheTickOffIsNotCaughtUpAndNothingIsStored) {
  comfort.Catch_up = false;
  startAt(2, 6, 30);
  checkAt(8, 0);
  EXPECT_EQ(shows(), Calls{});
  startAt(3, 9, 0);
  EXPECT_EQ(shows(), Calls{});
  EXPECT_TRUE(store.values.empty());
}

}  // namespace
}  // namespace kalvora
