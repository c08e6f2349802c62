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

bool RepeatedMinutes::comesAgain(const LocalTime& now) {
  const Minute minute{localMinutes(now), now.utcOffset};
  if (latest_) {
    const int putBack = latest_->utcOffset - minute.utcOffset;
    const std::int64_t behind = latest_->local - minute.local;
    const bool wasPutBack = putBack > 0 && putBack <= kLongestPutBack;
    if (wasPutBack && behind >= 0 && behind < putBack) return true;
  }
  latest_ = minute;
  return false;
}

}  // namespace kalvora
