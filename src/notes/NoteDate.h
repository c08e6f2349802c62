#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace kalvora {

/// The years that a note can be for: those that the platform's control for dates shows whole.
inline constexpr std::chrono::year kFirstNoteYear{1753};
inline constexpr std::chrono::year kLastNoteYear{9999};

/// A number as a note for one date holds it, in digits alone; nothing for any other text. What is
/// read kindly elsewhere, as blanks or a fraction, would make another date of it here.
std::optional<int> plainNumber(std::wstring_view text);

/// The date that the fields of a note say, the month from 1; nothing where that is no day of any
/// calendar, or of none that a note can be for.
std::optional<std::chrono::year_month_day> noteDate(std::wstring_view year, std::wstring_view month,
                                                    std::wstring_view day);

}  // namespace kalvora
