#pragma once

#include <cstdint>

namespace kalvora {

/// How often a note of `day` is queued on the day of the month `today`, when it is to be remembered
/// `daysBefore` days ahead, every `everyDays` days: once for each step k from 0 to `daysBefore`
/// that falls on `today`.
///
/// A step falls on day - k, moved into the month before by 31 days where that is below 1, less
/// (everyDays - 1) * k. What only this last subtraction takes below 1 is not moved again, so it
/// never matches; every month is taken to have 31 days; and two steps may fall on one day, which
/// then counts twice. All three are kept on purpose.
///
/// Takes any 16-bit numbers; below 0 days before there are no steps.
int advanceMatches(std::int16_t day, std::int16_t daysBefore, std::int16_t everyDays, int today);

}  // namespace kalvora
