#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "alarms/AlarmHost.h"
#include "alarms/AlarmNoteReader.h"
#include "alarms/CatchUp.h"
#include "alarms/DayReminders.h"
#include "alarms/DueRule.h"
#include "alarms/FaultTeller.h"
#include "alarms/RepeatedMinutes.h"
#include "alarms/Snoozes.h"
#include "alarms/TableDay.h"
#include "alarms/TimeTable.h"
#include "alarms/WaitingReminders.h"
#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/Comfort.h"
#include "base/FileSystem.h"
#include "base/SettingsStore.h"
#include "notes/NoteFollower.h"

namespace kalvora {

/// What the reminders work with.
struct AlarmPorts {
  const FileSystem& files;
  const CodePage& codePage;
  const Clock& clock;
  std::filesystem::path notesFolder;
  const Comfort& comfort;
  SettingsStore& store;
};

/// The reminders of the main window: finds what is due and shows it, one note after another.
///
/// Each call settles its own state before it calls the host, and expects to be called again from
/// there: a later call that shows or dismisses a reminder has the last word on the window.
class AlarmCheck : public NoteFollower {
 public:
  /// All that is referred to must outlive this object.
  AlarmCheck(const AlarmPorts& ports, AlarmHost& host);

  /// Update all alarms: builds the time table anew, checks it, and lets the timer check again in
  /// this minute. Then tells of the notes that cannot ring. A note due in this minute is so queued
  /// again by the timer, which is kept.
  void Update_All_Al();
  /// The same with a listing that was just made.
  void Update_All_Al(const SharedListing& notes);
  /// Update all alarms of days: empties the queue and queues the monthly and yearly notes of
  /// today. Meant for start-up only: a program left running past midnight does not queue the next
  /// day's, unless the user chose Each_day. Then tells of the notes that cannot ring.
  void Update_All_Al_komp();
  /// What a start of the program does: finds what was missed, for a user who chose Catch_up, queues
  /// the monthly and yearly notes of today, then Update_All_Al(), over one listing of the folder,
  /// just made. tellFaults() is left to the
  /// caller, who shows what is due first. Where the timer was faster, because a message held the
  /// start up, nothing is left to do.
  void updateAtStart(const SharedListing& notes);

  /// The tick of the minute timer: checks once a minute, at its second 1, and shows a reminder if
  /// one is pending while the window is not out, unless another one is just sliding in; with
  /// Ring_while_out also while it is out, unless another one is on show. On the first check of a
  /// day the time table is built anew, for its weekly notes and those for one date, and at each
  /// check while the folder has no note. The first check that finds the folder queues the monthly
  /// and yearly notes, unless the start did, and with Each_day the first one of each day does.
  /// Notes that could not be read are looked at again.
  void Spr1m();
  /// The computer woke up, or its clock was set: with Catch_up the check of this minute comes now,
  /// and what was put off and is due comes in any case.
  void clockChanged();
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

  /// The reminder on show, to be put off later; nothing while none is, or nobody can have seen it
  /// yet, or another note came over it.
  std::optional<unsigned> reminderToPutOff() const;
  /// Puts that reminder off: it comes back at this moment. It stays on show until it is put away.
  /// Returns whether it was on show still.
  bool putOff(unsigned reminder, LocalMinute moment);
  /// For how long a reminder is put off where the user says nothing else.
  std::chrono::minutes snoozeLength() const { return snoozes_.length(); }
  /// What is put off and did not come back yet, each with the moment at which it does, by moment.
  std::vector<DueNote> snoozed();
  void noteCopied(std::wstring_view from, std::wstring_view to) override;
  void noteRenamed(std::wstring_view from, std::wstring_view to) override;
  void noteDeleted(std::wstring_view name) override;
  /// With Keep_typing the time table knows it from the next check on.
  void noteWritten(std::wstring_view name) override;

  /// The fired-alarm count: reminders queued and not yet shown. 0 while the last one is shown.
  std::int16_t pending() const { return waiting_.pending(); }
  /// Whether a reminder is shown or waits: then whatever dismisses a note goes on with
  /// Sprawdz_jeden_alarm(). True from the first reminder until the window is handed back.
  bool hasReminders() const { return showsReminder_ || pending() > 0; }

  /// Whether a reminder is shown.
  bool showsReminder() const { return showsReminder_; }
  /// Whether one is just sliding in: nobody has seen it yet.
  bool reminderComingOut() const { return showsReminder_ && host_.comingOut(); }

  /// What came due, or back, and was not shown yet, each note once with its latest moment, the
  /// oldest first.
  std::vector<DueNote> notSeen() const;
  /// What is known of a note that was not written since it was read.
  std::optional<NoteTime> rememberedTime(NoteKind kind, const ListedFile& note) const;

 private:
  SharedListing listNotes() const;
  AlarmNoteReader readerOf(SharedListing notes) const;
  /// Of a few notes that were listed before.
  AlarmNoteReader readerOf(const std::vector<std::wstring>& names) const;
  TableDay tableDayOf(const LocalTime& today) const;
  void checkMinute(const LocalTime& now);
  CatchUp::ReadNotes readNotes() const;
  void lookForMissed(const LocalTime& now);
  void catchUpOnUnreadNotes(LocalMinute now);
  bool isOnShow(const DueNote& snoozed) const;
  std::vector<DueNote> dueSnoozes();
  void lookForSnoozed();
  void leaveOutGone(std::vector<DueNote>& snoozed);
  void putOnShowAway();
  void skipUnknown();
  bool dayNotesAreOld(const LocalTime& today) const;
  void queueDayNotes(AlarmNoteReader& notes, const LocalTime& today);
  void rebuildAndCheck(AlarmNoteReader& notes);
  void rebuildTimeTable(AlarmNoteReader& notes, const LocalTime& today,
                        TellTooLarge told = TellTooLarge::EachTime);
  std::vector<FaultyNote> takeTimeFaults(AlarmNoteReader& notes);
  bool mayComeOut() const;
  void lookAtUnreadNotes(const LocalTime& today);
  void lookAtFolder(const LocalTime& today);
  void queueDueAt(const LocalTime& now);
  void queueNew(AlarmQueue due, const LocalTime& now);
  void remember();
  void handBack();
  void Czytaj_sprawdz_jeden();
  void Czytaj_plik_na_tag(const std::wstring& nazwa);

  const AlarmPorts ports_;
  AlarmHost& host_;

  TimeTable table_;
  DayReminders dayReminders_;
  WaitingReminders waiting_;
  CatchUp catchUp_;
  Snoozes snoozes_;
  FaultTeller timeTableFaults_;
  FaultTeller dayFaults_;
  RepeatedMinutes repeatedMinutes_;
  bool tableIsOld_ = false;       // a note was written since it was built
  bool folderListsNone_ = false;  // when the table was built; the folder may be away
  // The day whose monthly and yearly notes were queued.
  std::optional<std::chrono::year_month_day> dayNotesOf_;
  // Notes that could not be read, and may be at a later check.
  std::vector<std::wstring> unreadTimes_;
  std::vector<std::wstring> unreadDayNotes_;
  int lastCheckedMinute_;
  unsigned turn_ = 0;  // counts the calls that decide what the window shows
  bool showsReminder_ = false;
  bool comesAgain_ = false;      // the reminder on show is queued again
  unsigned shownReminders_ = 0;  // by this number the reminder on show is known
  // When the reminder on show comes back, once it was put off.
  std::optional<LocalMinute> putOffTo_;
  NextReminder onShow_;             // shown last
  std::wstring Text4;               // the pending count at the last showing; empty after a check
  std::wstring Nazwa_pliku_na_tag;  // the file name of the reminder shown last
};

}  // namespace kalvora
