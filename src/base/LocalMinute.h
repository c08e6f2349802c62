#pragma once

#include <chrono>

#include "base/Clock.h"

namespace kalvora {

/// What the clock on the wall shows, whatever the time zone.
using LocalMinute = std::chrono::local_time<std::chrono::minutes>;

/// The minute of a moment.
LocalMinute minuteOf(const LocalTime& time);
/// Its beginning.
LocalTime timeOf(LocalMinute minute);

}  // namespace kalvora
