#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "base/Numbers.h"

// What the slide and the roll of the main window have in common.

namespace kalvora {

/// The interval, in milliseconds, that an animation's timer runs with: a setting of 0 or less, with
/// which it would never tick, counts as 1.
constexpr std::int32_t timerIntervalInUse(std::int32_t setting) {
  return std::max(setting, 1);
}

/// The twips of an animation's step; nothing for a setting below 1 pixel, which would get nowhere:
/// it means no animation, so that the first tick reaches the end at once.
/// Throws OverflowError beyond 16 bits.
inline std::optional<std::int16_t> stepInUse(std::int16_t pixels) {
  if (pixels < 1) return std::nullopt;
  return toTwips(pixels);
}

/// Runs one tick of an animation. Where it fails, `stopTimer` runs before the failure goes on: a
/// timer that still ran would bring the same message again with every tick.
template <typename Tick, typename StopTimer>
auto tickOrStop(const Tick& tick, const StopTimer& stopTimer) {
  try {
    return tick();
  } catch (...) {
    stopTimer();
    throw;
  }
}

}  // namespace kalvora
