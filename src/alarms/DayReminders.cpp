#include "alarms/DayReminders.h"

#include "alarms/AdvanceReminder.h"
#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

// Not a day of any month. The advance rule still counts down from it.
constexpr std::int16_t kNoDay = 99;

std::int16_t readDay(AlarmNoteReader& notes) {
  return fieldNumber(notes.Czytaj_zmienna()).value_or(kNoDay);
}

/// Whether a stored month, which counts from 0, is this one, which counts from 1.
bool readsMonth(AlarmNoteReader& notes, int month) {
  const std::optional<std::int16_t> stored = fieldNumber(notes.Czytaj_zmienna());
  return stored && *stored + 1 == month;
}

/// How often a note of a day rings, with the fields after the day (and month) still to be read.
int timesOnDay(AlarmNoteReader& notes, std::int16_t noteDay, int today) {
  if (noteDay == today) return 1;
  const std::wstring daysBefore = notes.Czytaj_zmienna();
  const std::wstring everyDays = notes.Czytaj_zmienna();
  if (isMissing(daysBefore) || isMissing(everyDays)) return 0;
  return advanceMatches(noteDay, textToInt16(daysBefore), textToInt16(everyDays), today);
}

int timesOf(NoteKind kind, AlarmNoteReader& notes, int day, int month) {
  const std::int16_t noteDay = readDay(notes);
  if (kind == NoteKind::Yearly && !readsMonth(notes, month)) return 0;
  return timesOnDay(notes, noteDay, day);
}

}  // namespace

void queueDueOn(int day, int month, AlarmNoteReader& notes, AlarmQueue& queue) {
  for (const NoteKind kind : {NoteKind::Monthly, NoteKind::Yearly}) {
    notes.forEach(kind, [&](const ListedFile& note) {
      if (!notes.Inicjuj_czytanie(note.name)) return;
      try {
        for (int times = timesOf(kind, notes, day, month); times > 0; --times) {
          queue.append(note.name);
        }
      } catch (const Failure&) {
        notes.addUnreadable(note.name);
      }
      notes.Zakoncz_czytanie();
    });
  }
}

}  // namespace kalvora
