#include <gtest/gtest.h>

#include <vector>

#include "alarms/AlarmCheck.h"
#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

// The clocks are put forward and back.

class ClockChange : public AlarmWorld {
 protected:
  static constexpr int kSummer = 120;
  static constexpr int kWinter = 60;

  void tickAllMinutes(int fromHour, int toHour, int utcOffset) {
    clock.time.utcOffset = utcOffset;
    for (int minute = fromHour * 60; minute < toHour * 60; ++minute) {
      tickAt(minute / 60, minute % 60, 1);
    }
  }
};

TEST_F(ClockChange, inTheHourThatComesTwiceNothingRingsTwiceAndNothingStops) {
  folder.notes = {{L"a.txt", "1|59|"}, {L"b.txt", "2|0|"}, {L"c.txt", "2|30|"},
                  {L"d.txt", "2|59|"}, {L"e.txt", "3|0|"}, {L"f.txt", "3|30|"}};
  alarms.Update_All_Al();
  tickAllMinutes(1, 3, kSummer);
  tickAllMinutes(2, 4, kWinter);
  EXPECT_EQ(rang(), (Names{L"a.txt", L"b.txt", L"c.txt", L"d.txt", L"e.txt", L"f.txt"}));
}

TEST_F(ClockChange, inTheHourThatIsLeftOutNothingRingsAndAfterItAllDo) {
  folder.notes = {{L"a.txt", "1|59|"}, {L"b.txt", "2|30|"}, {L"c.txt", "3|0|"}};
  alarms.Update_All_Al();
  tickAllMinutes(1, 2, kWinter);
  tickAllMinutes(3, 4, kSummer);
  EXPECT_EQ(rang(), (Names{L"a.txt", L"c.txt"}));
}

TEST_F(ClockChange, whatTheComputerSleptThroughRingsInTheSecondPass) {
  folder.notes = {{L"a.txt", "2|10|"}, {L"b.txt", "2|40|"}};
  alarms.Update_All_Al();
  clock.time.utcOffset = kSummer;
  for (int minute = 0; minute < 20; ++minute) tickAt(2, minute, 1);
  tickAllMinutes(2, 3, kWinter);
  EXPECT_EQ(rang(), (Names{L"a.txt", L"b.txt"}));
}

TEST_F(ClockChange, aNoteOfTheSecondPassRingsInItAndNothingElseRingsTwice) {
  folder.notes = {{L"a.txt", "2|10|"}};
  alarms.Update_All_Al();
  tickAllMinutes(1, 3, kSummer);
  clock.time.utcOffset = kWinter;
  for (int minute = 0; minute < 5; ++minute) tickAt(2, minute, 1);
  folder.notes[L"b.txt"] = "2|10|";
  folder.notes[L"c.txt"] = "2|40|";
  alarms.Update_All_Al();
  for (int minute = 5; minute < 60; ++minute) tickAt(2, minute, 1);
  tickAllMinutes(3, 4, kWinter);
  EXPECT_EQ(rang(), (Names{L"a.txt", L"b.txt", L"c.txt"}));
}

TEST_F(ClockChange, aNoteOfTheFirstPassWhoseMinuteWasOverRingsInTheSecond) {
  alarms.Update_All_Al();
  tickAllMinutes(1, 3, kSummer);
  folder.notes = {{L"a.txt", "2|10|"}};
  alarms.Update_All_Al();
  tickAllMinutes(2, 4, kWinter);
  EXPECT_EQ(rang(), Names{L"a.txt"});
}

TEST_F(ClockChange, aNoteThatIsGivenALaterTimeRingsAtIt) {
  folder.notes = {{L"a.txt", "2|10|"}};
  alarms.Update_All_Al();
  tickAllMinutes(1, 3, kSummer);
  folder.notes = {{L"a.txt", "2|40|"}};
  clock.time.utcOffset = kWinter;
  tickAt(2, 5, 1);
  alarms.Update_All_Al();
  tickAllMinutes(2, 4, kWinter);
  EXPECT_EQ(rang(), (Names{L"a.txt", L"a.txt"}));
}

TEST_F(ClockChange, aSaveInTheMinuteThatComesAgainDoesNotRingWhatRangInIt) {
  folder.notes = {{L"a.txt", "2|10|"}};
  alarms.Update_All_Al();
  tickAllMinutes(1, 3, kSummer);
  clock.time.utcOffset = kWinter;
  setTime(2, 10, 30);
  alarms.Update_All_Al();
  EXPECT_EQ(rang(), Names{L"a.txt"});
}

TEST_F(ClockChange, aStartInTheSecondPassRingsWhatIsDue) {
  folder.notes = {{L"a.txt", "2|10|"}, {L"b.txt", "2|40|"}};
  clock.time.utcOffset = kWinter;
  setTime(2, 10, 30);
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rang(), Names{L"a.txt"});
  for (int minute = 11; minute < 60; ++minute) tickAt(2, minute, 1);
  EXPECT_EQ(rang(), Names{L"b.txt"});
}

TEST_F(ClockChange, anHourThatComesTwiceAroundMidnightRingsOnceOnEachDay) {
  folder.notes = {{L"a.tx1", "23|50|"}, {L"b.tx1", "0|10|"}};
  alarms.Update_All_Al();
  const auto pass = [&](int day, int weekday, int from, int to, int utcOffset) {
    clock.time.day = day;
    clock.time.weekday = weekday;
    clock.time.utcOffset = utcOffset;
    for (int minute = from; minute < to; ++minute) tickAt(minute / 60, minute % 60, 1);
  };
  // At half past midnight the clocks are put back to half past eleven.
  constexpr int kDay = 24 * 60;
  pass(2, kMonday, kDay - 60, kDay, kSummer);
  pass(3, kTuesday, 0, 30, kSummer);
  pass(2, kMonday, kDay - 30, kDay, kWinter);
  pass(3, kTuesday, 0, 60, kWinter);
  EXPECT_EQ(rang(), (Names{L"a.tx1", L"b.tx1"}));
}

TEST_F(ClockChange, aReminderThatWaitsIsShownInTheSecondPass) {
  folder.notes = {{L"a.txt", "2|10|"}};
  alarms.Update_All_Al();
  host.isShown = true;
  tickAllMinutes(1, 3, kSummer);
  host.isShown = false;
  clock.time.utcOffset = kWinter;
  tickAt(2, 0, 1);
  EXPECT_EQ(host.onShow, L"a.txt");
}

TEST_F(ClockChange, aClockThatTheUserSetsBackRingsAgain) {
  folder.notes = {{L"a.txt", "2|10|"}};
  alarms.Update_All_Al();
  tickAllMinutes(2, 3, kSummer);
  tickAllMinutes(2, 3, kSummer);
  EXPECT_EQ(rang(), (Names{L"a.txt", L"a.txt"}));
}

TEST_F(ClockChange, aJourneyWestDoesNotSilenceTheProgram) {
  folder.notes = {{L"a.txt", "10|0|"}};
  for (const int putBack : {61, 120, 360}) {
    alarms.Update_All_Al_komp();
    alarms.Update_All_Al();
    tickAllMinutes(8, 11, kSummer);
    tickAllMinutes(10, 12, kSummer - putBack);
    EXPECT_EQ(rang(), (Names{L"a.txt", L"a.txt"})) << putBack;
  }
}
}  // namespace
}  // namespace kalvora
