#include "coming/ComingSpan.h"

namespace kalvora {

std::wstring_view captionOf(ComingSpan span) {
  constexpr std::array<std::wstring_view, kComingSpans.size()> kCaptions = {L"Today", L"7 days",
                                                                            L"30 days", L"A year"};
  return kCaptions[static_cast<std::size_t>(span)];
}

std::size_t daysOf(ComingSpan span, std::chrono::local_days today) {
  using namespace std::chrono;
  constexpr std::array<std::size_t, 3> kDays = {1, 7, 30};
  if (span != ComingSpan::Year) return kDays[static_cast<std::size_t>(span)];
  // A 29 February is counted on to 1 March where next year has none.
  const local_days end(year_month_day(today) + years(1));
  return static_cast<std::size_t>((end - today).count());
}

ComingSpan spanWith(std::size_t daysAhead, std::chrono::local_days today) {
  for (const ComingSpan span : kComingSpans) {
    if (daysAhead < daysOf(span, today)) return span;
  }
  return ComingSpan::Year;
}

}  // namespace kalvora
