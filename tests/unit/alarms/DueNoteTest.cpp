#include "alarms/DueNote.h"

#include <gtest/gtest.h>

#include "alarms/WaitingReminders.h"

namespace kalvora {
namespace {

LocalMinute momentAt(int day, int hour, int minute) {
  LocalTime time;
  time.year = 2026;
  time.month = 3;
  time.day = day;
  time.hour = hour;
  time.minute = minute;
  return minuteOf(time);
}

TEST(LocalMinutes, aMinuteIsTheTimeThatItBegan) {
  for (const LocalTime& time :
       {LocalTime{2026, 3, 2, 1, 6, 5, 0}, LocalTime{2028, 2, 29, 2, 0, 0, 0},
        LocalTime{1999, 12, 31, 5, 23, 59, 0}}) {
    EXPECT_EQ(timeOf(minuteOf(time)), time);
  }
  EXPECT_EQ(minuteOf({2026, 3, 2, 1, 6, 5, 59}), minuteOf({2026, 3, 2, 1, 6, 5, 0}));
}

TEST(DueNoteTexts, aMomentIsReadAsItWasWritten) {
  EXPECT_EQ(momentToText(momentAt(2, 7, 5)), L"2026-03-02 07:05");
  EXPECT_EQ(textToMoment(L"2026-03-02 07:05"), momentAt(2, 7, 5));
}

TEST(DueNoteTexts, whatIsNoMomentIsNone) {
  for (const wchar_t* text :
       {L"", L"2026-03-02", L"2026-02-29 07:05", L"2026-00-01 07:05", L"2026-03-02 24:00",
        L"2026-03-02 07:60", L"2026-03-02 07:050", L"2026-03-02T07:05", L"2026-03-0x 07:05"}) {
    EXPECT_EQ(textToMoment(text), std::nullopt);
  }
}

TEST(DueNoteTexts, notesAreReadAsTheyWereWritten) {
  const std::vector<DueNote> notes = {{momentAt(2, 7, 5), L"Gym; it's me.tx1"},
                                      {momentAt(3, 0, 0), L"\u017Brent.tx3"}};
  EXPECT_EQ(textToDueNotes(dueNotesToText(notes), momentAt(9, 9, 9)), notes);
}

TEST(DueNotes, theLatestOfEachTheOldestFirst) {
  const std::vector<DueNote> due = {{momentAt(2, 7, 0), L"a"},
                                    {momentAt(2, 9, 0), L"b"},
                                    {momentAt(3, 7, 0), L"a"},
                                    {momentAt(1, 7, 0), L"a"}};
  EXPECT_EQ(latestOfEach(due),
            (std::vector<DueNote>{{momentAt(2, 9, 0), L"b"}, {momentAt(3, 7, 0), L"a"}}));
}

TEST(WaitingRemindersTest, whatWasMissedComesFirstAndAllIsToldInItsOrder) {
  WaitingReminders waiting;
  AlarmQueue due;
  due.append(L"queued");
  waiting.queue(due, momentAt(2, 8, 0));
  waiting.addMissed({{momentAt(2, 7, 0), L"missed"}});
  waiting.addMissed({{momentAt(2, 6, 0), L"older"}, {momentAt(2, 7, 30), L"missed"}});
  EXPECT_EQ(waiting.pending(), 3);
  EXPECT_TRUE(waiting.waits(L"older"));
  EXPECT_TRUE(waiting.waits(L"queued"));
  EXPECT_EQ(waiting.all(), (std::vector<DueNote>{{momentAt(2, 6, 0), L"older"},
                                                 {momentAt(2, 7, 30), L"missed"},
                                                 {momentAt(2, 8, 0), L"queued"}}));
  EXPECT_EQ(waiting.takeNext().note.fileName, L"older");
  EXPECT_TRUE(waiting.takeNext().missed);
  const NextReminder last = waiting.takeNext();
  EXPECT_EQ(last.note, (DueNote{momentAt(2, 8, 0), L"queued"}));
  EXPECT_FALSE(last.missed);
  EXPECT_EQ(waiting.pending(), 0);
}

}  // namespace
}  // namespace kalvora
