#include "alarms/AlarmCheck.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

using Calls = std::vector<std::wstring>;

/// When the timer checks.
class AlarmCheckTest : public AlarmWorld {
 protected:
  void SetUp() override {
    folder.notes[L"Gym.tx1"] = "7|30|x";
    alarms.Update_All_Al();
  }
};

TEST_F(AlarmCheckTest, aNoteIsQueuedAtSecondOneOfItsMinute) {
  tickAt(7, 29, 1);
  EXPECT_EQ(rang(), Names{});
  tickAt(7, 30, 1);
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
  tickAt(7, 31, 1);
  EXPECT_EQ(rang(), Names{});
}

TEST_F(AlarmCheckTest, noOtherSecondChecks) {
  for (const int second : {0, 2, 30, 59}) tickAt(7, 30, second);
  EXPECT_EQ(rang(), Names{});
}

TEST_F(AlarmCheckTest, aCheckThatFindsNothingLeavesTheWindowAlone) {
  for (const bool shown : {false, true}) {
    host.isShown = shown;
    tickAt(7, 29, 1);
    tickAt(7, 31, 1);
    EXPECT_TRUE(host.takeCalls().empty());
  }
}

TEST_F(AlarmCheckTest, hour7Minute5RingsAtFivePastSevenOnly) {
  folder.notes = {{L"Pills.txt", "7|5|x"}, {L"Never.txt", "24|5|x"}};
  alarms.Update_All_Al();
  for (int minute = 0; minute < 24 * 60; ++minute) {
    const Names expected = minute == 7 * 60 + 5 ? Names{L"Pills.txt"} : Names{};
    ASSERT_EQ(rangAt(minute / 60, minute % 60), expected) << minute;
  }
}

TEST_F(AlarmCheckTest, twoTicksWithinSecondOneCheckOnce) {
  tickAt(7, 30, 1);
  tickAt(7, 30, 1);
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
}

TEST_F(AlarmCheckTest, everyMinuteIsCheckedWithTicksOf900Milliseconds) {
  for (long ms = 7L * 3600000; ms < 8L * 3600000; ms += 900) {
    const int second = static_cast<int>(ms / 1000);
    tickAt(second / 3600, second / 60 % 60, second % 60);
  }
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
}

TEST_F(AlarmCheckTest, aClockThatJumpsOverSecondOneSkipsTheMinute) {
  tickAt(7, 30, 0);
  tickAt(7, 30, 2);
  tickAt(7, 31, 1);
  EXPECT_EQ(rang(), Names{});
}

TEST_F(AlarmCheckTest, aWeeklyNoteRingsOnItsWeekdayOnlyInAProgramThatRunsOn) {
  folder.notes[L"Choir.tx2"] = "19|0|0|0|1|0|0|0|0|x";  // Tuesdays
  alarms.Update_All_Al();
  tickAt(19, 0, 1);
  EXPECT_EQ(rang(), Names{});
  clock.time.day = 3;
  clock.time.weekday = kTuesday;
  tickAt(0, 1, 1);
  tickAt(19, 0, 1);
  EXPECT_EQ(rang(), Names{L"Choir.tx2"});
  clock.time.day = 4;
  clock.time.weekday = kWednesday;
  tickAt(0, 1, 1);
  tickAt(19, 0, 1);
  EXPECT_EQ(rang(), Names{});
}

TEST_F(AlarmCheckTest, aFolderThatIsAwayWhenADayBeginsRingsOnceItIsBack) {
  const std::map<std::wstring, std::string> notes = {{L"Gym.tx1", "7|30|x"}};
  folder.notes = notes;
  alarms.Update_All_Al();
  folder.notes.clear();
  clock.time.day = 3;
  clock.time.weekday = kTuesday;
  tickAt(0, 0, 1);
  tickAt(0, 1, 1);
  folder.notes = notes;
  tickAt(7, 30, 1);
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
  const int listings = folder.listings;
  tickAt(7, 31, 1);
  EXPECT_EQ(folder.listings, listings);
}

TEST_F(AlarmCheckTest, aFolderThatWasAwayBringsNoNewsOfItsDamagedNotes) {
  const std::map<std::wstring, std::string> notes = {{L"Choir.tx2", "19|0|x|1|1|1|1|1|1|"}};
  folder.notes = notes;
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls().size(), 1U);
  folder.notes.clear();
  clock.time.day = 3;
  clock.time.weekday = kTuesday;
  tickAt(0, 0, 1);
  folder.notes = notes;
  clock.time.day = 4;
  clock.time.weekday = kWednesday;
  tickAt(0, 1, 1);
  EXPECT_TRUE(host.takeCalls().empty());
}

TEST_F(AlarmCheckTest, aWeeklyNoteThatWasBrokenMeanwhileIsToldOnTheNextDayOnceAfterTheCheck) {
  folder.notes[L"Choir.tx2"] = "0|1|1|1|x|1|1|1|1|";
  folder.notes[L"Bells.txt"] = "0|1|";
  clock.time.day = 3;
  clock.time.weekday = kTuesday;
  int pendingThen = 0;
  host.isShown = true;
  host.during = [&](const std::wstring&) { pendingThen = alarms.pending(); };
  tickAt(0, 1, 1);
  tickAt(0, 2, 1);
  host.during = nullptr;
  EXPECT_EQ(host.takeCalls(),
            (Calls{L"Error! These notes do not ring, because they cannot be read:\r\nChoir.tx2"}));
  EXPECT_EQ(pendingThen, 1);
  EXPECT_EQ(rang(), Names{L"Bells.txt"});
}

TEST_F(AlarmCheckTest, theFirstTickBuildsTheTableWhereNothingDidBefore) {
  for (int weekday = kSunday; weekday <= kSaturday; ++weekday) {
    clock.time.weekday = weekday;
    setTime(7, 30, 1);
    AlarmCheck fresh(ports(), host);
    fresh.Spr1m();
    EXPECT_EQ(host.putAwayAll(fresh), Names{L"Gym.tx1"}) << "weekday " << weekday;
  }
}

TEST_F(AlarmCheckTest, aNoteRingsAgainTheNextDay) {
  tickAt(7, 30, 1);
  tickAt(7, 31, 1);
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
  clock.time.day = 3;
  clock.time.weekday = kTuesday;
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
}

TEST_F(AlarmCheckTest, savingInTheMinuteOfANoteQueuesItTwice) {
  setTime(7, 30, 0);
  alarms.Update_All_Al();
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
}

TEST_F(AlarmCheckTest, savingAfterTheTimerCheckedLetsItCheckTheMinuteAgain) {
  tickAt(7, 30, 1);
  alarms.Update_All_Al();
  tickAt(7, 30, 1);
  EXPECT_EQ(rang(), (Names{L"Gym.tx1", L"Gym.tx1", L"Gym.tx1"}));
}

TEST_F(AlarmCheckTest, aCheckKeepsWhatWaitsAndBringsNothingBackThatWasShown) {
  folder.notes[L"Run.tx1"] = "7|30|x";
  alarms.Update_All_Al();
  tickAt(7, 30, 1);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
  setTime(8, 0, 0);
  alarms.Sprawdzaj_alarmy();
  EXPECT_EQ(alarms.pending(), 1);
  EXPECT_EQ(rang(), (Names{L"Gym.tx1", L"Run.tx1"}));
}

TEST_F(AlarmCheckTest, whatIsFoundWhileTheWindowIsOutWaits) {
  host.isShown = true;
  tickAt(7, 30, 1);
  EXPECT_EQ(alarms.pending(), 1);
  EXPECT_TRUE(host.takeCalls().empty());
  EXPECT_TRUE(alarms.hasReminders());
  host.isShown = false;
  tickAt(7, 31, 1);
  EXPECT_EQ(alarms.pending(), 0);
  EXPECT_EQ(host.onShow, L"Gym.tx1");
}

TEST_F(AlarmCheckTest, monthlyNotesWaitForTheFirstShowing) {
  folder.notes = {{L"Rent.tx3", "2|||"}};
  alarms.Update_All_Al_komp();
  alarms.Update_All_Al();
  EXPECT_EQ(alarms.pending(), 1);
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(host.onShow, L"Rent.tx3");
}

TEST_F(AlarmCheckTest, startQueuesDaysAndTimesOverOneListing) {
  folder.notes = {{L"Rent.tx3", "2|||"}, {L"Tea.txt", "7|30|x"}, {L"Year.tx4", "3|2|||"}};
  setTime(7, 30, 0);
  folder.listings = 0;
  folder.reads.clear();
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(folder.listings, 1);
  EXPECT_EQ(folder.reads, (std::vector<std::wstring>{L"Rent.tx3", L"Year.tx4", L"Tea.txt"}));
  EXPECT_EQ(rang(), (Names{L"Rent.tx3", L"Tea.txt"}));
}

TEST_F(AlarmCheckTest, aSaveAfterTheStartListsTheFolderAgain) {
  alarms.updateAtStart(folder.listed());
  folder.notes = {{L"New.txt", "7|30|x"}};
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{L"New.txt"});
}

TEST_F(AlarmCheckTest, startTellsOfEachRefusedNoteOnceThoseOfDaysFirst) {
  const std::string large(32768, 'x');
  folder.notes = {{L"a.txt", "x|y"},
                  {L"big.txt", large},
                  {L"big.tx3", large},
                  {L"bad.tx2", "7|30|?"},
                  {L"bad.tx3", "?"}};
  alarms.updateAtStart(folder.listed());
  alarms.tellFaults();
  const std::wstring refused = L"Error! The file is too large to open!";
  const std::wstring unread = L"Error! These notes do not ring, because they cannot be read:\r\n";
  EXPECT_EQ(host.takeCalls(), (std::vector<std::wstring>{refused, unread + L"bad.tx3", refused,
                                                         unread + L"bad.tx2"}));
}

TEST_F(AlarmCheckTest, aRefusedNoteIsNotToldAgainBecauseAnotherOneIsWritten) {
  comfort.Keep_typing = true;
  folder.notes = {{L"big.txt", std::string(32768, 'x')}, {L"a.tx1", "6|5|x"}};
  alarms.Update_All_Al();
  const Names kRefused{L"Error! The file is too large to open!"};
  EXPECT_EQ(host.takeCalls(), kRefused);
  for (const int minute : {1, 2}) {
    alarms.noteWritten(L"a.tx1");
    tickAt(6, minute, 1);
    EXPECT_EQ(host.takeCalls(), Names{}) << minute;
  }
  folder.notes[L"larger.txt"] = std::string(32768, 'x');
  alarms.noteWritten(L"larger.txt");
  tickAt(6, 3, 1);
  EXPECT_EQ(host.takeCalls(), kRefused) << "another one is news";
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(), (Names{kRefused[0], kRefused[0]})) << "whoever saves is told";
}

TEST_F(AlarmCheckTest, runningPastMidnightDoesNotQueueTheNextDaysMonthlyNotes) {
  folder.notes = {{L"Rent.tx3", "3|||"}};
  alarms.Update_All_Al_komp();
  alarms.Update_All_Al();
  clock.time.day = 3;
  for (int minute = 0; minute < 60; ++minute) tickAt(0, minute, 1);
  EXPECT_EQ(rang(), Names{});
}
}  // namespace
}  // namespace kalvora
