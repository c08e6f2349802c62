#pragma once

#include <chrono>

#include "base/Clock.h"

namespace kalvora {

/// The day of a moment.
constexpr std::chrono::year_month_day dateOf(const LocalTime& time) {
  return {std::chrono::year(time.year), std::chrono::month(static_cast<unsigned>(time.month)),
          std::chrono::day(static_cast<unsigned>(time.day))};
}

}  // namespace kalvora
