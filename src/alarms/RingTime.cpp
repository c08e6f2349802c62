#include "alarms/RingTime.h"

#include "base/Errors.h"
#include "notes/NoteDate.h"

namespace kalvora {

RingTime ringTimeOnce(const OnceTexts& texts) {
  for (const std::wstring& text : texts) {
    if (!isMissing(text) && !plainNumber(text)) throw ConversionError(text);
  }
  const auto& [year, month, day, hour, minute] = texts;
  RingTime time{.clockTime = hour + L":" + minute, .weekdays = 0, .date = std::nullopt};
  if (isMissing(year) || isMissing(month) || isMissing(day)) return time;
  time.date = noteDate(year, month, day);
  // A fault, which is told: its reminder would be missed without a word.
  if (!time.date) throw ConversionError(year + L"-" + month + L"-" + day);
  time.weekdays = RingTime::kEveryDay;
  return time;
}

}  // namespace kalvora
