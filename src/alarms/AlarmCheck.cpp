#include "alarms/AlarmCheck.h"

#include <utility>

#include "alarms/DayReminders.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr int kNoMinute = 99;  // differs from every minute
constexpr int kCheckedSecond = 1;
constexpr std::wstring_view kReminderTitle = L" REMINDER";

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
  AlarmNoteReader notes = listNotes();
  const std::vector<FaultyNote> faults = rebuildAndCheck(notes);
  // Only now: while a message waits for its answer, minutes pass.
  tellOf(faults);
}

void AlarmCheck::Update_All_Al_komp() {
  AlarmNoteReader notes = listNotes();
  dayFaults_.tell(queueDayNotes(notes), host_);
}

void AlarmCheck::updateAtStart() {
  AlarmNoteReader notes = listNotes();
  const std::vector<FaultyNote> ofDays = queueDayNotes(notes);
  const std::vector<FaultyNote> ofTimes = rebuildAndCheck(notes);
  dayFaults_.tell(ofDays, host_);
  tellOf(ofTimes);
}

AlarmNoteReader AlarmCheck::listNotes() const {
  return AlarmNoteReader(files_, codePage_, notesFolder_);
}

std::vector<FaultyNote> AlarmCheck::queueDayNotes(AlarmNoteReader& notes) {
  const LocalTime now = clock_.now();
  AlarmQueue queue;
  queueDueOn(now.day, now.month, notes, queue);
  queue_ = std::move(queue);
  return notes.takeFaults();
}

std::vector<FaultyNote> AlarmCheck::rebuildAndCheck(AlarmNoteReader& notes) {
  lastCheckedMinute_ = kNoMinute;
  std::vector<FaultyNote> faults = rebuildTimeTable(notes, clock_.now());
  Sprawdzaj_alarmy();
  return faults;
}

std::vector<FaultyNote> AlarmCheck::rebuildTimeTable(AlarmNoteReader& notes,
                                                     const LocalTime& today) {
  table_.rebuild(notes, today.weekday);
  // A folder without a note may be away, as one on a drive that is not plugged in: it is looked at
  // again at the next check.
  tableWeekday_ = notes.listsNone() ? kNoWeekday : today.weekday;
  return notes.takeFaults();
}

/// A folder that is away is no news of its notes.
void AlarmCheck::tellOf(const std::vector<FaultyNote>& faults) {
  if (tableWeekday_ != kNoWeekday) timeTableFaults_.tell(faults, host_);
}

void AlarmCheck::Spr1m() {
  const LocalTime now = clock_.now();
  if (now.second != kCheckedSecond || now.minute == lastCheckedMinute_) return;
  // Before the window is touched: a message box there lets the next tick of this second in.
  lastCheckedMinute_ = now.minute;
  // The table lists what rings today: on a new day other weekly notes are due.
  std::vector<FaultyNote> faults;
  const bool newDay = now.weekday != tableWeekday_;
  if (newDay) {
    AlarmNoteReader notes = listNotes();
    faults = rebuildTimeTable(notes, now);
  }
  Sprawdzaj_alarmy();
  if (newDay) tellOf(faults);
  if (pending() > 0 && !host_.shownFlag()) Sprawdz_jeden_alarm();
}

void AlarmCheck::Sprawdzaj_alarmy() {
  const LocalTime now = clock_.now();
  Text4.clear();
  AlarmQueue due;
  table_.queueDue(now.hour, now.minute, due);
  repeatedMinutes_.queueNew(now, std::move(due), queue_);
}

void AlarmCheck::Sprawdz_jeden_alarm() {
  const unsigned turn = ++turn_;
  if (pending() < 1) {
    handBack();
    return;
  }
  onShow_ = true;
  host_.playAlarmSound();
  host_.Nastepny_Load_Formy();
  if (turn != turn_) return;
  Czytaj_sprawdz_jeden();
  if (turn != turn_) return;
  host_.lockTextBoxes();
  host_.hideMainButtons();
}

void AlarmCheck::handBack() {
  onShow_ = false;
  host_.unlockTextBoxes();
  host_.showMainButtons();
  host_.Odczytaj_na_przycisku();
}

/// Read, check one: takes the next name off the queue and shows that note.
void AlarmCheck::Czytaj_sprawdz_jeden() {
  Nazwa_pliku_na_tag = queue_.takeNext();
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
  host_.Aktualizuj_Scrool(nazwa);
  host_.Pokaz_Tekst(kReminderTitle);
}

}  // namespace kalvora
