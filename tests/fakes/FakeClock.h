#pragma once

#include "base/Clock.h"

namespace kalvora {

/// A clock that stands where a test sets it.
class FakeClock : public Clock {
 public:
  FakeClock() = default;
  explicit FakeClock(const LocalTime& start) : time(start) {}

  LocalTime now() const override { return time; }

  LocalTime time;
};

}  // namespace kalvora
