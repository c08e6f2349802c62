#pragma once

#include <chrono>
#include <vector>

#include "alarms/DueRule.h"

namespace kalvora {

/// What the clock on the wall shows, whatever the time zone.
using LocalMinute = std::chrono::local_time<std::chrono::minutes>;

/// Every moment from `from` on and before `to` at which a note of that rule is due, each once, in
/// their order. A note that is due on a day as a whole is so at its beginning.
std::vector<LocalMinute> occurrences(const DueRule& rule, LocalMinute from, LocalMinute to);

}  // namespace kalvora
