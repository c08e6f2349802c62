#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "alarms/AlarmQueue.h"
#include "base/Clock.h"

namespace kalvora {

/// Keeps a note from ringing twice in the hour that comes twice when the clocks are put back. What
/// did not ring in its first pass rings in the second one, as a note does that was written between.
/// Only a clock that says how far its local time is ahead of universal time (LocalTime::utcOffset)
/// can have such an hour: a clock that the user sets back rings again.
class RepeatedMinutes {
 public:
  /// Queues the notes that are due at `now`, and takes note that they ring, but for those that rang
  /// in this minute before the clocks were put back by up to an hour.
  void queueNew(const LocalTime& now, AlarmQueue due, AlarmQueue& queue);

 private:
  using Ringing = std::pair<std::int64_t, std::wstring>;  // local minutes since a fixed day, note

  void forgetWhatCannotComeAgain(std::int64_t universalMinute);

  std::map<Ringing, int> rung_;  // with LocalTime::utcOffset
};

}  // namespace kalvora
