#include "alarms/DayNote.h"

#include "alarms/AdvanceReminder.h"
#include "base/Numbers.h"

namespace kalvora {

int DayNote::timesOn(int today) const {
  if (day == today) return 1;
  if (isMissing(daysBefore) || isMissing(everyDays)) return 0;
  return advanceMatches(day, textToInt16(daysBefore), textToInt16(everyDays), today);
}

}  // namespace kalvora
