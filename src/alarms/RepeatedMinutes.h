#pragma once

#include <map>
#include <string_view>

#include "alarms/AlarmQueue.h"
#include "alarms/DueNote.h"
#include "base/Clock.h"
#include "base/Comfort.h"

namespace kalvora {

/// Keeps a note from ringing twice in the hour that comes twice when the clocks are put back. What
/// did not ring in its first pass rings in the second one, as a note does that was written between.
/// Only a clock that says how far its local time is ahead of universal time (LocalTime::utcOffset)
/// can have such an hour: a clock that the user sets back rings again.
class RepeatedMinutes {
 public:
  /// Those of the notes that are due at `now` that ring: all but those that rang in this minute
  /// before the clocks were put back by up to an hour; with Once_a_minute also but for those that
  /// rang in it at all. Takes note that they ring.
  AlarmQueue newOf(const LocalTime& now, AlarmQueue due, const Comfort& comfort);

  /// What rang under one name rang under another.
  void noteRenamed(std::wstring_view from, std::wstring_view to);

 private:
  void forgetWhatCannotComeAgain(LocalMinute universalMinute);

  std::map<DueNote, int> rung_;  // with LocalTime::utcOffset
};

}  // namespace kalvora
