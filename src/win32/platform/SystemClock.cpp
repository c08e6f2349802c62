#include "win32/platform/SystemClock.h"

#include "win32/platform/WindowsTime.h"

namespace kalvora {

namespace {

/// Minutes since the beginning of the year 1601.
int minutesOf(const SYSTEMTIME& time) {
  constexpr ULONGLONG kTicksPerMinute = 600'000'000;
  FILETIME ticks{};
  SystemTimeToFileTime(&time, &ticks);
  const ULONGLONG count = (ULONGLONG{ticks.dwHighDateTime} << 32U) | ticks.dwLowDateTime;
  return static_cast<int>(count / kTicksPerMinute);
}

}  // namespace

LocalTime SystemClock::now() const {
  SYSTEMTIME universal{};
  GetSystemTime(&universal);
  SYSTEMTIME local{};
  SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
  LocalTime now = localTimeOf(local);
  now.utcOffset = minutesOf(local) - minutesOf(universal);
  return now;
}

}  // namespace kalvora
