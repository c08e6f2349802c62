#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kalvora {

/// How hours are shown; the setting "AmPm" switches. Files always hold 0 to 24.
enum class HourFormat { Hours24, Hours12 };

enum class HalfOfDay { Am, Pm };

/// What a message about an hour that cannot be stored begins with.
inline constexpr std::wstring_view kAlarmHour = L"The hour of the note's alarm: ";

/// An hour as the user sees it.
struct ShownHour {
  std::wstring hour;
  std::optional<HalfOfDay> half;  // nothing for no hour and for 24-hour display
  friend bool operator==(const ShownHour&, const ShownHour&) = default;
};

constexpr HourFormat hourFormatOf(bool AmPm) {
  return AmPm ? HourFormat::Hours12 : HourFormat::Hours24;
}

/// A stored hour as it is shown. In 12-hour display 0 to 12 stand unchanged as am, and what is
/// greater stands 12 less as pm: not the clock's convention, but with storedHour() every file keeps
/// its hour. An empty hour stays empty.
/// Throws ConversionError and OverflowError for an hour that is no 16-bit number, in 12-hour
/// display only: 24-hour display takes any text as it is.
ShownHour shownHour(std::wstring_view stored, HourFormat format);

/// The same for an hour of a damaged note, which must not keep it from being shown: one that is no
/// 16-bit number stands as it is, without a half of the day. Never throws.
ShownHour shownHourOrText(std::wstring_view stored, HourFormat format);

/// A shown hour as it is stored: its whole number as decimal text, 12 more for pm in 12-hour
/// display. An empty hour stays empty. Throws ConversionError and OverflowError.
std::wstring storedHour(std::wstring_view shown, HalfOfDay half, HourFormat format);

}  // namespace kalvora
