#pragma once

#include <windows.h>

#include <chrono>

#include "base/Clock.h"
#include "notes/HourDisplay.h"

namespace kalvora {

/// What such a control sends where the user picked another date.
inline constexpr int kDatePicked = -759;  // DTN_DATETIMECHANGE

/// Keeps the platform's control for dates to the years that a note can be for.
void prepareDateBox(HWND box);

/// The date that it shows.
std::chrono::year_month_day dateIn(HWND box);
void showDateIn(HWND box, std::chrono::year_month_day date);

/// The same of the platform's control for times: hour and minute since midnight. The hours of a day
/// are shown as the user has them.
std::chrono::minutes timeIn(HWND box);
void showTimeIn(HWND box, const LocalTime& time, HourFormat format);

}  // namespace kalvora
