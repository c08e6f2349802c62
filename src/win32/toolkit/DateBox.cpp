#include "win32/toolkit/DateBox.h"

#include <commctrl.h>

#include <array>

#include "base/Dates.h"
#include "notes/NoteDate.h"

namespace kalvora {

namespace {

static_assert(kDatePicked == static_cast<int>(DTN_DATETIMECHANGE));

SYSTEMTIME dayAsSystemTime(std::chrono::year_month_day date) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(static_cast<int>(date.year()));
  time.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
  time.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
  return time;
}

}  // namespace

void prepareDateBox(HWND box) {
  using namespace std::chrono;
  const std::array<SYSTEMTIME, 2> range = {dayAsSystemTime(kFirstNoteYear / January / 1),
                                           dayAsSystemTime(kLastNoteYear / December / 31)};
  SendMessageW(box, DTM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(range.data()));
}

std::chrono::year_month_day dateIn(HWND box) {
  using namespace std::chrono;
  SYSTEMTIME time{};
  SendMessageW(box, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
  return year(time.wYear) / month(time.wMonth) / day(time.wDay);
}

void showDateIn(HWND box, std::chrono::year_month_day date) {
  const SYSTEMTIME time = dayAsSystemTime(date);
  SendMessageW(box, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
}

std::chrono::minutes timeIn(HWND box) {
  SYSTEMTIME time{};
  SendMessageW(box, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
  return std::chrono::hours(time.wHour) + std::chrono::minutes(time.wMinute);
}

void showTimeIn(HWND box, const LocalTime& time, HourFormat format) {
  const wchar_t* const pattern = format == HourFormat::Hours12 ? L"h:mm tt" : L"HH:mm";
  SendMessageW(box, DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(pattern));
  SYSTEMTIME shown = dayAsSystemTime(dateOf(time));
  shown.wHour = static_cast<WORD>(time.hour);
  shown.wMinute = static_cast<WORD>(time.minute);
  SendMessageW(box, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&shown));
}

}  // namespace kalvora
