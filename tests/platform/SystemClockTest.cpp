#include "win32/platform/SystemClock.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "win32/platform/WindowsTime.h"

namespace kalvora {
namespace {

SYSTEMTIME localTime() {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return time;
}

TEST(SystemClock, tellsTheComputersLocalTime) {
  const LocalTime before = localTimeOf(localTime());
  const LocalTime now = SystemClock().now();
  const LocalTime after = localTimeOf(localTime());
  const auto secondOfTheDay = [](const LocalTime& time) {
    return (time.hour * 60 + time.minute) * 60 + time.second;
  };
  // At midnight the two days differ: nothing to compare then.
  if (before.day != after.day) return;
  EXPECT_EQ(now.year, before.year);
  EXPECT_EQ(now.month, before.month);
  EXPECT_EQ(now.day, before.day);
  EXPECT_EQ(now.weekday, before.weekday);
  EXPECT_GE(secondOfTheDay(now), secondOfTheDay(before));
  EXPECT_LE(secondOfTheDay(now), secondOfTheDay(after));
}

TEST(SystemClock, fieldsKeepTheirMeaning) {
  const SYSTEMTIME sunday = {2027, 3, 0, 28, 13, 5, 59, 999};
  EXPECT_EQ(localTimeOf(sunday), (LocalTime{2027, 3, 28, 0, 13, 5, 59}));
}

}  // namespace
}  // namespace kalvora
