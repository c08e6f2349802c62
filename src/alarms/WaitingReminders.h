#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "alarms/AlarmQueue.h"
#include "alarms/DueNote.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A reminder whose turn has come.
struct NextReminder {
  DueNote note;
  bool missed = false;
};

/// The reminders that nobody saw yet, in their order: what was missed, the oldest first, and then
/// the queue.
class WaitingReminders {
 public:
  void clear();
  /// Behind those that are queued.
  void queue(AlarmQueue due, LocalMinute moment);
  /// Among those that were missed. Of a note that is there already the later moment counts.
  void addMissed(const std::vector<DueNote>& missed);

  /// Drops those whose turn comes next as long as they are of other kinds.
  void skipOthersThan(NoteKinds kinds);
  /// Takes the next one; only while there is one.
  NextReminder takeNext();

  bool waits(std::wstring_view fileName) const;
  /// How many wait, at most 32767.
  std::int16_t pending() const;
  std::vector<DueNote> all() const;

 private:
  std::wstring_view nextName() const;

  std::deque<DueNote> missed_;
  AlarmQueue queue_;
  std::deque<LocalMinute> moments_;  // of those in the queue
};

}  // namespace kalvora
