#pragma once

namespace kalvora {

/// A moment in local time.
struct LocalTime {
  int year = 2000;
  int month = 1;    // 1 to 12
  int day = 1;      // 1 to 31
  int weekday = 6;  // 0 is Sunday
  int hour = 0;     // 0 to 23
  int minute = 0;
  int second = 0;
  /// Minutes that local time is ahead of universal time, less in winter where there is summer
  /// time; 0 from a clock that does not know.
  int utcOffset = 0;
  friend bool operator==(const LocalTime&, const LocalTime&) = default;
};

/// The only source of time in the program.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual LocalTime now() const = 0;
};

}  // namespace kalvora
