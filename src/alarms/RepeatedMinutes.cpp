#include "alarms/RepeatedMinutes.h"

#include <chrono>
#include <utility>

#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::chrono::minutes kLongestPutBack(60);  // what is longer is a journey

}  // namespace

AlarmQueue RepeatedMinutes::newOf(const LocalTime& now, AlarmQueue due, const Comfort& comfort) {
  const LocalMinute minute = minuteOf(now);
  forgetWhatCannotComeAgain(minute - std::chrono::minutes(now.utcOffset));
  AlarmQueue ringing;
  while (due.pending() > 0) {
    DueNote note{minute, due.takeNext()};
    const auto before = rung_.find(note);
    if (before != rung_.end() && (comfort.Once_a_minute || before->second > now.utcOffset)) {
      continue;
    }
    ringing.append(note.fileName);
    rung_.insert_or_assign(std::move(note), now.utcOffset);
  }
  return ringing;
}

void RepeatedMinutes::noteRenamed(std::wstring_view from, std::wstring_view to) {
  std::map<DueNote, int> renamed;
  for (const auto& [note, utcOffset] : rung_) {
    const bool isIt = equalIgnoringCase(note.fileName, from);
    renamed.emplace(DueNote{note.moment, isIt ? std::wstring(to) : note.fileName}, utcOffset);
  }
  rung_ = std::move(renamed);
}

/// The same minute of the clock comes again as much later as the clocks are put back.
void RepeatedMinutes::forgetWhatCannotComeAgain(LocalMinute universalMinute) {
  std::erase_if(rung_, [&](const auto& entry) {
    const auto& [note, utcOffset] = entry;
    const auto age = universalMinute - (note.moment - std::chrono::minutes(utcOffset));
    return age < std::chrono::minutes(0) || age > kLongestPutBack;
  });
}

}  // namespace kalvora
