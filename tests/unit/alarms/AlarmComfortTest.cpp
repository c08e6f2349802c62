// What the ticks of comfort change of the minute's check.

#include <gtest/gtest.h>

#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

class AlarmComfort : public AlarmWorld {
 protected:
  void beginDay(int day) {
    clock.time.day = day;
    clock.time.weekday = (kMonday + day - 2) % 7;
  }
};

TEST_F(AlarmComfort, aDaysNotesRingAtItsFirstCheckWhereTheyAreLookedForEachDay) {
  folder.notes = {{L"Rent.tx3", "3|||x"}, {L"Mary.tx4", "4|2|||x"}};
  for (const bool each : {false, true}) {
    AlarmCheck fresh(ports(), host);
    comfort.Each_day = each;
    beginDay(2);
    setTime(6, 0, 30);
    fresh.updateAtStart(folder.listed());
    beginDay(3);
    setTime(0, 0, 1);
    fresh.Spr1m();
    EXPECT_EQ(host.putAwayAll(fresh), each ? Names{L"Rent.tx3"} : Names{});
    setTime(0, 1, 1);
    fresh.Spr1m();
    EXPECT_EQ(host.putAwayAll(fresh), Names{}) << "once a day";
    beginDay(4);
    setTime(9, 17, 1);
    fresh.Spr1m();
    EXPECT_EQ(host.putAwayAll(fresh), each ? Names{L"Mary.tx4"} : Names{});
  }
}

TEST_F(AlarmComfort, theTickTakesEffectAtTheNextCheck) {
  folder.notes[L"Rent.tx3"] = "3|||x";
  alarms.updateAtStart(folder.listed());
  beginDay(3);
  EXPECT_EQ(rangAt(0, 0), Names{});
  comfort.Each_day = true;
  EXPECT_EQ(rangAt(12, 5), Names{L"Rent.tx3"});
}

TEST_F(AlarmComfort, aDayWhoseFolderWasAwayRingsOnceItIsBack) {
  comfort.Each_day = true;
  folder.notes[L"Rent.tx3"] = "3|||x";
  alarms.updateAtStart(folder.listed());
  beginDay(3);
  folder.away = true;
  EXPECT_EQ(rangAt(0, 0), Names{});
  folder.away = false;
  EXPECT_EQ(rangAt(0, 1), Names{L"Rent.tx3"});
  EXPECT_EQ(rangAt(0, 2), Names{});
}

TEST_F(AlarmComfort, aNoteThatCouldNotBeReadYesterdayRingsOnceToday) {
  comfort.Each_day = true;
  folder.notes[L"Rent.tx3"] = "3|||x";
  folder.locked = L"Rent.tx3";
  alarms.updateAtStart(folder.listed());
  beginDay(3);
  folder.locked.clear();
  EXPECT_EQ(rangAt(0, 0), Names{L"Rent.tx3"});
}

TEST_F(AlarmComfort, aReminderThatAnotherNoteCameOverKeepsNoneWaitingInAnOpenWindow) {
  comfort.Ring_while_out = true;
  host.isShown = true;
  folder.notes = {{L"a.tx1", "7|30|"}, {L"b.tx1", "7|31|"}};
  alarms.Update_All_Al();
  tickAt(7, 30, 1);
  EXPECT_EQ(host.onShow, L"a.tx1");
  tickAt(7, 31, 1);
  EXPECT_EQ(host.onShow, L"a.tx1") << "it stays until it is put away";
  alarms.showAgainLater();
  host.onShow.clear();
  tickAt(7, 32, 1);
  EXPECT_EQ(host.onShow, L"b.tx1");
  EXPECT_EQ(rang(), (Names{L"a.tx1", L"b.tx1", L"a.tx1"}));
}

TEST_F(AlarmComfort, aFaultOfADayNoteIsNotToldAgainAfterItsFolderWasAway) {
  comfort.Each_day = true;
  folder.notes[L"Rent.tx3"] = "third|||x";
  alarms.updateAtStart(folder.listed());
  alarms.tellFaults();
  EXPECT_EQ(host.takeCalls().size(), 1U);
  beginDay(3);
  folder.away = true;
  tickAt(0, 0, 1);
  folder.away = false;
  tickAt(0, 1, 1);
  EXPECT_EQ(host.takeCalls(), Names{});
}

TEST_F(AlarmComfort, aNoteRingsOnceInItsMinuteHoweverOftenItIsSaved) {
  comfort.Once_a_minute = true;
  folder.notes = {{L"Gym.tx1", "7|30|x"}, {L"Run.tx1", "7|31|x"}};
  setTime(7, 30, 0);
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
  setTime(7, 30, 40);
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{});
  EXPECT_EQ(rangAt(7, 31), Names{L"Run.tx1"});
}

TEST_F(AlarmComfort, aNoteSavedInItsMinuteThatDidNotRingYetRings) {
  comfort.Once_a_minute = true;
  tickAt(7, 30, 1);
  folder.notes[L"Gym.tx1"] = "7|30|x";
  setTime(7, 30, 20);
  alarms.Update_All_Al();
  EXPECT_EQ(rang(), Names{L"Gym.tx1"});
}

TEST_F(AlarmComfort, aNoteRingsInItsMinuteOfEachDay) {
  comfort.Once_a_minute = true;
  folder.notes[L"Gym.tx1"] = "7|30|x";
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
  beginDay(3);
  EXPECT_EQ(rangAt(7, 29), Names{});
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
}

}  // namespace
}  // namespace kalvora
