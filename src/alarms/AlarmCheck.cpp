#include "alarms/AlarmCheck.h"

#include <memory>
#include <set>
#include <utility>

#include "alarms/DayReminders.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr int kNoMinute = 99;  // differs from every minute
constexpr int kCheckedSecond = 1;
constexpr std::wstring_view kErrorTitle = L"Error!";
constexpr std::wstring_view kReminderTitle = L" REMINDER";

/// Of a few notes that were listed before.
SharedListing listingOf(const std::vector<std::wstring>& names) {
  FolderListing::Builder listing;
  for (const std::wstring& name : names) listing.add(name);
  return std::make_shared<const FolderListing>(listing.build());
}

}  // namespace

AlarmCheck::AlarmCheck(const FileSystem& files, const CodePage& codePage, const Clock& clock,
                       std::filesystem::path notesFolder, AlarmHost& host)
    : files_(files),
      codePage_(codePage),
      clock_(clock),
      notesFolder_(std::move(notesFolder)),
      host_(host),
      lastCheckedMinute_(kNoMinute) {}

void AlarmCheck::Update_All_Al() {
  Update_All_Al(listNotes());
}

void AlarmCheck::Update_All_Al(const SharedListing& listing) {
  AlarmNoteReader notes = readerOf(listing);
  rebuildAndCheck(notes);
  // Only now: while a message waits for its answer, minutes pass.
  tellFaults();
}

void AlarmCheck::Update_All_Al_komp() {
  AlarmNoteReader notes = readerOf(listNotes());
  queue_.clear();
  queueDayNotes(notes);
  tellFaults();
}

void AlarmCheck::updateAtStart(const SharedListing& listing) {
  if (dayNotesQueued_) return;
  AlarmNoteReader notes = readerOf(listing);
  queueDayNotes(notes);
  rebuildAndCheck(notes);
}

SharedListing AlarmCheck::listNotes() const {
  return std::make_shared<const FolderListing>(files_.list(notesFolder_, L"*"));
}

AlarmNoteReader AlarmCheck::readerOf(SharedListing notes) const {
  return AlarmNoteReader(files_, codePage_, notesFolder_, std::move(notes));
}

void AlarmCheck::queueDayNotes(AlarmNoteReader& notes) {
  const LocalTime now = clock_.now();
  queueDueOn(now.day, now.month, notes, queue_);
  // A folder that is away now may hold notes of today.
  dayNotesQueued_ = !notes.folderIsAway();
  unreadDayNotes_ = notes.takeUnread();
  dayFaults_.hear(notes.takeFaults());
}

void AlarmCheck::rebuildAndCheck(AlarmNoteReader& notes) {
  lastCheckedMinute_ = kNoMinute;
  rebuildTimeTable(notes, clock_.now());
  Sprawdzaj_alarmy();
}

void AlarmCheck::rebuildTimeTable(AlarmNoteReader& notes, const LocalTime& today) {
  if (today.weekday != tableWeekday_) {
    table_.dropWeekly();
    unreadTimes_.clear();
  }
  tableWeekday_ = today.weekday;
  // A folder without a note may be away, as one on a drive that is not plugged in: it is looked at
  // again at the next check.
  folderListsNone_ = notes.listsNone();
  // What is due meanwhile rings all the same.
  if (notes.folderIsAway()) return;
  table_.rebuild(notes, today.weekday);
  const std::vector<FaultyNote> faults = takeTimeFaults(notes);
  // A folder that may be away is no news of its notes.
  if (!folderListsNone_) timeTableFaults_.hear(faults);
}

/// A note that kept its entry rings, though it could not be read.
std::vector<FaultyNote> AlarmCheck::takeTimeFaults(AlarmNoteReader& notes) {
  unreadTimes_ = notes.takeUnread();
  const std::set<std::wstring> ringing = table_.listed(unreadTimes_);
  std::vector<FaultyNote> faults = notes.takeFaults();
  std::erase_if(faults, [&](const FaultyNote& note) { return ringing.contains(note.fileName); });
  return faults;
}

void AlarmCheck::tellFaults() {
  std::vector<std::wstring> messages = dayFaults_.takeMessages();
  for (std::wstring& message : timeTableFaults_.takeMessages()) {
    messages.push_back(std::move(message));
  }
  for (const std::wstring& message : messages) host_.showError(message, kErrorTitle);
}

void AlarmCheck::Spr1m() {
  const LocalTime now = clock_.now();
  if (now.second != kCheckedSecond || now.minute == lastCheckedMinute_) return;
  // Before the window is touched: a message box there lets the next tick of this second in.
  lastCheckedMinute_ = now.minute;
  lookAtUnreadNotes(now);
  lookAtFolder(now);
  queueDueAt(now);
  if (pending() > 0 && !host_.shown() && !reminderComingOut()) Sprawdz_jeden_alarm();
  // Last: no reminder waits for an answer.
  tellFaults();
}

void AlarmCheck::lookAtUnreadNotes(const LocalTime& today) {
  if (!unreadDayNotes_.empty()) {
    AlarmNoteReader notes = readerOf(listingOf(unreadDayNotes_));
    queueDueOn(today.day, today.month, notes, queue_);
    unreadDayNotes_ = notes.takeUnread();
    dayFaults_.hearMore(notes.takeFaults());
  }
  // On another day all are read anew.
  if (!unreadTimes_.empty() && today.weekday == tableWeekday_) {
    AlarmNoteReader notes = readerOf(listingOf(unreadTimes_));
    table_.update(notes, today.weekday);
    timeTableFaults_.hearMore(takeTimeFaults(notes));
  }
}

void AlarmCheck::lookAtFolder(const LocalTime& today) {
  // The table lists what rings today: on a new day other weekly notes are due.
  const bool tableIsOld = folderListsNone_ || today.weekday != tableWeekday_;
  if (dayNotesQueued_ && !tableIsOld) return;
  AlarmNoteReader notes = readerOf(listNotes());
  if (!dayNotesQueued_) queueDayNotes(notes);
  if (tableIsOld) rebuildTimeTable(notes, today);
}

void AlarmCheck::Sprawdzaj_alarmy() {
  queueDueAt(clock_.now());
}

/// Not of the time that it is by then: a slow disk can have kept the check for minutes.
void AlarmCheck::queueDueAt(const LocalTime& now) {
  Text4.clear();
  AlarmQueue due;
  table_.queueDue(now.hour, now.minute, due);
  repeatedMinutes_.queueNew(now, std::move(due), queue_);
}

bool AlarmCheck::Sprawdz_jeden_alarm() {
  const unsigned turn = ++turn_;
  if (pending() < 1) {
    handBack();
    return turn == turn_;
  }
  showsReminder_ = true;
  host_.comeOut();
  if (turn != turn_) return false;
  Czytaj_sprawdz_jeden();
  if (turn != turn_) return false;
  host_.lockNote();
  return true;
}

void AlarmCheck::handBack() {
  showsReminder_ = false;
  host_.unlockNote();
  host_.Odczytaj_na_przycisku();
}

void AlarmCheck::showAgainLater() {
  // What this minute brings anyway does not come twice.
  if (!showsReminder_ || comesAgain_ || queue_.waits(Nazwa_pliku_na_tag)) return;
  comesAgain_ = true;
  queue_.append(Nazwa_pliku_na_tag);
}

/// Read, check one: takes the next name off the queue and shows that note.
void AlarmCheck::Czytaj_sprawdz_jeden() {
  Nazwa_pliku_na_tag = queue_.takeNext();
  comesAgain_ = false;
  Text4 = numberToText(pending());
  // A copy: showing it may show another.
  Czytaj_plik_na_tag(std::wstring(Nazwa_pliku_na_tag));
}

/// Read a file for the tag: shows the named note under the reminder title.
void AlarmCheck::Czytaj_plik_na_tag(const std::wstring& nazwa) {
  const unsigned turn = turn_;
  host_.odczytaj(nazwa);
  // cppcheck-suppress knownConditionTrueFalse ; a message box there may show the next one
  if (turn != turn_) return;
  host_.holdTitle(kReminderTitle, nazwa);
}

}  // namespace kalvora
