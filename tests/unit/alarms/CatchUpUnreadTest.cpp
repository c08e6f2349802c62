// Folders that are away and notes that cannot be read, for a user who wants to be told of what was
// missed.

#include "CatchUpFixture.h"

namespace kalvora {
namespace {

TEST_F(CatchingUp, aFolderThatIsAwayIsCaughtUpOnceItIsBackAlsoInTheNextRun) {
  startAt(2, 6, 30);
  folder.away = true;
  checkAt(8, 0);
  EXPECT_EQ(shows(), Calls{});
  startAt(2, 8, 10);
  checkAt(8, 11);
  EXPECT_EQ(shows(), Calls{});
  folder.away = false;
  checkAt(8, 12);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
  checkAt(8, 13);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aSleepAfterWhichTheFolderIsBackIsCaughtUp) {
  startAt(2, 7, 0);
  folder.away = true;
  checkAt(7, 10);
  folder.away = false;
  checkAt(8, 0);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
}

TEST_F(CatchingUp, whatIsDueWhileTheFolderIsAwayIsCaughtUp) {
  for (const bool first : {false, true}) {
    store.values.clear();
    if (!first) startAt(1, 6, 30);
    shows();
    folder.away = true;
    startAt(2, 7, 0);
    checkAt(7, 29);
    checkAt(7, 30);
    checkAt(7, 31);
    EXPECT_EQ(shows(), Calls{});
    folder.away = false;
    checkAt(7, 32);
    EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
    checkAt(7, 33);
    EXPECT_EQ(shows(), Calls{});
  }
}

TEST_F(CatchingUp, whatRingsFromTheTableWhileTheFolderIsAwayIsNotShownAgain) {
  startAt(2, 7, 0);
  folder.away = true;
  checkAt(7, 29);
  checkAt(7, 30);
  EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  startAt(2, 7, 40);
  folder.away = false;
  checkAt(7, 41);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aFolderThatIsAwayForDaysIsCaughtUpAlsoInTheNextRun) {
  folder.notes[L"Vet.tx2"] = "12|0|0|0|0|0|1|0|0|x";  // on Thursdays
  startAt(1, 22, 0);
  startAt(4, 20, 0);
  shows();
  folder.away = true;
  startAt(5, 10, 0);
  for (const int day : {5, 6, 7}) {
    setDate(3, day);
    for (int hour = 11; hour < 24; ++hour) checkAt(hour, 0);
  }
  EXPECT_EQ(shows(), Calls{});
  startAt(8, 6, 0);
  folder.away = false;
  checkAt(6, 1);
  EXPECT_EQ(shows(), (Calls{L"2026-03-05 12:00 Vet.tx2", L"2026-03-07 07:30 Gym.tx1"}));
}

TEST_F(CatchingUp, whatRangForDaysWhileTheFolderWasAwayIsNotShownAgain) {
  startAt(2, 6, 0);
  folder.away = true;
  for (const int day : {2, 3, 4}) {
    setDate(3, day);
    for (int hour = day == 2 ? 6 : 0; hour < 24; ++hour) {
      for (const int minute : {1, 29, 30}) checkAt(hour, minute);
    }
    EXPECT_EQ(shows(), Calls{L"Gym.tx1"});
  }
  setDate(3, 5);
  folder.away = false;
  checkAt(6, 0);
  EXPECT_EQ(shows(), Calls{});
}

TEST_F(CatchingUp, aNoteThatIsLockedAtTheFirstStartIsCaughtUp) {
  folder.locked = L"Gym.tx1";
  startAt(2, 7, 30);
  folder.locked.clear();
  checkAt(7, 31);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
}

TEST_F(CatchingUp, aNoteThatIsLockedInItsMinuteIsCaughtUpOnceItCanBeReadAlsoInTheNextRun) {
  for (const bool killed : {false, true}) {
    store.values.clear();
    folder.locked = L"Gym.tx1";
    startAt(2, 7, 29);
    checkAt(7, 30);
    checkAt(7, 31);
    EXPECT_EQ(shows(), Calls{});
    folder.locked.clear();
    if (killed) {
      startAt(2, 7, 32);
    } else {
      checkAt(7, 32);
    }
    EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
  }
}

TEST_F(CatchingUp, aNoteThatCannotBeReadIsCaughtUpOnceItCan) {
  startAt(2, 6, 30);
  folder.locked = L"Gym.tx1";
  checkAt(8, 0);
  EXPECT_EQ(shows(), Calls{});
  folder.locked.clear();
  checkAt(8, 1);
  EXPECT_EQ(shows(), Calls{L"2026-03-02 07:30 Gym.tx1"});
}

}  // namespace
}  // namespace kalvora
