#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "alarms/AlarmQueue.h"
#include "alarms/DueNote.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A reminder whose turn has come.
struct NextReminder {
  DueNote note;
  bool missed = false;
  bool snoozed = false;  // it was put off
};

/// The reminders that nobody saw yet, in their order: what was missed, the oldest first, and then
/// the queue. What was put off comes in front of what came due in the same minute, or later.
class WaitingReminders {
 public:
  void clear();
  /// Behind those that are queued. A note that is due today as a whole was not missed on the days
  /// before.
  void queue(AlarmQueue due, LocalMinute moment);
  /// Among those that were missed. Of a note that is there already the later moment counts.
  void addMissed(const std::vector<DueNote>& missed);
  /// All that was put off and is due, by moment, in place of what was so before.
  void setSnoozed(std::vector<DueNote> snoozed) { snoozed_ = std::move(snoozed); }
  const std::vector<DueNote>& snoozed() const { return snoozed_; }
  bool snoozedIsNext() const;

  /// What waits under one name waits under another.
  void noteRenamed(std::wstring_view from, std::wstring_view to);
  /// What was missed of a note is not to come.
  void dropMissed(std::wstring_view name);

  /// Drops those whose turn comes next as long as they are of other kinds.
  void skipOthersThan(NoteKinds kinds);
  /// Takes the next one; only while there is one.
  NextReminder takeNext();

  /// Whether a note is in the queue, or was missed.
  bool waits(std::wstring_view fileName) const;
  /// How many wait, at most 32767.
  std::int16_t pending() const;
  /// All but what was put off.
  std::vector<DueNote> all() const;

 private:
  std::wstring_view nextName() const;

  std::deque<DueNote> missed_;
  std::vector<DueNote> snoozed_;
  AlarmQueue queue_;
  std::deque<LocalMinute> moments_;  // of those in the queue
};

}  // namespace kalvora
