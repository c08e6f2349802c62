#pragma once

#include <windows.h>

#include "base/Clock.h"

namespace kalvora {

/// The fields of a Windows time, without its milliseconds.
inline LocalTime localTimeOf(const SYSTEMTIME& time) {
  return {time.wYear, time.wMonth,  time.wDay,   time.wDayOfWeek,
          time.wHour, time.wMinute, time.wSecond};
}

}  // namespace kalvora
