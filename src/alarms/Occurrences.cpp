#include "alarms/Occurrences.h"

namespace kalvora {

std::vector<LocalMinute> occurrences(const DueRule& rule, LocalMinute from, LocalMinute to) {
  using namespace std::chrono;
  std::vector<LocalMinute> moments;
  for (local_days day = floor<days>(from); day < to; day += days(1)) {
    const LocalMinute moment = day + rule.time.value_or(minutes(0));
    if (moment >= from && moment < to && rule.dueOn(day)) moments.push_back(moment);
  }
  return moments;
}

}  // namespace kalvora
