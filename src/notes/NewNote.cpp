#include "notes/NewNote.h"

#include <chrono>

#include "base/Dates.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

OnceFields atNextHour(const LocalTime& now) {
  using namespace std::chrono;
  const auto next = local_days(dateOf(now)) + hours(now.hour + 1);
  const auto day = floor<days>(next);
  const year_month_day date(day);
  const auto text = [](auto number) { return numberToText(static_cast<std::int32_t>(number)); };
  return {.year = text(static_cast<int>(date.year())),
          .month = text(static_cast<unsigned>(date.month())),
          .day = text(static_cast<unsigned>(date.day())),
          .hour = text(duration_cast<hours>(next - day).count()),
          .minute = text(0),
          .content = {}};
}

}  // namespace

NoteFields newNoteFields(NoteKind kind, const LocalTime& now) {
  NoteFields fields = emptyFields(kind);
  if (auto* const yearly = std::get_if<YearlyFields>(&fields)) yearly->month = L"0";
  if (auto* const once = std::get_if<OnceFields>(&fields)) *once = atNextHour(now);
  return fields;
}

}  // namespace kalvora
