#include "win32/platform/PlatformDateTexts.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

namespace kalvora {
namespace {

/// One of the user's regional settings, as it was again at the end.
class RegionalSetting {
 public:
  RegionalSetting(LCTYPE which, const wchar_t* value) : which_(which) {
    std::array<wchar_t, 80> text{};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, which, text.data(), static_cast<int>(text.size()));
    before_ = text.data();
    SetLocaleInfoW(LOCALE_USER_DEFAULT, which, value);
  }
  ~RegionalSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, which_, before_.c_str()); }
  RegionalSetting(const RegionalSetting&) = delete;
  RegionalSetting& operator=(const RegionalSetting&) = delete;

 private:
  LCTYPE which_;
  std::wstring before_;
};

constexpr LocalTime kMorning = {
    .year = 2026, .month = 3, .day = 8, .weekday = 0, .hour = 7, .minute = 5, .second = 9};

TEST(PlatformDateTexts, followTheRegionalSettings) {
  const RegionalSetting date(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
  const RegionalSetting time(LOCALE_STIMEFORMAT, L"HH:mm:ss");
  EXPECT_EQ(PlatformDateTexts().shortDate(kMorning), L"08.03.2026");
  EXPECT_EQ(PlatformDateTexts().dateAndTime(kMorning), L"08.03.2026 07:05:09");
  EXPECT_EQ(PlatformDateTexts().dateAndMinute(kMorning), L"08.03.2026 07:05");
}

TEST(PlatformDateTexts, followThemWhenTheyChange) {
  const RegionalSetting date(LOCALE_SSHORTDATE, L"yyyy/M/d");
  const RegionalSetting time(LOCALE_STIMEFORMAT, L"h:mm:ss tt");
  const RegionalSetting morning(LOCALE_S1159, L"vorm.");
  EXPECT_EQ(PlatformDateTexts().shortDate(kMorning), L"2026/3/8");
  EXPECT_EQ(PlatformDateTexts().dateAndTime(kMorning), L"2026/3/8 7:05:09 vorm.");
  EXPECT_EQ(PlatformDateTexts().dateAndMinute(kMorning), L"2026/3/8 7:05 vorm.");
}

}  // namespace
}  // namespace kalvora
