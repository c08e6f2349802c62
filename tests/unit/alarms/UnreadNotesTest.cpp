#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

constexpr std::wstring_view kGymIsNotRead =
    L"Error! These notes do not ring, because they cannot be read:\r\nGym.tx1";

/// Notes that another program has open for a while, and a folder that is away for a while.
class UnreadNotes : public AlarmWorld {
 protected:
  void becomeTuesday() {
    clock.time.day = 3;
    clock.time.weekday = kTuesday;
  }
  /// What a check in a minute in which nothing is due reads.
  Names readAt(int hour, int minute) {
    folder.reads.clear();
    tickAt(hour, minute, 1);
    return folder.reads;
  }
  Names messages() {
    Names calls = host.takeCalls();
    std::erase_if(calls, [](const auto& call) { return !call.starts_with(L"Error!"); });
    return calls;
  }
};

// Notes of a time.

TEST_F(UnreadNotes, oneThatTheTableHadKeepsItsEntryInItsPlaceAndIsNotTold) {
  folder.notes = {{L"a.txt", "7|30|"},
                  {L"b.tx1", "7|30|"},
                  {L"c.tx1", "7|30|"},
                  {L"d.tx1", "7|30|"},
                  {L"e.tx2", "7|30|1|1|1|1|1|1|1|"}};
  alarms.Update_All_Al();
  for (const auto& [name, bytes] : folder.notes) {
    folder.locked = name;
    setTime(6, 0, 30);
    alarms.Update_All_Al();
    EXPECT_EQ(rangAt(7, 30), (Names{L"a.txt", L"b.tx1", L"c.tx1", L"d.tx1", L"e.tx2"}))
        << std::string(name.begin(), name.end());
  }
  EXPECT_TRUE(messages().empty());
}

TEST_F(UnreadNotes, oneThatKeepsItsEntryTakesANewTimeOnceItCanBeRead) {
  folder.notes = {{L"Gym.tx1", "7|30|"}, {L"Run.tx1", "9|15|"}};
  alarms.Update_All_Al();
  folder.notes[L"Gym.tx1"] = "8|0|";
  folder.locked = L"Gym.tx1";
  alarms.Update_All_Al();
  folder.locked.clear();
  tickAt(7, 1, 1);
  EXPECT_EQ(rangAt(7, 30), Names{});
  EXPECT_EQ(rangAt(8, 0), Names{L"Gym.tx1"});
  EXPECT_EQ(rangAt(9, 15), Names{L"Run.tx1"});
}

TEST_F(UnreadNotes, oneOfANewDayIsReadAtEachCheckUntilItCanBeAndNothingElseIs) {
  folder.notes = {{L"Alms.tx1", "7|30|"}, {L"Walk.tx1", "7|30|"}};
  alarms.updateAtStart(folder.listed());
  folder.notes[L"Gym.tx1"] = "7|30|";
  becomeTuesday();
  folder.locked = L"Gym.tx1";
  tickAt(0, 0, 1);
  EXPECT_EQ(messages(), (Names{std::wstring(kGymIsNotRead)}));
  const int listings = folder.listings;
  EXPECT_EQ(readAt(0, 1), (Names{L"Gym.tx1"}));
  folder.locked.clear();
  EXPECT_EQ(readAt(0, 2), (Names{L"Gym.tx1"}));
  EXPECT_EQ(readAt(0, 3), Names{});
  EXPECT_EQ(folder.listings, listings);
  EXPECT_TRUE(messages().empty()) << "told once";
  EXPECT_EQ(rangAt(7, 30), (Names{L"Alms.tx1", L"Gym.tx1", L"Walk.tx1"}));
}

TEST_F(UnreadNotes, oneOfDaysIsGivenUpWithTheDayThatItWasLookedForOn) {
  folder.notes = {{L"Rent.tx3", "3|||x"}};
  folder.locked = L"Rent.tx3";
  alarms.updateAtStart(folder.listed());
  becomeTuesday();
  folder.locked.clear();
  EXPECT_EQ(rangAt(0, 0), Names{}) << "its day came after that of the start";
}

TEST_F(UnreadNotes, oneThatCanBeReadInItsMinuteRingsInIt) {
  folder.notes = {{L"Gym.tx1", "7|30|"}};
  folder.locked = L"Gym.tx1";
  alarms.updateAtStart(folder.listed());
  tickAt(7, 29, 1);
  folder.locked.clear();
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
}

TEST_F(UnreadNotes, aWeeklyOneThatCanBeReadAgainRingsOnItsWeekdayOnly) {
  folder.notes = {{L"Choir.tx2", "19|30|0|0|1|0|0|0|0|"}};  // Tuesdays
  folder.locked = L"Choir.tx2";
  alarms.updateAtStart(folder.listed());
  folder.locked.clear();
  tickAt(7, 0, 1);
  EXPECT_EQ(rangAt(19, 30), Names{});
  becomeTuesday();
  folder.locked = L"Choir.tx2";
  tickAt(0, 0, 1);
  folder.locked.clear();
  tickAt(0, 1, 1);
  EXPECT_EQ(rangAt(19, 30), Names{L"Choir.tx2"});
}

TEST_F(UnreadNotes, aWeeklyOneThatKeptItsEntryLosesItWhereTodayIsNoLongerTicked) {
  folder.notes = {{L"Choir.tx2", "19|30|0|1|0|0|0|0|0|"}};
  alarms.Update_All_Al();
  folder.notes = {{L"Choir.tx2", "19|30|0|0|1|0|0|0|0|"}};
  folder.locked = L"Choir.tx2";
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(19, 30), Names{L"Choir.tx2"});
  folder.locked.clear();
  tickAt(7, 0, 1);
  EXPECT_EQ(rangAt(19, 30), Names{});
}

TEST_F(UnreadNotes, aNewDayKeepsTheEntriesOfEveryDay) {
  folder.notes = {
      {L"Choir.tx2", "19|0|0|1|1|0|0|0|0|"}, {L"Gym.tx1", "7|30|"}, {L"Run.txt", "8|15|"}};
  for (const wchar_t* locked : {L"Gym.tx1", L"Run.txt"}) {
    setTime(6, 0, 30);
    alarms.Update_All_Al();
    clock.time.weekday = clock.time.weekday == kMonday ? kTuesday : kMonday;
    folder.locked = locked;
    tickAt(0, 0, 1);
    EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
    EXPECT_EQ(rangAt(8, 15), Names{L"Run.txt"});
    EXPECT_EQ(rangAt(19, 0), Names{L"Choir.tx2"});
    folder.locked.clear();
  }
  EXPECT_TRUE(messages().empty());
}

TEST_F(UnreadNotes, aWeeklyEntryOfYesterdayIsNotKept) {
  folder.notes = {{L"Choir.tx2", "19|30|0|1|0|0|0|0|0|"}};  // Mondays
  alarms.updateAtStart(folder.listed());
  becomeTuesday();
  folder.locked = L"Choir.tx2";
  tickAt(0, 0, 1);
  EXPECT_EQ(rangAt(19, 30), Names{});
}

TEST_F(UnreadNotes, oneThatTurnsOutTooLargeIsToldThen) {
  folder.notes = {{L"Gym.tx1", std::string(40000, 'x')}};
  folder.locked = L"Gym.tx1";
  alarms.updateAtStart(folder.listed());
  alarms.tellFaults();
  EXPECT_EQ(messages(), (Names{std::wstring(kGymIsNotRead)}));
  folder.locked.clear();
  tickAt(7, 0, 1);
  EXPECT_EQ(messages(), (Names{L"Error! The file is too large to open!"}));
  EXPECT_EQ(readAt(7, 1), Names{});
}

TEST_F(UnreadNotes, damagedOnesAndThoseOfADevicesNameAreNotReadAgain) {
  folder.notes = {{L"aux.tx1", "7|30|"}, {L"bad.tx2", "7|30|?"}, {L"bad.tx3", "?"}};
  folder.locked = L"aux.tx1";
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(readAt(7, 0), Names{});
}

// Notes of a day.

TEST_F(UnreadNotes, oneOfADayIsQueuedOnceItCanBeReadAndOnlyOnce) {
  for (const auto& [name, bytes] :
       std::map<std::wstring, std::string>{{L"Rent.tx3", "2|||"}, {L"Year.tx4", "2|2|||"}}) {
    AlarmCheck fresh(ports(), host);
    folder.notes = {{L"Later.tx3", "9|||"}, {name, bytes}};
    folder.locked = name;
    setTime(6, 0, 30);
    fresh.updateAtStart(folder.listed());
    setTime(6, 1, 1);
    fresh.Spr1m();
    EXPECT_EQ(host.putAwayAll(fresh), Names{});
    folder.locked.clear();
    for (int minute = 2; minute < 5; ++minute) {
      setTime(6, minute, 1);
      fresh.Spr1m();
    }
    EXPECT_EQ(host.putAwayAll(fresh), Names{name});
  }
}

TEST_F(UnreadNotes, oneOfAnotherDayIsNotQueuedWhenItCanBeRead) {
  folder.notes = {{L"Rent.tx3", "9|||"}};
  folder.locked = L"Rent.tx3";
  alarms.updateAtStart(folder.listed());
  folder.locked.clear();
  EXPECT_EQ(readAt(7, 0), (Names{L"Rent.tx3"}));
  EXPECT_EQ(readAt(7, 1), Names{});
  EXPECT_EQ(rang(), Names{});
}

TEST_F(UnreadNotes, aFolderThatIsAwayAtTheStartQueuesTheNotesOfTheDayOnceItIsBack) {
  folder.notes = {{L"Rent.tx3", "2|||"}, {L"Gym.tx1", "7|30|"}};
  folder.away = true;
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rangAt(7, 29), Names{});
  folder.away = false;
  EXPECT_EQ(rangAt(7, 30), (Names{L"Rent.tx3", L"Gym.tx1"}));
  folder.away = true;
  setTime(7, 31, 30);
  alarms.Update_All_Al();
  folder.away = false;
  EXPECT_EQ(rangAt(7, 32), Names{}) << "once a run";
}

TEST_F(UnreadNotes, aFolderThatIsAwayAtTheStartQueuesThemAlsoAfterASaveThatFoundItBack) {
  folder.notes = {{L"Rent.tx3", "2|||"}};
  folder.away = true;
  alarms.updateAtStart(folder.listed());
  folder.away = false;
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{L"Rent.tx3"});
}

TEST_F(UnreadNotes, aFolderThatGoesWhileItIsReadAtTheStartLosesNothing) {
  folder.notes = {{L"Gym.tx1", "7|30|"}, {L"Rent.tx3", "2|||"}};
  folder.beforeRead = [this](const std::wstring&) { folder.away = true; };
  alarms.updateAtStart(folder.listed());
  folder.beforeRead = nullptr;
  folder.away = false;
  EXPECT_EQ(rangAt(7, 30), (Names{L"Rent.tx3", L"Gym.tx1"}));
}

// A message holds the start up, and the timer runs meanwhile.

TEST_F(UnreadNotes, aStartThatIsHeldUpLeavesTheNotesOfTheDayToTheTimerAndDropsNothing) {
  folder.notes = {{L"Gym.tx1", "7|30|"}, {L"Rent.tx3", "2|||"}};
  host.isShown = true;
  tickAt(7, 30, 1);
  EXPECT_EQ(alarms.pending(), 2);
  setTime(7, 31, 30);
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rang(), (Names{L"Rent.tx3", L"Gym.tx1"}));
}

// The folder is away when the table is built anew.

TEST_F(UnreadNotes, whatIsDueWhileTheFolderIsAwayRingsByTheTableOfTheDay) {
  folder.notes = {{L"Gym.tx1", "7|30|"}, {L"Run.tx1", "7|31|"}, {L"Swim.tx1", "7|32|"}};
  alarms.updateAtStart(folder.listed());
  folder.away = true;
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
  EXPECT_EQ(rangAt(7, 31), Names{L"Run.tx1"});
  folder.away = false;
  folder.notes[L"Swim.tx1"] = "7|33|";
  EXPECT_EQ(rangAt(7, 32), Names{});
  EXPECT_EQ(rangAt(7, 33), Names{L"Swim.tx1"});
  EXPECT_TRUE(messages().empty());
}

TEST_F(UnreadNotes, aFolderThatIsThereWithoutNotesEmptiesTheTable) {
  folder.notes = {{L"Gym.tx1", "7|30|"}};
  alarms.updateAtStart(folder.listed());
  folder.notes.clear();
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{});
}

TEST_F(UnreadNotes, ofATableOfYesterdayAllButTheWeeklyNotesStayWhileTheFolderIsAway) {
  folder.notes = {{L"Choir.tx2", "19|0|0|1|0|0|0|0|0|"}, {L"Gym.tx1", "7|30|"}};  // Mondays
  alarms.updateAtStart(folder.listed());
  folder.away = true;
  becomeTuesday();
  tickAt(0, 0, 1);
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
  EXPECT_EQ(rangAt(19, 0), Names{});
}

TEST_F(UnreadNotes, aFolderThatTakesLongToListMakesNoMinuteGoByUnchecked) {
  folder.notes = {{L"Gym.tx1", "0|0|"}, {L"Run.tx1", "0|1|"}};
  alarms.updateAtStart(folder.listed());
  becomeTuesday();
  folder.beforeRead = [this](const std::wstring&) { clock.time.minute = 1; };
  EXPECT_EQ(rangAt(0, 0), Names{L"Gym.tx1"});
}

}  // namespace
}  // namespace kalvora
