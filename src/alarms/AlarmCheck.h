#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "alarms/AlarmHost.h"
#include "alarms/AlarmNoteReader.h"
#include "alarms/AlarmQueue.h"
#include "alarms/FaultTeller.h"
#include "alarms/RepeatedMinutes.h"
#include "alarms/TimeTable.h"
#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/FileSystem.h"

namespace kalvora {

/// The reminders of the main window: finds what is due and shows it, one note after another.
///
/// Each call settles its own state before it calls the host, and expects to be called again from
/// there: a later call that shows or dismisses a reminder has the last word on the window.
class AlarmCheck {
 public:
  /// All but `notesFolder` must outlive this object.
  AlarmCheck(const FileSystem& files, const CodePage& codePage, const Clock& clock,
             std::filesystem::path notesFolder, AlarmHost& host);

  /// Update all alarms: builds the time table anew, checks it, and lets the timer check again in
  /// this minute. Then tells of the notes that cannot ring. A note due in this minute is so queued
  /// again by the timer, which is kept.
  void Update_All_Al();
  /// The same with a listing that was just made.
  void Update_All_Al(const SharedListing& notes);
  /// Update all alarms of days: empties the queue and queues the monthly and yearly notes of
  /// today. Meant for start-up only: a program left running past midnight does not queue the next
  /// day's. Then tells of the notes that cannot ring.
  void Update_All_Al_komp();
  /// What a start of the program does: queues the monthly and yearly notes of today, then
  /// Update_All_Al(), over one listing of the folder, just made. tellFaults() is left to the
  /// caller, who shows what is due first. Where the timer was faster, because a message held the
  /// start up, nothing is left to do.
  void updateAtStart(const SharedListing& notes);

  /// The tick of the minute timer: checks once a minute, at its second 1, and shows a reminder if
  /// one is pending while the window is not out, unless another one is just sliding in. On the
  /// first check of a day the time table is built anew, for its weekly notes, and at each check
  /// while the folder has no note. The first check that finds the folder queues the monthly and
  /// yearly notes, unless the start did. Notes that could not be read are looked at again.
  void Spr1m();
  /// Check the alarms: queues every note of the time table that has the present hour and minute,
  /// but for those that rang in it before the clocks were put back.
  void Sprawdzaj_alarmy();
  /// Tells of the notes that cannot ring and were not told of yet.
  void tellFaults();
  /// Another note came over the reminder on show: it is queued once more, behind those that wait,
  /// unless it waits already.
  void showAgainLater();
  /// Check one alarm: shows the next pending reminder; with none pending, hands the window back to
  /// normal browsing. Returns whether it stayed at that: a message box there can have let another
  /// reminder in, which is not to be put away unseen.
  bool Sprawdz_jeden_alarm();

  /// The fired-alarm count: reminders queued and not yet shown. 0 while the last one is shown.
  std::int16_t pending() const { return queue_.pending(); }
  /// Whether a reminder is shown or waits: then whatever dismisses a note goes on with
  /// Sprawdz_jeden_alarm(). True from the first reminder until the window is handed back.
  bool hasReminders() const { return showsReminder_ || pending() > 0; }

  /// Whether a reminder is shown.
  bool showsReminder() const { return showsReminder_; }
  /// Whether one is just sliding in: nobody has seen it yet.
  bool reminderComingOut() const { return showsReminder_ && host_.comingOut(); }

 private:
  SharedListing listNotes() const;
  AlarmNoteReader readerOf(SharedListing notes) const;
  void queueDayNotes(AlarmNoteReader& notes);
  void rebuildAndCheck(AlarmNoteReader& notes);
  void rebuildTimeTable(AlarmNoteReader& notes, const LocalTime& today);
  std::vector<FaultyNote> takeTimeFaults(AlarmNoteReader& notes);
  void lookAtUnreadNotes(const LocalTime& today);
  void lookAtFolder(const LocalTime& today);
  void queueDueAt(const LocalTime& now);
  void handBack();
  void Czytaj_sprawdz_jeden();
  void Czytaj_plik_na_tag(const std::wstring& nazwa);

  const FileSystem& files_;
  const CodePage& codePage_;
  const Clock& clock_;
  const std::filesystem::path notesFolder_;
  AlarmHost& host_;

  static constexpr int kNoWeekday = -1;  // of a table that was not built

  TimeTable table_;
  AlarmQueue queue_;
  FaultTeller timeTableFaults_;
  FaultTeller dayFaults_;
  RepeatedMinutes repeatedMinutes_;
  int tableWeekday_ = kNoWeekday;  // of the day that the table was built for
  bool folderListsNone_ = false;   // when the table was built; the folder may be away
  bool dayNotesQueued_ = false;    // those of the start, once a run
  // Notes that could not be read, and may be at a later check.
  std::vector<std::wstring> unreadTimes_;
  std::vector<std::wstring> unreadDayNotes_;
  int lastCheckedMinute_;
  unsigned turn_ = 0;  // counts the calls that decide what the window shows
  bool showsReminder_ = false;
  bool comesAgain_ = false;         // the reminder on show is queued again
  std::wstring Text4;               // the pending count at the last showing; empty after a check
  std::wstring Nazwa_pliku_na_tag;  // the file name of the reminder shown last
};

}  // namespace kalvora
