#include "win32/coming/ComingCalendar.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <vector>

#include "win32/toolkit/Keys.h"

namespace kalvora {

namespace {

using std::chrono::local_days;
using std::chrono::year_month;

// Not every compiler's header has this number right.
constexpr UINT kGetDayState = static_cast<UINT>(-747);

local_days dayOf(const SYSTEMTIME& time) {
  return local_days(std::chrono::year(time.wYear) / time.wMonth / time.wDay);
}

year_month monthOf(const SYSTEMTIME& time) {
  return std::chrono::year(time.wYear) / std::chrono::month(time.wMonth);
}

}  // namespace

void ComingCalendar::attach(HWND control) {
  control_ = control;
  SYSTEMTIME today{};
  SendMessageW(control_, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&today));
  day_ = dayOf(today);
}

SIZE ComingCalendar::neededSize() const {
  RECT needed{};
  SendMessageW(control_, MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
  const LONG today = static_cast<LONG>(SendMessageW(control_, MCM_GETMAXTODAYWIDTH, 0, 0));
  // Not each platform counts the border in, nor all of the last line.
  const int border = 2 * GetSystemMetrics(SM_CXEDGE);
  return {std::max(needed.right, today) + border, needed.bottom + 2 * border};
}

void ComingCalendar::showBoldDays() const {
  std::array<SYSTEMTIME, 2> range{};
  const LRESULT count = SendMessageW(control_, MCM_GETMONTHRANGE, GMR_DAYSTATE,
                                     reinterpret_cast<LPARAM>(range.data()));
  std::vector<MONTHDAYSTATE> states;
  year_month month = monthOf(range.front());
  for (LRESULT i = 0; i < count; ++i, month += std::chrono::months(1)) {
    states.push_back(boldDays_(month));
  }
  SendMessageW(control_, MCM_SETDAYSTATE, states.size(), reinterpret_cast<LPARAM>(states.data()));
}

std::optional<local_days> ComingCalendar::onNotify(const NMHDR& notification) {
  switch (notification.code) {
    case kGetDayState:
      answerBoldDays(notification);
      return std::nullopt;
    case MCN_SELECT:
      return chosen(notification);
    case MCN_SELCHANGE: {
      // The mouse tells by MCN_SELECT; what comes beside it is a turn to another month.
      const local_days before = day_;
      const auto now = chosen(notification);
      if (isDown(VK_LBUTTON)) return std::nullopt;
      // The control says so from time to time though nobody did anything.
      return day_ != before ? now : std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

std::optional<local_days> ComingCalendar::chosen(const NMHDR& notification) {
  day_ = dayOf(reinterpret_cast<const NMSELCHANGE&>(notification).stSelStart);
  return day_;
}

void ComingCalendar::answerBoldDays(const NMHDR& notification) const {
  const auto& asked = reinterpret_cast<const NMDAYSTATE&>(notification);
  year_month month = monthOf(asked.stStart);
  for (int i = 0; i < asked.cDayState; ++i, month += std::chrono::months(1)) {
    asked.prgDayState[i] = boldDays_(month);
  }
}

}  // namespace kalvora
