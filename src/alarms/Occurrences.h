#pragma once

#include <vector>

#include "alarms/DueRule.h"
#include "base/LocalMinute.h"

namespace kalvora {

/// Every moment from `from` on and before `to` at which a note of that rule is due, each once, in
/// their order. A note that is due on a day as a whole is so at its beginning.
std::vector<LocalMinute> occurrences(const DueRule& rule, LocalMinute from, LocalMinute to);

}  // namespace kalvora
