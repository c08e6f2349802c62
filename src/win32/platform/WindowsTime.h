#pragma once

#include <windows.h>

#include <chrono>
#include <cstdint>

#include "base/Clock.h"

namespace kalvora {

/// The fields of a Windows time, without its milliseconds.
inline LocalTime localTimeOf(const SYSTEMTIME& time) {
  return {time.wYear, time.wMonth,  time.wDay,   time.wDayOfWeek,
          time.wHour, time.wMinute, time.wSecond};
}

/// How long ago that was; below 0 for what is yet to come.
inline std::chrono::seconds secondsSince(const FILETIME& moment) {
  const auto countOf = [](const FILETIME& time) {
    return (std::int64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
  };
  constexpr std::int64_t kCountsPerSecond = 10'000'000;
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  return std::chrono::seconds((countOf(now) - countOf(moment)) / kCountsPerSecond);
}

}  // namespace kalvora
