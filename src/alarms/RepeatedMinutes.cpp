#include "alarms/RepeatedMinutes.h"

#include <chrono>

namespace kalvora {

namespace {

constexpr int kLongestPutBack = 60;  // minutes; what is longer is a journey

std::int64_t localMinutes(const LocalTime& time) {
  using namespace std::chrono;
  const sys_days day = year{time.year} / time.month / time.day;
  return duration_cast<minutes>(day.time_since_epoch() + hours(time.hour) + minutes(time.minute))
      .count();
}

}  // namespace

void RepeatedMinutes::queueNew(const LocalTime& now, AlarmQueue due, AlarmQueue& queue) {
  const std::int64_t minute = localMinutes(now);
  forgetWhatCannotComeAgain(minute - now.utcOffset);
  while (due.pending() > 0) {
    Ringing ringing{minute, due.takeNext()};
    const auto before = rung_.find(ringing);
    if (before != rung_.end() && before->second > now.utcOffset) continue;
    queue.append(ringing.second);
    rung_.insert_or_assign(std::move(ringing), now.utcOffset);
  }
}

/// The same minute of the clock comes again as much later as the clocks are put back.
void RepeatedMinutes::forgetWhatCannotComeAgain(std::int64_t universalMinute) {
  std::erase_if(rung_, [&](const auto& entry) {
    const auto& [ringing, utcOffset] = entry;
    const std::int64_t age = universalMinute - (ringing.first - utcOffset);
    return age < 0 || age > kLongestPutBack;
  });
}

}  // namespace kalvora
