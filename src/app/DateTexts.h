#pragma once

#include <string>

#include "base/Clock.h"

namespace kalvora {

/// Dates as the user has chosen to read them.
class DateTexts {
 public:
  virtual ~DateTexts() = default;
  /// The user's short date format.
  virtual std::wstring shortDate(const LocalTime& time) const = 0;
  /// The short date, a blank, and the time of day.
  virtual std::wstring dateAndTime(const LocalTime& time) const = 0;
  /// The same without the seconds.
  virtual std::wstring dateAndMinute(const LocalTime& time) const = 0;
};

}  // namespace kalvora
