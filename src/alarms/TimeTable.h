#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "alarms/AlarmQueue.h"
#include "alarms/RememberedNotes.h"
#include "alarms/RingTime.h"
#include "alarms/TableDay.h"

namespace kalvora {

/// The notes that ring at a time of today, as one text of entries
///
///     hour ":" minute "-" file name "|"
///
/// with hour and minute as they stand in the note, possibly empty. Nothing is escaped.
class TimeTable {
 public:
  /// Whether the table is for this day.
  bool isFor(const TableDay& day) const { return day_ == day; }
  /// A new day: no weekly note has an entry, and on another date none for one date, for those were
  /// of the day before. The others keep theirs, which the next rebuild may not be able to read.
  /// Returns whether it was another day.
  bool turnTo(const TableDay& day);
  /// Takes the entries of all fast, daily, weekly notes and those for one date, in this order, each
  /// kind in the order of its list; of the last two kinds only those of the table's day. A refused
  /// note has empty fields. A weekly note with a weekday field that is no number gives no entry and
  /// is a fault of `notes`, as one for a date that there is not; so is a note that cannot be read,
  /// which keeps the entry that the table had for it. A note that was not written since the last
  /// rebuild is not read again, unless it was faulty. turnTo() comes first.
  void rebuild(AlarmNoteReader& notes);
  /// The same for the notes that `notes` lists alone: all others keep their entries.
  void update(AlarmNoteReader& notes);

  /// Those of `names` that have an entry.
  std::set<std::wstring> listed(const std::vector<std::wstring>& names) const;

  /// Queues each note whose entry has this hour and this minute as numbers, in the table's order.
  void queueDue(int hour, int minute, AlarmQueue& queue) const;

  /// What the last rebuild knew of a note that was not written since.
  std::optional<RingTime> rememberedTime(NoteKind kind, const ListedFile& note) const {
    return times_.find(kind, note);
  }

  const std::wstring& text() const { return Alarmy[0]; }

 private:
  static constexpr int kNoWeekday = -1;  // of a table that was not built

  void drop(NoteKind kind);

  TableDay day_{kNoWeekday};
  std::array<std::wstring, 1> Alarmy;  // alarms
  RememberedNotes<RingTime> times_;    // of the last rebuild
};

}  // namespace kalvora
