#include "notes/NoteDate.h"

namespace kalvora {

std::optional<int> plainNumber(std::wstring_view text) {
  constexpr std::size_t kMostDigits = 6;
  const bool digits = text.find_first_not_of(L"0123456789") == std::wstring_view::npos;
  if (text.empty() || text.size() > kMostDigits || !digits) return std::nullopt;
  int number = 0;
  for (const wchar_t digit : text) number = number * 10 + static_cast<int>(digit - L'0');
  return number;
}

std::optional<std::chrono::year_month_day> noteDate(std::wstring_view year, std::wstring_view month,
                                                    std::wstring_view day) {
  const std::optional<int> years = plainNumber(year);
  const std::optional<int> months = plainNumber(month);
  const std::optional<int> days = plainNumber(day);
  if (!years || !months || !days) return std::nullopt;
  // What the calendar's own types hold; whether there is such a day they tell then.
  constexpr int kMostDays = 31;
  const bool held = *years >= static_cast<int>(kFirstNoteYear) &&
                    *years <= static_cast<int>(kLastNoteYear) && *months <= 12 &&
                    *days <= kMostDays;
  if (!held) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(*years),
                                         std::chrono::month(static_cast<unsigned>(*months)),
                                         std::chrono::day(static_cast<unsigned>(*days))};
  return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace kalvora
