#pragma once

#include "app/DateTexts.h"

namespace kalvora {

/// Dates in the formats of the user's regional settings.
class PlatformDateTexts : public DateTexts {
 public:
  std::wstring shortDate(const LocalTime& time) const override;
  std::wstring dateAndTime(const LocalTime& time) const override;
  std::wstring dateAndMinute(const LocalTime& time) const override;
  /// The short date with the weekday, shortened, before it.
  std::wstring dayAndDate(const LocalTime& time) const;
};

}  // namespace kalvora
