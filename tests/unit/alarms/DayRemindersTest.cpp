#include "alarms/DayReminders.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "fakes/AlarmWorld.h"

namespace kalvora {
namespace {

using Days = std::vector<int>;

class DayRemindersTest : public AlarmWorld {
 protected:
  /// The days of a month of 31 days on which the note is queued, as often as it is.
  Days queuedOn(const std::wstring& name, const std::string& bytes, int month = 1) {
    folder.notes = {{name, bytes}};
    Days days;
    for (int day = 1; day <= 31; ++day) {
      clock.time.month = month;
      clock.time.day = day;
      alarms.Update_All_Al_komp();
      days.insert(days.end(), static_cast<std::size_t>(alarms.pending()), day);
    }
    return days;
  }
  Days monthly(const std::string& bytes) { return queuedOn(L"Rent.tx3", bytes); }
  Days yearly(const std::string& bytes, int month) { return queuedOn(L"Rent.tx4", bytes, month); }
};

TEST_F(DayRemindersTest, aFolderWithoutNotesGivesAnEmptyQueue) {
  alarms.Update_All_Al_komp();
  EXPECT_EQ(rang(), Names{});
  EXPECT_EQ(alarms.pending(), 0);
}

TEST_F(DayRemindersTest, aMonthlyNoteIsQueuedOnItsDay) {
  EXPECT_EQ(monthly("17|||pay"), (Days{17}));
  EXPECT_EQ(monthly("31|||pay"), (Days{31}));
}

TEST_F(DayRemindersTest, day20SixDaysBeforeEveryTwo) {
  EXPECT_EQ(monthly("20|6|2|pay"), (Days{8, 10, 12, 14, 16, 18, 20}));
}

TEST_F(DayRemindersTest, day2ThreeDaysBeforeEveryDayWraps) {
  EXPECT_EQ(monthly("2|3|1|pay"), (Days{1, 2, 30, 31}));
}

TEST_F(DayRemindersTest, day2ThreeDaysBeforeEveryTwoWrapsInPart) {
  EXPECT_EQ(monthly("2|3|2|pay"), (Days{2, 27, 29}));
}

TEST_F(DayRemindersTest, bothAdvanceNumbersAreNeeded) {
  EXPECT_EQ(monthly("20|6||pay"), (Days{20}));
  EXPECT_EQ(monthly("20||2|pay"), (Days{20}));
}

TEST_F(DayRemindersTest, stepsThatMeetOnOneDayQueueTheNoteEach) {
  // Every 0 days, all steps of day 0 stand on its place in the month before.
  EXPECT_EQ(monthly("0|2|0|pay"), (Days{31, 31, 31}));
}

TEST_F(DayRemindersTest, anEmptyDayIsDay99) {
  EXPECT_EQ(monthly("|||pay"), Days{});
  EXPECT_EQ(monthly("|21|1|pay"), Days{});
  // Far enough ahead the rule counts down from 99 into the month.
  EXPECT_EQ(monthly("|14|7|pay"), (Days{1, 8, 15, 22, 29}));
}

TEST_F(DayRemindersTest, aFileThatEndsEarlyNeverRings) {
  EXPECT_EQ(monthly(""), Days{});
  EXPECT_EQ(yearly("", 1), Days{});
  EXPECT_EQ(yearly("5", 1), Days{});
  EXPECT_EQ(monthly("20|6"), (Days{20}));
  EXPECT_TRUE(host.takeCalls().empty());
}

TEST_F(DayRemindersTest, monthZeroOfAYearlyNoteIsJanuary) {
  EXPECT_EQ(yearly("6|0|||x", 1), (Days{6}));
  EXPECT_EQ(yearly("6|0|||x", 2), Days{});
  EXPECT_EQ(yearly("6|11|||x", 12), (Days{6}));
}

TEST_F(DayRemindersTest, aYearlyNoteWithoutAMonthNeverRings) {
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(yearly("6|-1|21|1|x", month), Days{});
    EXPECT_EQ(yearly("6||21|1|x", month), Days{});
    EXPECT_EQ(yearly("6|32767|21|1|x", month), Days{});
  }
}

TEST_F(DayRemindersTest, advanceDaysOfAYearlyNoteAreLookedForInItsOwnMonth) {
  EXPECT_EQ(yearly("2|4|3|1|x", 5), (Days{1, 2, 30, 31}));
  EXPECT_EQ(yearly("2|4|3|1|x", 4), Days{});
}

TEST_F(DayRemindersTest, monthlyNotesComeBeforeYearlyOnesEachInTheOrderOfTheList) {
  folder.notes[L"a.tx4"] = "2|2|||";
  folder.notes[L"b.tx3"] = "2|||";
  folder.notes[L"C.tx3"] = "2|||";
  folder.notes[L"d.txt"] = "6|0|";
  alarms.Update_All_Al_komp();
  EXPECT_EQ(alarms.pending(), 3);
  EXPECT_EQ(rang(), (Names{L"b.tx3", L"C.tx3", L"a.tx4"}));
  EXPECT_EQ(folder.reads, (std::vector<std::wstring>{L"b.tx3", L"C.tx3", L"a.tx4"}));
}

TEST_F(DayRemindersTest, whatWasNotWrittenSinceIsNotReadAgain) {
  folder.notes = {{L"a.tx3", "2|||"}, {L"b.tx3", "second|||"}, {L"c.tx4", "2|2|||"}};
  for (const auto& [name, bytes] : folder.notes) folder.written[name] = 1;
  alarms.Update_All_Al_komp();
  folder.reads.clear();
  alarms.Update_All_Al_komp();
  EXPECT_EQ(folder.reads, Names{L"b.tx3"}) << "its fault is told again";
  EXPECT_EQ(rang(), (Names{L"a.tx3", L"c.tx4"}));
}

TEST_F(DayRemindersTest, whatIsKnownOfADayNoteLastsOverASaveUntilItIsWritten) {
  folder.notes = {{L"b.tx3", "2|||"}, {L"c.tx4", "2|3|||"}};
  for (const auto& [name, bytes] : folder.notes) folder.written[name] = 1;
  SharedListing notes = folder.listed();
  const std::weak_ptr<const FolderListing> before = notes;
  alarms.updateAtStart(notes);
  folder.notes[L"c.tx4"] = "12|3|||";
  // In front of all others: what is known moves on with its note.
  folder.notes[L"a.tx3"] = "3|||";
  notes = folder.listed();
  alarms.Update_All_Al(notes);
  const auto known = alarms.rememberedTime(NoteKind::Monthly, (*notes)[1]);
  ASSERT_TRUE(known.has_value());
  EXPECT_EQ(std::get<DayNote>(*known).day, 2);
  EXPECT_FALSE(alarms.rememberedTime(NoteKind::Monthly, (*notes)[0]).has_value());
  EXPECT_FALSE(alarms.rememberedTime(NoteKind::Yearly, (*notes)[2]).has_value());
  EXPECT_TRUE(before.expired()) << "only one listing is kept";
}

TEST_F(DayRemindersTest, theQueueIsEmptiedFirst) {
  folder.notes[L"a.tx3"] = "2|||";
  alarms.Update_All_Al_komp();
  alarms.Sprawdz_jeden_alarm();
  alarms.Update_All_Al_komp();
  alarms.Update_All_Al_komp();
  EXPECT_EQ(alarms.pending(), 1);
  EXPECT_EQ(rang(), (Names{L"a.tx3", L"a.tx3"})) << "the second is gone";
}

TEST_F(DayRemindersTest, aBrokenNumberTakesItsNoteAloneOutOfTheQueue) {
  folder.notes[L"a.tx3"] = "2|||";
  folder.notes[L"b.tx3"] = "second|||";
  folder.notes[L"c.tx3"] = "3|1x|1|";
  folder.notes[L"d.tx4"] = "2|March|||";
  folder.notes[L"e.tx4"] = "3|2|99999|1|";
  folder.notes[L"f.tx4"] = "2|2|||";
  alarms.Update_All_Al_komp();
  EXPECT_EQ(host.takeCalls(),
            (std::vector<std::wstring>{L"Error! These notes do not ring, because they cannot be "
                                       L"read:\r\nb.tx3\r\nc.tx3\r\nd.tx4\r\ne.tx4"}));
  EXPECT_EQ(rang(), (Names{L"a.tx3", L"f.tx4"}));
}

TEST_F(DayRemindersTest, numbersThatAreNotNeededAreNotLookedAt) {
  EXPECT_EQ(monthly("20|x||pay"), (Days{20}));
  EXPECT_TRUE(host.takeCalls().empty());
  folder.notes = {{L"a.tx3", "2|x|y|on its own day"}};
  clock.time.day = 2;
  alarms.Update_All_Al_komp();
  EXPECT_TRUE(host.takeCalls().empty());
  EXPECT_EQ(rang(), Names{L"a.tx3"});
}

TEST_F(DayRemindersTest, aLargeNoteIsRefusedAndNeverRings) {
  folder.notes[L"a.tx3"] = "2|||" + std::string(32768, 'x');
  folder.notes[L"b.tx4"] = "2|2|||" + std::string(32768, 'x');
  alarms.Update_All_Al_komp();
  EXPECT_EQ(rang(), Names{});
  EXPECT_EQ(host.takeCalls(),
            (std::vector<std::wstring>(2, L"Error! The file is too large to open!")));
}

TEST_F(DayRemindersTest, aNoteThatVanishesBeforeItIsReadIsLeftOutSilently) {
  folder.notes[L"a.tx3"] = "2|||";
  folder.notes[L"b.tx3"] = "2|||";
  folder.beforeRead = [this](const std::wstring& name) {
    if (name == L"a.tx3") folder.notes.erase(name);
  };
  alarms.Update_All_Al_komp();
  EXPECT_TRUE(host.takeCalls().empty());
  EXPECT_EQ(rang(), Names{L"b.tx3"});
}

TEST_F(DayRemindersTest, theQueueIsReadyBeforeTheUserIsTold) {
  folder.notes[L"a.tx3"] = "2|||";
  folder.notes[L"b.tx3"] = std::string(32768, 'x');
  int pendingThen = 0;
  host.during = [&](const std::wstring&) { pendingThen = alarms.pending(); };
  alarms.Update_All_Al_komp();
  EXPECT_EQ(pendingThen, 1);
}

}  // namespace
}  // namespace kalvora
