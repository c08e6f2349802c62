#include "win32/platform/PlatformDateTexts.h"

#include <windows.h>

#include <array>

namespace kalvora {

namespace {

SYSTEMTIME systemTimeOf(const LocalTime& time) {
  SYSTEMTIME parts{};
  parts.wYear = static_cast<WORD>(time.year);
  parts.wMonth = static_cast<WORD>(time.month);
  parts.wDay = static_cast<WORD>(time.day);
  parts.wHour = static_cast<WORD>(time.hour);
  parts.wMinute = static_cast<WORD>(time.minute);
  parts.wSecond = static_cast<WORD>(time.second);
  return parts;
}

std::wstring dateText(const LocalTime& time, DWORD flags, const wchar_t* format) {
  const SYSTEMTIME parts = systemTimeOf(time);
  std::array<wchar_t, 128> text{};
  GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &parts, format, text.data(),
                  static_cast<int>(text.size()), nullptr);
  return text.data();
}

std::wstring timeOfDay(const LocalTime& time, DWORD flags) {
  const SYSTEMTIME parts = systemTimeOf(time);
  std::array<wchar_t, 128> text{};
  GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &parts, nullptr, text.data(),
                  static_cast<int>(text.size()));
  return text.data();
}

}  // namespace

std::wstring PlatformDateTexts::shortDate(const LocalTime& time) const {
  return dateText(time, DATE_SHORTDATE, nullptr);
}

std::wstring PlatformDateTexts::dayAndDate(const LocalTime& time) const {
  return dateText(time, 0, L"ddd") + L" " + shortDate(time);
}

std::wstring PlatformDateTexts::dateAndTime(const LocalTime& time) const {
  return shortDate(time) + L" " + timeOfDay(time, 0);
}

std::wstring PlatformDateTexts::dateAndMinute(const LocalTime& time) const {
  return shortDate(time) + L" " + timeOfDay(time, TIME_NOSECONDS);
}

}  // namespace kalvora
