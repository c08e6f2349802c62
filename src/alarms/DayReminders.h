#pragma once

#include <optional>

#include "alarms/AlarmNoteReader.h"
#include "alarms/AlarmQueue.h"
#include "alarms/DayNote.h"
#include "alarms/RememberedNotes.h"
#include "base/FolderListing.h"

namespace kalvora {

/// The monthly and yearly notes, which are due on a day as a whole.
class DayReminders {
 public:
  /// Queues the monthly and then the yearly notes that are due on a day: on their own day once, and
  /// ahead of it as often as advanceMatches() says. `day` and `month` count from 1. A note that was
  /// not written since the last call is not read again, unless it was faulty.
  ///
  /// A missing day is taken as 99; a missing month is no month. A note with a number that cannot be
  /// read is not queued and is a fault of `notes`; numbers that are not needed are not looked at.
  void queueDueOn(int day, int month, AlarmNoteReader& notes, AlarmQueue& queue);
  /// The same for the notes that `notes` lists alone.
  void queueMoreDueOn(int day, int month, AlarmNoteReader& notes, AlarmQueue& queue) const;

  /// What the last queueDueOn() knew of a note that was not written since.
  std::optional<DayNote> remembered(NoteKind kind, const ListedFile& note) const {
    return remembered_.find(kind, note);
  }
  /// The folder was listed anew: what was written since is forgotten.
  void moveTo(const SharedListing& notes) { remembered_.moveTo(notes); }

 private:
  RememberedNotes<DayNote> remembered_;
};

}  // namespace kalvora
