#include "alarms/DayReminders.h"

#include "alarms/DayNote.h"
#include "base/Errors.h"

namespace kalvora {

namespace {

int timesOf(NoteKind kind, AlarmNoteReader& notes, int day, int month) {
  const DayNote note = readDayNote(kind, notes);
  return note.ringsIn(month) ? note.timesOn(day) : 0;
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
