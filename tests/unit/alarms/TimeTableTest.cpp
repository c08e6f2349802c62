#include "alarms/TimeTable.h"

#include <gtest/gtest.h>

#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

using namespace std::string_literals;

class TimeTableTest : public AlarmWorld {
 protected:
  AlarmNoteReader readerOf() const {
    return {folder, codePage, "notes", folder.listed(), knownKinds(comfort)};
  }
  /// A new table of the folder.
  std::wstring table() const {
    AlarmNoteReader notes = readerOf();
    TimeTable built;
    built.turnTo({clock.time.weekday});
    built.rebuild(notes);
    return built.text();
  }
};

TEST_F(TimeTableTest, aNoteThatWasNotWrittenSinceIsNotReadAgain) {
  folder.notes = {{L"old.txt", "7|30|x"},
                  {L"week.tx2", "8|0|0|1|0|0|0|0|0|"},
                  {L"young.txt", "9|0|x"},
                  {L"large.txt", std::string(32768, 'x')}};
  folder.written = {{L"old.txt", 5}, {L"week.tx2", 6}, {L"large.txt", 7}};
  const auto read = [&](TimeTable& built, int weekday) {
    folder.reads.clear();
    AlarmNoteReader notes = readerOf();
    built.turnTo({weekday});
    built.rebuild(notes);
    return folder.reads;
  };
  TimeTable built;
  EXPECT_EQ(read(built, 1), (Names{L"large.txt", L"old.txt", L"young.txt", L"week.tx2"}));
  const std::wstring before = built.text();
  EXPECT_EQ(read(built, 1), (Names{L"large.txt", L"young.txt"})) << "told of, and not settled";
  EXPECT_EQ(built.text(), before);
  EXPECT_EQ(read(built, 2), (Names{L"large.txt", L"young.txt"}));
  EXPECT_EQ(built.text(), L":-large.txt|7:30-old.txt|9:0-young.txt|");
  folder.notes[L"old.txt"] = "7|45|x";
  folder.written[L"old.txt"] = 8;
  EXPECT_EQ(read(built, 2), (Names{L"large.txt", L"old.txt", L"young.txt"}));
  EXPECT_EQ(built.text(), L":-large.txt|7:45-old.txt|9:0-young.txt|");
}

TEST_F(TimeTableTest, aLongTextInPlaceOfATimeIsNotKeptInMemory) {
  folder.notes = {{L"text.txt", std::string(500, 'x')}, {L"time.txt", "7|30|x"}};
  folder.written = {{L"text.txt", 5}, {L"time.txt", 5}};
  TimeTable built;
  for (const Names& expected : {Names{L"text.txt", L"time.txt"}, Names{L"text.txt"}}) {
    folder.reads.clear();
    AlarmNoteReader notes = readerOf();
    built.turnTo({clock.time.weekday});
    built.rebuild(notes);
    EXPECT_EQ(folder.reads, expected);
  }
}

TEST_F(TimeTableTest, aFolderWithoutNotesGivesAnEmptyTable) {
  EXPECT_EQ(table(), L"");
  alarms.Update_All_Al();
  EXPECT_TRUE(host.takeCalls().empty());
  EXPECT_EQ(rang(), Names{});
}

TEST_F(TimeTableTest, anEntryIsHourColonMinuteDashNameBar) {
  folder.notes[L"Gym.tx1"] = "7|30|Gym at noon";
  EXPECT_EQ(table(), L"7:30-Gym.tx1|");
}

TEST_F(TimeTableTest, fastNotesComeFirstThenDailyThenWeeklyEachInTheOrderOfTheList) {
  folder.notes[L"a.tx1"] = "1|0|";
  folder.notes[L"b.txt"] = "2|0|";
  folder.notes[L"c.tx2"] = "3|0|0|1|0|0|0|0|0|";
  folder.notes[L"D.txt"] = "4|0|";
  folder.notes[L"e.tx1"] = "5|0|";
  folder.notes[L"A.tx2"] = "6|0|0|1|0|0|0|0|0|";
  EXPECT_EQ(table(), L"2:0-b.txt|4:0-D.txt|1:0-a.tx1|5:0-e.tx1|6:0-A.tx2|3:0-c.tx2|");
}

TEST_F(TimeTableTest, monthlyYearlyAndOtherFilesHaveNoEntry) {
  folder.notes[L"a.tx3"] = "2|0|1|1|";
  folder.notes[L"a.tx4"] = "2|2|1|1|";
  folder.notes[L"a.tx5"] = "6|0|";
  folder.notes[L"a.txt2"] = "6|0|";
  folder.notes[L"read me"] = "6|0|";
  EXPECT_EQ(table(), L"");
  EXPECT_TRUE(folder.reads.empty());
}

TEST_F(TimeTableTest, kindsAreToldWithoutRegardToCase) {
  folder.notes[L"GYM.TX1"] = "7|30|x";
  EXPECT_EQ(table(), L"7:30-GYM.TX1|");
}

TEST_F(TimeTableTest, fieldsStandAsTheyAreStored) {
  folder.notes[L"a.txt"] = "07|5|x";
  folder.notes[L"b.txt"] = "||no time";
  folder.notes[L"c.txt"] = "24|0|x";
  folder.notes[L"d.txt"] = "\x80 7|\xFC|x";  // through the code page
  EXPECT_EQ(table(), L"07:5-a.txt|:-b.txt|24:0-c.txt|\x20AC 7:\xFC-d.txt|");
}

TEST_F(TimeTableTest, aWeeklyNoteIsThereOnItsWeekdaysOnly) {
  folder.notes[L"Gym.tx2"] = "7|30|0|1|0|0|0|1|0|Gym";
  for (int day = kSunday; day <= kSaturday; ++day) {
    clock.time.weekday = day;
    const bool rings = day == kMonday || day == kFriday;
    EXPECT_EQ(table(), rings ? L"7:30-Gym.tx2|" : L"") << "weekday " << day;
  }
}

TEST_F(TimeTableTest, sundayIsTheFirstAndSaturdayTheLastWeekdayField) {
  folder.notes[L"first.tx2"] = "7|30|1|0|0|0|0|0|0|";
  folder.notes[L"last.tx2"] = "7|30|0|0|0|0|0|0|1|";
  clock.time.weekday = kSunday;
  EXPECT_EQ(table(), L"7:30-first.tx2|");
  clock.time.weekday = kSaturday;
  EXPECT_EQ(table(), L"7:30-last.tx2|");
}

TEST_F(TimeTableTest, aWeekdayIsTickedByTheNumberOneAlone) {
  folder.notes[L"a.tx2"] = "7|30|0|01|0|0|0|0|0|";  // the number 1, however it is written
  folder.notes[L"b.tx2"] = "7|30|0|2|0|0|0|0|0|";
  folder.notes[L"c.tx2"] = "7|30|0|-1|0|0|0|0|0|";
  folder.notes[L"d.tx2"] = "7|30|0||0|0|0|0|0|";
  EXPECT_EQ(table(), L"7:30-a.tx2|");
  alarms.Update_All_Al();
  EXPECT_TRUE(host.takeCalls().empty());
}

TEST_F(TimeTableTest, aFileThatEndsEarlyGivesFieldsThatNeverRing) {
  folder.notes[L"a.txt"] = "";
  folder.notes[L"b.txt"] = "6";
  folder.notes[L"c.txt"] = "6|";
  folder.notes[L"d.tx2"] = "";
  folder.notes[L"e.tx2"] = "7|30|0|1";  // its last field is Monday's
  EXPECT_EQ(table(), L"\0:\0-a.txt|6:\0-b.txt|6:\0-c.txt|7:30-e.tx2|"s);
  setTime(6, 0, 0);
  alarms.Update_All_Al();
  EXPECT_TRUE(host.takeCalls().empty());
  EXPECT_EQ(rang(), Names{});
}

TEST_F(TimeTableTest, eachNoteIsReadOnceAndTheFolderListedOnce) {
  folder.notes[L"a.txt"] = "7|30|x";
  folder.notes[L"b.tx1"] = "7|30|x";
  folder.notes[L"c.tx2"] = "7|30|0|1|0|0|0|0|0|x";
  folder.notes[L"d.tx3"] = "2|||x";
  alarms.Update_All_Al();
  EXPECT_EQ(folder.reads, (std::vector<std::wstring>{L"a.txt", L"b.tx1", L"c.tx2"}));
  EXPECT_EQ(folder.listings, 1);
}

TEST_F(TimeTableTest, isBuiltAnewEachTime) {
  folder.notes[L"a.txt"] = "7|30|x";
  alarms.Update_All_Al();
  folder.notes.clear();
  folder.notes[L"b.txt"] = "8|0|x";
  alarms.Update_All_Al();
  EXPECT_EQ(rangAt(7, 30), Names{});
  EXPECT_EQ(rangAt(8, 0), Names{L"b.txt"});
}

// Refused, damaged and vanished notes.

TEST_F(TimeTableTest, theLargestNoteHas32767Bytes) {
  const std::string start = "7|30|";
  folder.notes[L"a.txt"] = start + std::string(32767 - start.size(), 'x');
  EXPECT_EQ(table(), L"7:30-a.txt|");
  alarms.Update_All_Al();
  EXPECT_TRUE(host.takeCalls().empty());
}

TEST_F(TimeTableTest, aLargerNoteIsRefusedAndItsEntryNeverRings) {
  folder.notes[L"a.txt"] = "6|0|" + std::string(32768 - 4, 'x');
  folder.notes[L"b.txt"] = "6|0|";
  EXPECT_EQ(table(), L":-a.txt|6:0-b.txt|");
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(),
            (std::vector<std::wstring>{L"Error! The file is too large to open!"}));
  EXPECT_EQ(rang(), Names{L"b.txt"});
}

TEST_F(TimeTableTest, aLargeWeeklyNoteIsRefusedAndHasNoEntry) {
  folder.notes[L"a.tx2"] = "6|0|1|1|1|1|1|1|1|" + std::string(40000, 'x');
  EXPECT_EQ(table(), L"");
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(),
            (std::vector<std::wstring>{L"Error! The file is too large to open!"}));
}

TEST_F(TimeTableTest, aRefusalIsToldForEachAttemptToOpen) {
  folder.notes[L"a.txt"] = std::string(40000, 'x');
  folder.notes[L"b.tx1"] = std::string(40000, 'x');
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls().size(), 2U);
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls().size(), 2U);
}

TEST_F(TimeTableTest, aWeekdayThatIsNoNumberTakesItsNoteAloneOutOfTheTable) {
  folder.notes[L"a.tx2"] = "6|0|1|1|1|1|1|1|1|";
  folder.notes[L"b.tx2"] = "6|0|1|1|1|1|1|yes|1|";  // not even today's
  folder.notes[L"c.tx2"] = "6|0|1|99999|1|1|1|1|1|";
  folder.notes[L"d.tx2"] = "6|0|1|1|1|1|1|1|1|";
  alarms.Update_All_Al();
  EXPECT_EQ(
      host.takeCalls(),
      (std::vector<std::wstring>{
          L"Error! These notes do not ring, because they cannot be read:\r\nb.tx2\r\nc.tx2"}));
  EXPECT_EQ(rang(), (Names{L"a.tx2", L"d.tx2"}));
}

TEST_F(TimeTableTest, aDamagedNoteIsToldOnceUntilItWasMended) {
  folder.notes[L"b.tx2"] = "6|0|x|1|1|1|1|1|1|";
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls().size(), 1U);
  alarms.Update_All_Al();
  EXPECT_TRUE(host.takeCalls().empty());
  folder.notes[L"b.tx2"] = "6|0|1|1|1|1|1|1|1|";
  alarms.Update_All_Al();
  folder.notes[L"b.tx2"] = "6|0|x|1|1|1|1|1|1|";
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls().size(), 1U);
}

TEST_F(TimeTableTest, aWeeklyNoteWithABrokenHourHasAnEntryThatNeverRings) {
  folder.notes[L"a.tx2"] = "six|0|1|1|1|1|1|1|1|";
  folder.notes[L"b.tx2"] = "6|0|1|1|1|1|1|1|1|";
  EXPECT_EQ(table(), L"six:0-a.tx2|6:0-b.tx2|");
  alarms.Update_All_Al();
  EXPECT_EQ(rang(), Names{L"b.tx2"});
}

TEST_F(TimeTableTest, aNoteThatVanishesBeforeItIsReadIsLeftOutSilently) {
  folder.notes[L"a.txt"] = "6|0|";
  folder.notes[L"b.txt"] = "6|0|";
  folder.notes[L"c.txt"] = "6|0|";
  folder.beforeRead = [this](const std::wstring& name) {
    if (name == L"a.txt") folder.notes.erase(L"b.txt");
  };
  alarms.Update_All_Al();
  EXPECT_TRUE(host.takeCalls().empty());
  EXPECT_EQ(rang(), (Names{L"a.txt", L"c.txt"}));
}

TEST_F(TimeTableTest, aNoteThatIsThereButCannotBeReadIsTold) {
  folder.notes[L"a.txt"] = "6|0|";
  folder.notes[L"b.txt"] = "6|0|";
  folder.locked = L"a.txt";
  alarms.Update_All_Al();
  EXPECT_EQ(host.takeCalls(),
            (std::vector<std::wstring>{
                L"Error! These notes do not ring, because they cannot be read:\r\na.txt"}));
  EXPECT_EQ(rang(), Names{L"b.txt"});
}

TEST_F(TimeTableTest, aFolderThatDisappearsWhileItIsReadLeavesWhatWasRead) {
  folder.notes[L"a.txt"] = "6|0|";
  folder.notes[L"b.tx1"] = "6|0|";
  folder.notes[L"c.tx2"] = "6|0|1|1|1|1|1|1|1|";
  folder.beforeRead = [this](const std::wstring& name) {
    if (name == L"b.tx1") folder.notes.clear();
  };
  alarms.Update_All_Al();
  EXPECT_EQ(rang(), Names{L"a.txt"});
}

// What is due.

class Due : public AlarmWorld {
 protected:
  /// What rings after a check of a table of one entry at a time of day.
  Names dueAt(int hour, int minute, const std::string& bytes) {
    folder.notes = {{L"a.txt", bytes}};
    setTime(hour, minute, 30);
    alarms.Update_All_Al_komp();
    alarms.Update_All_Al();
    return rang();
  }
};

TEST_F(Due, hourAndMinuteAreComparedAsNumbers) {
  EXPECT_EQ(dueAt(7, 5, "7|5|x"), Names{L"a.txt"});
  EXPECT_EQ(dueAt(7, 5, "07|05|x"), Names{L"a.txt"});
  EXPECT_EQ(dueAt(7, 50, "7|5|x"), Names{});
  EXPECT_EQ(dueAt(19, 5, "7|5|x"), Names{});
  EXPECT_EQ(dueAt(0, 0, "0|0|x"), Names{L"a.txt"});
}

TEST_F(Due, hour24NeverRings) {
  for (int hour = 0; hour < 24; ++hour) {
    EXPECT_EQ(dueAt(hour, 0, "24|0|x"), Names{}) << hour;
  }
}

TEST_F(Due, anEmptyHourOrMinuteNeverRings) {
  for (int hour = 0; hour < 24; ++hour) {
    EXPECT_EQ(dueAt(hour, 0, "|0|x"), Names{});
    EXPECT_EQ(dueAt(hour, 0, std::to_string(hour) + "||x"), Names{});
    EXPECT_EQ(dueAt(hour, 0, "||x"), Names{});
  }
}

TEST_F(Due, timesBeyond16BitsNeverRingAndDoNotDisturbTheOthers) {
  folder.notes[L"a.txt"] = "65542|0|x";
  folder.notes[L"b.txt"] = "6|99999999999999999999|x";
  folder.notes[L"c.txt"] = "6|0|x";
  alarms.Update_All_Al();
  EXPECT_EQ(rang(), Names{L"c.txt"});
}

TEST_F(Due, moreThan32767NotesOfOneMinuteFillTheQueueAndNoMore) {
  for (int i = 0; i < 33000; ++i) {
    folder.notes[L"note" + std::to_wstring(i) + L".txt"] = "6|0|";
  }
  alarms.Update_All_Al();
  EXPECT_EQ(alarms.pending(), 32767);
  alarms.Sprawdz_jeden_alarm();
  EXPECT_EQ(alarms.pending(), 32766);
  EXPECT_EQ(host.onShow, L"note0.txt");
}

}  // namespace
}  // namespace kalvora
