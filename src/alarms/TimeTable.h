#pragma once

#include <array>
#include <set>
#include <string>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "alarms/AlarmQueue.h"
#include "alarms/RememberedTimes.h"

namespace kalvora {

/// The notes that ring at a time of today, as one text of entries
///
///     hour ":" minute "-" file name "|"
///
/// with hour and minute as they stand in the note, possibly empty. Nothing is escaped.
class TimeTable {
 public:
  /// A new day: no weekly note has an entry, for those were of the day before. The others keep
  /// theirs, which the next rebuild may not be able to read.
  void dropWeekly();
  /// Takes the entries of all fast, daily and weekly notes, in this order, each kind in the order
  /// of its list; of the weekly ones only those that are ticked for `weekday` (0 is Sunday). A
  /// refused note has empty fields. A weekly note with a weekday field that is no number gives no
  /// entry and is a fault of `notes`; so is a note that cannot be read, which keeps the entry that
  /// the table had for it. A note that was not written since the last rebuild is not read again,
  /// unless it was faulty.
  void rebuild(AlarmNoteReader& notes, int weekday);
  /// The same for the notes that `notes` lists alone: all others keep their entries.
  void update(AlarmNoteReader& notes, int weekday);

  /// Those of `names` that have an entry.
  std::set<std::wstring> listed(const std::vector<std::wstring>& names) const;

  /// Queues each note whose entry has this hour and this minute as numbers, in the table's order.
  void queueDue(int hour, int minute, AlarmQueue& queue) const;

  const std::wstring& text() const { return Alarmy[0]; }

 private:
  std::array<std::wstring, 1> Alarmy;  // alarms
  RememberedTimes times_;              // of the last rebuild
};

}  // namespace kalvora
