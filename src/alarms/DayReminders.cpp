#include "alarms/DayReminders.h"

#include <utility>

namespace kalvora {

namespace {

/// Returns what is known now of the notes.
RememberedNotes<DayNote> queueDue(int day, int month, AlarmNoteReader& notes,
                                  const RememberedNotes<DayNote>& known, AlarmQueue& queue) {
  RememberedNotes<DayNote> now(notes.listing());
  const auto read = [](NoteKind kind, AlarmNoteReader& fields) {
    return readDayNote(kind, fields);
  };
  const auto append = [&](const ListedFile& file, const DayNote& note) {
    int times = note.ringsIn(month) ? note.timesOn(day) : 0;
    for (; times > 0; --times) queue.append(file.name);
  };
  for (const NoteKind kind : {NoteKind::Monthly, NoteKind::Yearly}) {
    forEachTime(kind, notes, known, now, read, append);
  }
  return now;
}

}  // namespace

void DayReminders::queueDueOn(int day, int month, AlarmNoteReader& notes, AlarmQueue& queue) {
  remembered_ = queueDue(day, month, notes, remembered_, queue);
}

void DayReminders::queueMoreDueOn(int day, int month, AlarmNoteReader& notes,
                                  AlarmQueue& queue) const {
  queueDue(day, month, notes, remembered_, queue);
}

}  // namespace kalvora
