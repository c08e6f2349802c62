#include "notes/HourDisplay.h"

#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

// 12 itself is still am: the file keeps 12 and 24 apart by that.
constexpr std::int16_t kHoursOfAHalf = 12;

}  // namespace

ShownHour shownHour(std::wstring_view stored, HourFormat format) {
  if (stored.empty() || format == HourFormat::Hours24) return {std::wstring(stored), std::nullopt};
  const std::int16_t hour = textToInt16(stored);
  if (hour <= kHoursOfAHalf) return {std::wstring(stored), HalfOfDay::Am};
  return {numberToText(hour - kHoursOfAHalf), HalfOfDay::Pm};
}

ShownHour shownHourOrText(std::wstring_view stored, HourFormat format) {
  try {
    return shownHour(stored, format);
  } catch (const Failure&) {
    return {std::wstring(stored), std::nullopt};
  }
}

std::wstring storedHour(std::wstring_view shown, HalfOfDay half, HourFormat format) {
  if (shown.empty()) return {};
  try {
    const std::int16_t hour = textToInt16(shown);
    const bool secondHalf = format == HourFormat::Hours12 && half == HalfOfDay::Pm;
    return numberToText(secondHalf ? add16(hour, kHoursOfAHalf) : hour);
  } catch (Failure& failure) {
    failure.prefix(kAlarmHour);
    throw;
  }
}

}  // namespace kalvora
