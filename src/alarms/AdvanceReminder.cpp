#include "alarms/AdvanceReminder.h"

namespace kalvora {

namespace {

constexpr std::int64_t kDaysOfWrap = 31;

}  // namespace

int advanceMatches(std::int16_t day, std::int16_t daysBefore, std::int16_t everyDays, int today) {
  int matches = 0;
  // 64 bits, as the largest 16-bit numbers multiplied and added up do not fit in 32.
  for (std::int64_t k = 0; k <= daysBefore; ++k) {
    std::int64_t x = day - k;
    if (x < 1) x += kDaysOfWrap;
    if (x - (everyDays - 1) * k == today) ++matches;
  }
  return matches;
}

}  // namespace kalvora
