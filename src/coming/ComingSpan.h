#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <string_view>

namespace kalvora {

/// How far ahead the list of what comes looks.
enum class ComingSpan { Today = 0, Week = 1, Month = 2, Year = 3 };

inline constexpr std::array<ComingSpan, 4> kComingSpans = {ComingSpan::Today, ComingSpan::Week,
                                                           ComingSpan::Month, ComingSpan::Year};

/// The days of the longest span.
inline constexpr std::size_t kMostComingDays = 366;

/// What the user reads.
std::wstring_view captionOf(ComingSpan span);

/// How many days a span has, today among them: 1, 7, 30, and all before the same date next year.
std::size_t daysOf(ComingSpan span, std::chrono::local_days today);

/// The shortest span of which the day is one that many days ahead of today.
ComingSpan spanWith(std::size_t daysAhead, std::chrono::local_days today);

}  // namespace kalvora
