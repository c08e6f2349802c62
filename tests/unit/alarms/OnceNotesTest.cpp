// Notes for one date: they ring on it and never else, and not at all for who does not have them.

#include <gtest/gtest.h>

#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

class OnceNotes : public AlarmWorld {
 protected:
  OnceNotes() { comfort.Once_notes = true; }
  void beginDay(int day) {
    clock.time.day = day;
    clock.time.weekday = (kMonday + day - 2) % 7;
  }
};

TEST_F(OnceNotes, ringAtTheirTimeOnTheirDateOnly) {
  folder.notes[L"Dentist.tx5"] = "2026|3|3|7|30|x";
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rangAt(7, 30), Names{});
  beginDay(3);
  EXPECT_EQ(rangAt(7, 29), Names{});
  EXPECT_EQ(rangAt(7, 30), Names{L"Dentist.tx5"});
  EXPECT_EQ(rangAt(7, 31), Names{});
  beginDay(4);
  EXPECT_EQ(rangAt(7, 30), Names{});
}

TEST_F(OnceNotes, ringInAMinuteOfTheirOwnYearAndMonth) {
  folder.notes[L"Dentist.tx5"] = "2026|3|2|7|30|x";
  for (const auto& [year, month] : {std::pair{2027, 3}, {2026, 4}, {2025, 3}}) {
    clock.time.year = year;
    clock.time.month = month;
    EXPECT_EQ(rangAt(7, 30), Names{});
    tickAt(7, 29, 1);
  }
  clock.time.year = 2026;
  clock.time.month = 3;
  EXPECT_EQ(rangAt(7, 30), Names{L"Dentist.tx5"});
}

TEST_F(OnceNotes, ofAnotherDayOfTheSameWeekdayAreFoundToo) {
  folder.notes[L"Dentist.tx5"] = "2026|3|9|7|30|x";
  folder.notes[L"Over.tx5"] = "2026|3|2|7|30|x";
  alarms.updateAtStart(folder.listed());
  // The computer slept for a week: it is Monday again.
  beginDay(9);
  EXPECT_EQ(rangAt(7, 30), Names{L"Dentist.tx5"});
}

TEST_F(OnceNotes, comeAfterTheWeeklyOnesInTheOrderOfTheirNames) {
  folder.notes = {{L"b.tx5", "2026|3|2|6|0|"},
                  {L"A.tx5", "2026|3|2|06|00|"},
                  {L"z.tx2", "6|0|0|1|0|0|0|0|0|"},
                  {L"z.tx1", "6|0|"},
                  {L"z.txt", "6|0|"}};
  alarms.updateAtStart(folder.listed());
  EXPECT_EQ(rang(), (Names{L"z.txt", L"z.tx1", L"z.tx2", L"A.tx5", L"b.tx5"}));
}

TEST_F(OnceNotes, standInTheTableOfTheirDateAsTheOthersDo) {
  folder.notes = {{L"Gym.tx1", "7|30|"},
                  {L"Dentist.tx5", "2026|3|2|07|5|x"},
                  {L"Other.tx5", "2026|3|3|07|5|x"}};
  AlarmNoteReader notes(folder, codePage, "notes", folder.listed(), kNoteKinds);
  TimeTable table;
  using namespace std::chrono;
  table.turnTo({kMonday, 2026y / March / 2});
  table.rebuild(notes);
  EXPECT_EQ(table.text(), L"7:30-Gym.tx1|07:5-Dentist.tx5|");
  EXPECT_FALSE(table.turnTo({kMonday, 2026y / March / 2}));
  EXPECT_TRUE(table.turnTo({kTuesday, 2026y / March / 3}));
  EXPECT_EQ(table.text(), L"7:30-Gym.tx1|");
  table.rebuild(notes);
  EXPECT_EQ(table.text(), L"7:30-Gym.tx1|07:5-Other.tx5|");
}

TEST_F(OnceNotes, thatWereNotWrittenSinceAreNotReadAgainOnTheirDate) {
  folder.notes[L"Dentist.tx5"] = "2026|3|3|7|30|x";
  folder.written[L"Dentist.tx5"] = 5;
  alarms.updateAtStart(folder.listed());
  folder.reads.clear();
  beginDay(3);
  EXPECT_EQ(rangAt(7, 30), Names{L"Dentist.tx5"});
  EXPECT_EQ(folder.reads, Names{});
}

TEST_F(OnceNotes, ofTwoDatesAtOneTimeAreRememberedApart) {
  folder.notes = {{L"a.tx5", "2026|3|3|7|30|x"}, {L"b.tx5", "2026|3|4|7|30|x"}};
  folder.written = {{L"a.tx5", 5}, {L"b.tx5", 5}};
  alarms.updateAtStart(folder.listed());
  beginDay(3);
  EXPECT_EQ(rangAt(7, 30), Names{L"a.tx5"});
  beginDay(4);
  tickAt(7, 29, 1);
  EXPECT_EQ(rangAt(7, 30), Names{L"b.tx5"});
}

// Damage.

TEST_F(OnceNotes, ofADateThatThereIsNotAreToldOnceAndKeepNoOtherFromRinging) {
  folder.notes = {{L"Bad.tx5", "2026|2|31|6|0|x"},
                  {L"Odd.tx5", "2026|3|2|6:0|0|x"},
                  {L"Text.tx5", "Just a text"},
                  {L"Good.tx5", "2026|3|2|6|0|x"}};
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(),
            (Names{L"Error! These notes do not ring, because they cannot be read:\r\n"
                   L"Bad.tx5\r\nOdd.tx5\r\nText.tx5"}));
  EXPECT_EQ(rang(), Names{L"Good.tx5"});
  host.takeCalls();
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(), Names{});
}

TEST_F(OnceNotes, withoutADateOrATimeNeverRingAndNothingIsToldOfThem) {
  folder.notes = {{L"a.tx5", ""},
                  {L"b.tx5", "|||||x"},
                  {L"c.tx5", "2026|3||6|0|x"},
                  {L"d.tx5", "2026|3|2||0|x"},
                  {L"e.tx5", "2026|3|2|6||x"},
                  {L"f.tx5", "2026|3|2|24|0|x"},
                  {L"g.tx5", "2026|3|2"}};
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(), Names{});
  for (int hour = 0; hour < 24; ++hour) {
    tickAt(hour, 1, 1);
    EXPECT_EQ(rangAt(hour, 0), Names{}) << hour;
  }
}

TEST_F(OnceNotes, tooLargeToBeOpenedAreToldAndHaveNoEntry) {
  folder.notes[L"a.tx5"] = "2026|3|2|6|0|" + std::string(40000, 'x');
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(), Names{L"Error! The file is too large to open!"});
  EXPECT_EQ(rang(), Names{});
}

TEST_F(OnceNotes, thatCannotBeOpenedJustNowRingOnceTheyCan) {
  folder.notes[L"Dentist.tx5"] = "2026|3|2|7|30|x";
  folder.locked = L"Dentist.tx5";
  alarms.updateAtStart(folder.listed());
  tickAt(7, 29, 1);
  folder.locked.clear();
  EXPECT_EQ(rangAt(7, 30), Names{L"Dentist.tx5"});
}

TEST_F(OnceNotes, ofYesterdayDoNotRingThoughTheFolderIsAway) {
  folder.notes = {{L"Dentist.tx5", "2026|3|2|7|30|x"}, {L"Gym.tx1", "7|30|x"}};
  alarms.updateAtStart(folder.listed());
  folder.away = true;
  beginDay(3);
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
}

// The tick.

TEST_F(OnceNotes, neverRingForWhoHasNone) {
  comfort.Once_notes = false;
  folder.notes = {{L"Dentist.tx5", "2026|3|2|6|0|x"}, {L"Bad.tx5", "2026|2|31|6|0|x"}};
  alarms.updateAtStart(folder.listed());
  alarms.tellFaults();
  EXPECT_EQ(host.takeCalls(), Names{});
  EXPECT_EQ(rang(), Names{});
  EXPECT_EQ(rangAt(6, 0), Names{});
  EXPECT_EQ(folder.reads, Names{}) << "they are unknown files";
}

TEST_F(OnceNotes, comeAndGoWithTheTickAtTheNextCheck) {
  comfort.Once_notes = false;
  folder.notes = {{L"Dentist.tx5", "2026|3|2|7|30|x"},
                  {L"Late.tx5", "2026|3|2|7|31|x"},
                  {L"Gym.tx2", "7|31|0|1|0|0|0|0|0|x"}};
  alarms.updateAtStart(folder.listed());
  comfort.Once_notes = true;
  EXPECT_EQ(rangAt(7, 30), Names{L"Dentist.tx5"});
  comfort.Once_notes = false;
  EXPECT_EQ(rangAt(7, 31), Names{L"Gym.tx2"});
}

TEST_F(OnceNotes, switchedOffWhileTheFolderIsAwayLeaveTheWeeklyNotesOfToday) {
  folder.notes = {{L"Dentist.tx5", "2026|3|2|7|30|x"}, {L"Gym.tx2", "7|30|0|1|0|0|0|0|0|x"}};
  alarms.updateAtStart(folder.listed());
  folder.away = true;
  comfort.Once_notes = false;
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx2"});
}

TEST_F(OnceNotes, thatWaitWhenTheTickGoesDoNotRing) {
  folder.notes = {{L"Dentist.tx5", "2026|3|2|7|30|x"}, {L"Late.tx5", "2026|3|2|7|30|x"}};
  folder.notes[L"Gym.tx1"] = "7|31|x";
  host.isShown = true;
  alarms.updateAtStart(folder.listed());
  tickAt(7, 30, 1);
  comfort.Once_notes = false;
  host.isShown = false;
  EXPECT_EQ(rangAt(7, 31), Names{L"Gym.tx1"});
}

TEST_F(OnceNotes, thatWaitAloneWhenTheTickGoesLeaveTheWindowAsItIs) {
  folder.notes[L"Dentist.tx5"] = "2026|3|2|7|30|x";
  host.isShown = true;
  alarms.updateAtStart(folder.listed());
  tickAt(7, 30, 1);
  comfort.Once_notes = false;
  host.isShown = false;
  host.takeCalls();
  tickAt(7, 31, 1);
  EXPECT_EQ(host.takeCalls(), Names{});
  EXPECT_FALSE(alarms.hasReminders());
}

TEST_F(OnceNotes, thatTheRunBeforeLeftDoNotRingWithoutTheTick) {
  comfort.Catch_up = true;
  folder.notes = {{L"Dentist.tx5", "2026|3|2|7|30|x"}, {L"Gym.tx1", "7|30|x"}};
  host.isShown = true;
  alarms.updateAtStart(folder.listed());
  tickAt(7, 30, 1);
  comfort.Once_notes = false;
  AlarmCheck next(ports(), host);
  next.updateAtStart(folder.listed());
  EXPECT_EQ(host.putAwayAll(next), Names{L"Gym.tx1"});
}

TEST_F(OnceNotes, ofOthersDoNotMakeTheTableOlder) {
  comfort.Once_notes = false;
  folder.notes[L"Gym.tx1"] = "7|30|x";
  alarms.updateAtStart(folder.listed());
  const int listings = folder.listings;
  beginDay(9);
  EXPECT_EQ(rangAt(7, 30), Names{L"Gym.tx1"});
  EXPECT_EQ(folder.listings, listings) << "the same weekday, as ever";
}

}  // namespace
}  // namespace kalvora
