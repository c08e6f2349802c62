#include "base/LocalMinute.h"

namespace kalvora {

LocalMinute minuteOf(const LocalTime& time) {
  using namespace std::chrono;
  const local_days day{year{time.year} / time.month / time.day};
  return day + hours(time.hour) + minutes(time.minute);
}

LocalTime timeOf(LocalMinute minute) {
  using namespace std::chrono;
  const local_days day = floor<days>(minute);
  const year_month_day date(day);
  const hh_mm_ss time(minute - day);
  LocalTime result;
  result.year = static_cast<int>(date.year());
  result.month = static_cast<int>(static_cast<unsigned>(date.month()));
  result.day = static_cast<int>(static_cast<unsigned>(date.day()));
  result.weekday = static_cast<int>(weekday(day).c_encoding());
  result.hour = static_cast<int>(time.hours().count());
  result.minute = static_cast<int>(time.minutes().count());
  return result;
}

}  // namespace kalvora
