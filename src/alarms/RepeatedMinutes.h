#pragma once

#include <cstdint>
#include <optional>

#include "base/Clock.h"

namespace kalvora {

/// Tells the minutes that come twice because the clocks were put back: in that hour nothing may
/// ring a second time. Only a clock that says how far its local time is ahead of universal time
/// (LocalTime::utcOffset) can have such minutes: a clock that the user sets back rings again.
class RepeatedMinutes {
 public:
  /// Takes note that `now` is checked, and answers whether its minute was already passed once
  /// before the clocks were put back by up to an hour.
  bool comesAgain(const LocalTime& now);

 private:
  struct Minute {
    std::int64_t local = 0;  // since a fixed day
    int utcOffset = 0;
  };
  std::optional<Minute> latest_;
};

}  // namespace kalvora
