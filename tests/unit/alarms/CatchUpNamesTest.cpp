// Notes that change their names, and notes of days, for a user who wants to be told of what was
// missed.

#include "CatchUpFixture.h"

namespace kalvora {
namespace {

class CatchingUpNames : public CatchingUp {
 protected:
  void rename(const wchar_t* from, const wchar_t* to) {
    folder.notes[to] = folder.notes[from];
    folder.notes.erase(from);
    program->noteRenamed(from, to);
    program->Update_All_Al();
  }
};

TEST_F(CatchingUpNames, whatRangDoesNotRingAgainUnderANewName) {
  startAt(2, 7, 0);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  checkAt(7, 31);
  rename(L"Gym.tx1", L"Swim.tx1");
  checkAt(7, 15);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{});
  startAt(2, 7, 30);
  EXPECT_EQ(shows(), Calls{}) << "nor in the next run";
}

TEST_F(CatchingUpNames, aSaveUnderANewNameInItsMinuteRingsOnceWhereThatIsWished) {
  for (const bool once : {false, true}) {
    folder.notes = {{L"Gym.tx1", "7|30|x"}};
    comfort = {};
    comfort.Once_a_minute = once;
    startAt(2, 7, 0);
    checkAt(7, 30);
    EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
    rename(L"Gym.tx1", L"Swim.tx1");
    EXPECT_EQ(shows(), once ? Calls{} : Calls{L"Swim.tx1"});
  }
}

TEST_F(CatchingUpNames, aNewNoteOfTheNameOfADeletedOneRings) {
  folder.notes = {{L"Rent.tx3", "2|||x"}};
  startAt(2, 7, 0);
  EXPECT_EQ(shows(), Calls{L"Rent.tx3"});
  folder.notes.clear();
  program->noteDeleted(L"rent.TX3");
  folder.notes = {{L"Rent.tx3", "2|||y"}};
  startAt(2, 8, 0);
  EXPECT_EQ(shows(), Calls{L"Rent.tx3"});
}

TEST_F(CatchingUpNames, aNoteThatCouldNotBeReadIsLookedForUnderItsNewName) {
  folder.locked = L"Gym.tx1";
  startAt(2, 7, 29);
  checkAt(7, 30);
  setTime(7, 31, 0);
  rename(L"Gym.tx1", L"Swim.tx1");
  checkAt(7, 31);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Swim.tx1"});
}

TEST_F(CatchingUpNames, aNoteOfTodayThatCouldNotBeReadIsLookedForUnderItsNewName) {
  comfort = {};
  folder.notes = {{L"Rent.tx3", "2|||x"}};
  folder.locked = L"Rent.tx3";
  startAt(2, 7, 29);
  rename(L"Rent.tx3", L"Flat.tx3");
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Flat.tx3"});
}

TEST_F(CatchingUpNames, aNoteOfADayThatCouldNotBeReadOnItIsCaughtUpAlsoInTheNextRun) {
  for (const bool killed : {false, true}) {
    for (const bool each : {false, true}) {
      store.values.clear();
      comfort.Each_day = each;
      folder.notes = {{L"Rent.tx3", "2|||x"}};
      folder.locked = L"Rent.tx3";
      startAt(2, 7, 29);
      for (const int hour : {8, 15, 23}) checkAt(hour, 30);
      setDate(3, 3);
      if (killed) {
        startAt(3, 0, 10);
      } else {
        checkAt(0, 0);
      }
      EXPECT_EQ(shows(), Calls{});
      folder.locked.clear();
      checkAt(9, 0);
      EXPECT_EQ(shows(), Calls{L"2026-03-02 00:00 Rent.tx3"}) << killed << each;
      checkAt(9, 1);
      EXPECT_EQ(shows(), Calls{});
    }
  }
}

TEST_F(CatchingUpNames, aNoteOfADayThatCouldNotBeReadForDaysIsCaughtUpAlsoInTheNextRun) {
  folder.notes = {{L"Rent.tx3", "2|||x"}};
  folder.locked = L"Rent.tx3";
  startAt(2, 7, 29);
  for (const int day : {2, 3, 4}) {
    setDate(3, day);
    for (int hour = 8; hour < 24; ++hour) checkAt(hour, 0);
  }
  startAt(5, 18, 0);
  EXPECT_EQ(shows(), Calls{});
  folder.locked.clear();
  checkAt(18, 1);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 00:00 Rent.tx3"});
}

TEST_F(CatchingUpNames, whatRangDoesNotRingUnderTheNameOfACopy) {
  folder.notes = {{L"Rent.tx3", "2|||x"}};
  startAt(2, 7, 0);
  EXPECT_EQ(shows(), Calls{L"Rent.tx3"});
  // A rename whose old file could not be removed yet.
  folder.notes[L"Flat.tx3"] = folder.notes[L"Rent.tx3"];
  program->noteCopied(L"rent.tx3", L"Flat.tx3");
  startAt(2, 8, 0);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUpNames, aNoteThatWasDeletedUnreadIsNotLookedForInANewOne) {
  folder.locked = L"Gym.tx1";
  startAt(2, 7, 29);
  checkAt(7, 30);
  folder.notes.clear();
  program->noteDeleted(L"gym.tx1");
  checkAt(7, 31);
  folder.locked.clear();
  folder.notes[L"Gym.tx1"] = "7|30|y";
  setTime(9, 0, 30);
  program->Update_All_Al();
  checkAt(9, 1);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUpNames, aNoteOfTodayThatCouldNotBeReadRingsAsUsualOnceItCan) {
  folder.notes = {{L"Rent.tx3", "2|||x"}};
  folder.locked = L"Rent.tx3";
  startAt(2, 7, 29);
  checkAt(7, 30);
  folder.locked.clear();
  checkAt(7, 31);
  EXPECT_EQ(shows(), Calls{L"Rent.tx3"});
  checkAt(7, 32);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUpNames, aNoteThatIsDueTodayIsNotMissedOnTheDaysBefore) {
  // On the 3rd and 4th ahead of the 5th.
  folder.notes = {{L"Rent.tx3", "5|2|1|x"}};
  for (const int minute : {0, 1, 540}) {
    for (const bool slept : {false, true}) {
      store.values.clear();
      comfort.Each_day = slept;
      startAt(2, 23, 0);
      setDate(3, 4);
      if (slept) {
        checkAt(minute / 60, minute % 60);
      } else {
        startAt(4, minute / 60, minute % 60);
      }
      EXPECT_EQ(shows(), Calls{L"Rent.tx3"}) << minute << slept;
      startAt(4, 10, 0);
      EXPECT_EQ(shows(), Calls{});
    }
  }
}

TEST_F(CatchingUpNames, aStartThatListsOverMidnightLosesTheNotesOfNeitherDay) {
  comfort.Each_day = true;
  folder.notes = {{L"Rent.tx3", "2|||x"}, {L"Mary.tx3", "3|||x"}};
  startAt(1, 12, 0);
  setDate(3, 2);
  setTime(23, 59, 30);
  folder.beforeRead = [this](const std::wstring&) {
    setDate(3, 3);
    setTime(0, 0, 0);
  };
  start();
  folder.beforeRead = nullptr;
  EXPECT_EQ(shows(), Calls{L"Rent.tx3"});
  checkAt(0, 0);
  EXPECT_EQ(shows(), Calls{L"Mary.tx3"});
}

}  // namespace
}  // namespace kalvora
