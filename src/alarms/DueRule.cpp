#include "alarms/DueRule.h"

#include <string>

#include "alarms/TimeTableScanner.h"
#include "base/Errors.h"
#include "notes/NoteFieldReader.h"

namespace kalvora {

namespace {

using std::chrono::minutes;

constexpr bool ticked(std::uint32_t bits, unsigned number) {
  return ((bits >> number) & 1U) != 0;
}

/// The time as the scanner finds it in a table. What upsets the scanner there, such as a colon too
/// many, has the table ring another name.
std::optional<minutes> timeOf(const std::wstring& clockTime) {
  const std::wstring beforeName = clockTime + L"-";
  TimeTableScanner scanner;
  const int hour = scanner.Czytaj_zmienna_na_kolejke(beforeName);
  const int minute = scanner.Czytaj_zmienna_na_kolejke(beforeName);
  const bool exists = hour >= 0 && hour < 24 && minute >= 0 && minute < 60;
  if (!scanner.atEnd() || !exists) return std::nullopt;
  return std::chrono::hours(hour) + minutes(minute);
}

std::uint32_t daysOf(const DayNote& note) {
  const auto isDay = [](int day) { return day >= 1 && day <= DayNote::kLongestMonth; };
  std::uint32_t days = isDay(note.day) ? 1U << static_cast<unsigned>(note.day) : 0;
  try {
    for (int day = 1; isDay(day); ++day) {
      if (note.timesOn(day) > 0) days |= 1U << static_cast<unsigned>(day);
    }
  } catch (const Failure&) {
    // Nobody knows the days ahead: its own day is left.
  }
  return days;
}

std::uint16_t monthsOf(const DayNote& note) {
  unsigned months = 0;
  for (unsigned month = 1; month <= 12; ++month) {
    if (note.ringsIn(static_cast<int>(month))) months |= 1U << month;
  }
  return static_cast<std::uint16_t>(months);
}

}  // namespace

bool DueRule::dueOn(std::chrono::local_days day) const {
  const std::chrono::year_month_day date(day);
  if (onlyOn && date != *onlyOn) return false;
  return ticked(weekdays, std::chrono::weekday(day).c_encoding()) &&
         ticked(days, static_cast<unsigned>(date.day())) &&
         ticked(months, static_cast<unsigned>(date.month()));
}

std::optional<DueRule> dueRuleOf(const RingTime& time) {
  const std::optional<minutes> clock = timeOf(time.clockTime);
  if (!clock || time.weekdays == 0) return std::nullopt;
  return DueRule{.time = clock, .weekdays = time.weekdays, .onlyOn = time.date};
}

std::optional<DueRule> dueRuleOf(const DayNote& note) {
  const DueRule rule{.days = daysOf(note), .months = monthsOf(note)};
  if (rule.days == 0 || rule.months == 0) return std::nullopt;
  return rule;
}

std::optional<DueRule> dueRuleOf(const NoteTime& time) {
  return std::visit([](const auto& ofKind) { return dueRuleOf(ofKind); }, time);
}

std::optional<DueRule> dueRuleOf(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  if (bytes.size() > kLargestNoteSize) return std::nullopt;
  NoteFieldReader fields(bytes, codePage);
  try {
    return readDueRule(kind, fields);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

}  // namespace kalvora
