#include "win32/SystemClock.h"

#include "win32/WindowsTime.h"

namespace kalvora {

LocalTime SystemClock::now() const {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return localTimeOf(time);
}

}  // namespace kalvora
