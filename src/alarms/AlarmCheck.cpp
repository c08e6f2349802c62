#include "alarms/AlarmCheck.h"

#include <memory>
#include <set>
#include <utility>

#include "alarms/DayReminders.h"
#include "base/Dates.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr int kNoMinute = 99;  // differs from every minute
constexpr int kCheckedSecond = 1;
constexpr std::wstring_view kErrorTitle = L"Error!";
constexpr std::wstring_view kReminderTitle = L" REMINDER";
constexpr std::wstring_view kMissedTitle = L" MISSED";

}  // namespace

AlarmCheck::AlarmCheck(const AlarmPorts& ports, AlarmHost& host)
    : ports_(ports),
      host_(host),
      catchUp_(ports_.comfort, ports_.store),
      snoozes_(ports_.store),
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
  waiting_.clear();
  queueDayNotes(notes, ports_.clock.now());
  tellFaults();
}

void AlarmCheck::updateAtStart(const SharedListing& listing) {
  if (dayNotesOf_) return;
  const LocalTime now = ports_.clock.now();
  AlarmNoteReader notes = readerOf(listing);
  lookForMissed(now);
  lookForSnoozed();
  queueDayNotes(notes, now);
  rebuildAndCheck(notes);
  // The notes of a large folder took their time: what was due in a minute that passed meanwhile is
  // found at the next check.
  const bool inTime = minuteOf(ports_.clock.now()) == minuteOf(now);
  catchUpOnUnreadNotes(minuteOf(now));
  catchUp_.checked(minuteOf(now) - std::chrono::minutes(inTime ? 0 : 1));
}

SharedListing AlarmCheck::listNotes() const {
  return std::make_shared<const FolderListing>(ports_.files.list(ports_.notesFolder, L"*"));
}

AlarmNoteReader AlarmCheck::readerOf(SharedListing notes) const {
  return AlarmNoteReader(ports_.files, ports_.codePage, ports_.notesFolder, std::move(notes),
                         knownKinds(ports_.comfort));
}

AlarmNoteReader AlarmCheck::readerOf(const std::vector<std::wstring>& names) const {
  FolderListing::Builder listing;
  for (const std::wstring& name : names) listing.add(name);
  return readerOf(std::make_shared<const FolderListing>(listing.build()));
}

/// Another one also where the user just chose to have notes for one date, or not to.
TableDay AlarmCheck::tableDayOf(const LocalTime& today) const {
  return {today.weekday, ports_.comfort.Once_notes ? std::optional(dateOf(today)) : std::nullopt};
}

/// A reminder of a kind that the user gave up since does not ring.
void AlarmCheck::skipUnknown() {
  waiting_.skipOthersThan(knownKinds(ports_.comfort));
}

/// Of the day that was asked for what was missed: at midnight none falls between the two.
void AlarmCheck::queueDayNotes(AlarmNoteReader& notes, const LocalTime& today) {
  AlarmQueue due;
  dayReminders_.queueDueOn(today.day, today.month, notes, due);
  queueNew(std::move(due), today);
  // A folder that is away now may hold notes of today.
  dayNotesOf_ = notes.folderIsAway() ? std::nullopt : std::optional(dateOf(today));
  unreadDayNotes_ = notes.takeUnread();
  const std::vector<FaultyNote> faults = notes.takeFaults();
  // A folder that may be away is no news of its notes.
  if (!notes.listsNone()) dayFaults_.hear(faults);
}

void AlarmCheck::rebuildAndCheck(AlarmNoteReader& notes) {
  lastCheckedMinute_ = kNoMinute;
  rebuildTimeTable(notes, ports_.clock.now());
  Sprawdzaj_alarmy();
}

void AlarmCheck::rebuildTimeTable(AlarmNoteReader& notes, const LocalTime& today,
                                  TellTooLarge told) {
  if (table_.turnTo(tableDayOf(today))) unreadTimes_.clear();
  // A folder without a note may be away, as one on a drive that is not plugged in: it is looked at
  // again at the next check.
  folderListsNone_ = notes.listsNone();
  // What is due meanwhile rings all the same.
  if (notes.folderIsAway()) return;
  tableIsOld_ = false;
  table_.rebuild(notes);
  dayReminders_.moveTo(notes.listing());
  const std::vector<FaultyNote> faults = takeTimeFaults(notes);
  // A folder that may be away is no news of its notes.
  if (!folderListsNone_) timeTableFaults_.hear(faults, told);
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
  if (const std::wstring fault = catchUp_.takeFault(); !fault.empty()) {
    messages.push_back(
        L"What is due cannot be remembered. What comes due while Kalvora is off may "
        L"not be caught up on.\r\n\r\n" +
        fault);
  }
  if (const std::wstring fault = snoozes_.takeFault(); !fault.empty()) {
    messages.push_back(
        L"What you put off cannot be remembered. It comes back as long as Kalvora runs, and not "
        L"after that.\r\n\r\n" +
        fault);
  }
  for (const std::wstring& message : messages) host_.showError(message, kErrorTitle);
}

void AlarmCheck::Spr1m() {
  const LocalTime now = ports_.clock.now();
  if (now.second != kCheckedSecond) return;
  // The same minute of another hour comes after a sleep.
  const bool slept = ports_.comfort.Catch_up && !catchUp_.looked(minuteOf(now));
  if (now.minute != lastCheckedMinute_ || slept) checkMinute(now);
}

void AlarmCheck::clockChanged() {
  const LocalTime now = ports_.clock.now();
  if (ports_.comfort.Catch_up && !catchUp_.looked(minuteOf(now))) return checkMinute(now);
  lookForSnoozed();
  if (!waiting_.snoozed().empty() && mayComeOut()) Sprawdz_jeden_alarm();
}

void AlarmCheck::checkMinute(const LocalTime& now) {
  // Before the window is touched: a message box there lets the next tick of this second in.
  lastCheckedMinute_ = now.minute;
  lookForMissed(now);
  // Whether its note is there is asked when it comes out.
  mayComeOut() ? lookForSnoozed() : waiting_.setSnoozed(dueSnoozes());
  lookAtUnreadNotes(now);
  lookAtFolder(now);
  queueDueAt(now);
  catchUpOnUnreadNotes(minuteOf(now));
  catchUp_.checked(minuteOf(now));
  if (pending() > 0 && mayComeOut()) Sprawdz_jeden_alarm();
  // Last: no reminder waits for an answer.
  tellFaults();
}

/// One that is on show stays until it is put away. One that another note came over is not.
bool AlarmCheck::mayComeOut() const {
  if (reminderComingOut()) return false;
  const bool isSeen = showsReminder_ && !comesAgain_;
  return !host_.shown() || (ports_.comfort.Ring_while_out && !isSeen);
}

void AlarmCheck::lookAtUnreadNotes(const LocalTime& today) {
  // Their day is over; where each day is looked for, all are read anew.
  if (dayNotesOf_ != dateOf(today)) unreadDayNotes_.clear();
  if (!unreadDayNotes_.empty()) {
    AlarmNoteReader notes = readerOf(unreadDayNotes_);
    AlarmQueue due;
    dayReminders_.queueMoreDueOn(today.day, today.month, notes, due);
    queueNew(std::move(due), today);
    unreadDayNotes_ = notes.takeUnread();
    dayFaults_.hearMore(notes.takeFaults());
  }
  if (!unreadTimes_.empty() && table_.isFor(tableDayOf(today))) {
    AlarmNoteReader notes = readerOf(unreadTimes_);
    table_.update(notes);
    timeTableFaults_.hearMore(takeTimeFaults(notes));
  }
}

void AlarmCheck::lookAtFolder(const LocalTime& today) {
  // The table lists what rings today: on a new day other weekly notes are due, and for one date.
  const bool lacksNotes = folderListsNone_ || !table_.isFor(tableDayOf(today));
  const bool dayIsOld = dayNotesAreOld(today);
  if (!dayIsOld && !lacksNotes && !tableIsOld_) return;
  AlarmNoteReader notes = readerOf(listNotes());
  if (dayIsOld) queueDayNotes(notes, today);
  // Pages are turned all day: what a rebuild for their sake finds once more is not told again.
  if (lacksNotes || tableIsOld_) {
    rebuildTimeTable(notes, today, lacksNotes ? TellTooLarge::EachTime : TellTooLarge::Once);
  }
}

bool AlarmCheck::dayNotesAreOld(const LocalTime& today) const {
  return !dayNotesOf_ || (ports_.comfort.Each_day && *dayNotesOf_ != dateOf(today));
}

std::optional<NoteTime> AlarmCheck::rememberedTime(NoteKind kind, const ListedFile& note) const {
  if (hasClockTime(kind)) return table_.rememberedTime(kind, note);
  return dayReminders_.remembered(kind, note);
}

void AlarmCheck::Sprawdzaj_alarmy() {
  queueDueAt(ports_.clock.now());
}

/// Not of the time that it is by then: a slow disk can have kept the check for minutes.
void AlarmCheck::queueDueAt(const LocalTime& now) {
  Text4.clear();
  AlarmQueue due;
  table_.queueDue(now.hour, now.minute, due);
  queueNew(std::move(due), now);
}

void AlarmCheck::queueNew(AlarmQueue due, const LocalTime& now) {
  const LocalMinute minute = minuteOf(now);
  due = catchUp_.stillToRing(minute, std::move(due));
  waiting_.queue(repeatedMinutes_.newOf(now, std::move(due), ports_.comfort), minute);
  remember();
}

bool AlarmCheck::Sprawdz_jeden_alarm() {
  const unsigned turn = ++turn_;
  lookForSnoozed();
  skipUnknown();
  if (pending() < 1) {
    handBack();
    return turn == turn_;
  }
  showsReminder_ = true;
  host_.comeOut();
  if (turn != turn_) return false;
  if (pending() < 1) {
    // The note of the only one was deleted while a message stood open.
    handBack();
    return false;
  }
  Czytaj_sprawdz_jeden();
  if (turn != turn_) return false;
  host_.lockNote();
  return true;
}

void AlarmCheck::handBack() {
  putOnShowAway();
  showsReminder_ = false;
  onShow_ = {};
  remember();
  host_.unlockNote();
  host_.Odczytaj_na_przycisku();
}

void AlarmCheck::showAgainLater() {
  if (!showsReminder_ || comesAgain_ || putOffTo_) return;
  if (onShow_.snoozed) {
    comesAgain_ = true;
    waiting_.setSnoozed(dueSnoozes());
    return;
  }
  comesAgain_ = true;
  // What this minute brings anyway does not come twice.
  if (waiting_.waits(Nazwa_pliku_na_tag)) return;
  if (onShow_.missed) {
    waiting_.addMissed({onShow_.note});
    return;
  }
  AlarmQueue again;
  again.append(Nazwa_pliku_na_tag);
  waiting_.queue(std::move(again), onShow_.note.moment);
}

/// Read, check one: takes the next name off the queue and shows that note.
void AlarmCheck::Czytaj_sprawdz_jeden() {
  putOnShowAway();
  onShow_ = waiting_.takeNext();
  ++shownReminders_;
  Nazwa_pliku_na_tag = onShow_.note.fileName;
  remember();
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
  if (onShow_.missed) host_.showMoment(onShow_.note);
  host_.holdTitle(onShow_.missed ? kMissedTitle : kReminderTitle, nazwa);
}

}  // namespace kalvora
