#include "win32/coming/WhatComesDialog.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/LocalMinute.h"
#include "coming/WhatComes.h"
#include "win32/coming/WhatComesIds.h"
#include "win32/toolkit/ListColumns.h"
#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

namespace {

enum Column { kDate, kTime, kName, kKind, kState };
constexpr std::array<const wchar_t*, 5> kHeadings = {L"Date", L"Time", L"Name", L"Kind", L"State"};
// The widest that stands in a column; the names have what is left.
constexpr std::array<const wchar_t*, 5> kWidest = {L"Wed 22.12.2026", L"12:00 PM", L"", L"Monthly",
                                                   L"snoozed"};
constexpr int kColumnMargins = 16;

constexpr std::array<Anchor, 5> kAnchors = {{
    {IDC_COMING_ROWS, Sideways::Grow, Downwards::Grow},
    {IDC_COMING_CALENDAR_LABEL, Sideways::Move, Downwards::Stay},
    {IDC_COMING_CALENDAR, Sideways::Move, Downwards::Stay},
    {IDC_COMING_NOTICE, Sideways::Grow, Downwards::Move},
    {IDCANCEL, Sideways::Move, Downwards::Move},
}};

constexpr UINT_PTR kTimer = 1;
constexpr UINT kOpenRow = WM_APP + 1;  // wParam: the number of the row

RECT placeIn(HWND window, HWND control) {
  RECT place{};
  GetWindowRect(control, &place);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

void setPlace(HWND control, const RECT& place) {
  SetWindowPos(control, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

WhatComesDialog::WhatComesDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
                                 WhatComes& form)
    : DialogFrame(owner, dialogs),
      deliver_(deliver),
      form_(form),
      calendar_([this](std::chrono::year_month month) { return form_.boldDays(month); }) {}

void WhatComesDialog::open() {
  if (window() != nullptr) {
    bringToFront();
    return;
  }
  try {
    registerControls(ICC_LISTVIEW_CLASSES | ICC_DATE_CLASSES);
    create(IDD_WHAT_COMES);
    prepare();
    form_.Form_Load();
  } catch (...) {
    unload();
    throw;
  }
  centre();
  bringToFront();
  SetFocus(list());
}

void WhatComesDialog::prepare() {
  calendar_.attach(control(IDC_COMING_CALENDAR));
  makeRoomForCalendar();
  designed_ = size();
  letGrow(kAnchors);
  ListView_SetExtendedListViewStyle(list(), LVS_EX_FULLROWSELECT);
  addListColumns(list(), kHeadings);
  fitColumns();
  for (const ComingSpan span : kComingSpans) {
    const std::wstring caption(captionOf(span));
    SendDlgItemMessageW(window(), IDC_COMING_SPAN, CB_ADDSTRING, 0,
                        reinterpret_cast<LPARAM>(caption.c_str()));
  }
}

/// It stands at the right edge; the list has what it leaves.
void WhatComesDialog::makeRoomForCalendar() {
  const SIZE needed = calendar_.neededSize();
  RECT calendar = placeIn(window(), control(IDC_COMING_CALENDAR));
  RECT label = placeIn(window(), control(IDC_COMING_CALENDAR_LABEL));
  RECT rows = placeIn(window(), list());
  const LONG gap = calendar.left - rows.right;
  calendar.left = calendar.right - needed.cx;
  calendar.bottom = calendar.top + needed.cy;
  label = {calendar.left, label.top, calendar.right, label.bottom};
  rows.right = calendar.left - gap;
  setPlace(control(IDC_COMING_CALENDAR), calendar);
  setPlace(control(IDC_COMING_CALENDAR_LABEL), label);
  setPlace(list(), rows);
}

void WhatComesDialog::fitColumns() const {
  RECT inside{};
  GetClientRect(list(), &inside);
  // As if it were there: the names keep their width when it comes.
  if ((GetWindowLongPtrW(list(), GWL_STYLE) & WS_VSCROLL) == 0) {
    inside.right -= GetSystemMetrics(SM_CXVSCROLL);
  }
  LONG left = inside.right;
  for (const int column : {kDate, kTime, kKind, kState}) {
    const int width =
        ListView_GetStringWidth(list(), kWidest[static_cast<std::size_t>(column)]) + kColumnMargins;
    ListView_SetColumnWidth(list(), column, width);
    left -= width;
  }
  ListView_SetColumnWidth(list(), kName, left);
}

INT_PTR WhatComesDialog::handle(HWND, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_COMMAND:
      onCommand(wParam);
      return TRUE;
    case WM_NOTIFY:
      onNotify(*reinterpret_cast<NMHDR*>(lParam));
      return TRUE;
    case WM_TIMER:
      deliver_([this] { form_.tick(); });
      return TRUE;
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) deliver_([this] { form_.activated(); });
      // The platform gives the keyboard back to its control.
      return FALSE;
    case kOpenRow:
      openRow(wParam);
      return TRUE;
    default:
      return FALSE;
  }
}

void WhatComesDialog::onCommand(WPARAM wParam) noexcept {
  if (LOWORD(wParam) == IDCANCEL) deliver_([this] { form_.unload(); });
  if (LOWORD(wParam) == IDOK) onEnter();
  if (LOWORD(wParam) == IDC_COMING_SPAN && HIWORD(wParam) == CBN_SELCHANGE) onSpan();
}

/// On a row it opens its note; in the calendar it goes on to the rows of the day.
void WhatComesDialog::onEnter() noexcept {
  const HWND focus = GetFocus();
  if (focus == control(IDC_COMING_CALENDAR)) SetFocus(list());
  if (focus != list()) return;
  if (const std::optional<std::size_t> row = selectedRow()) openRow(*row);
}

void WhatComesDialog::onSpan() noexcept {
  const LRESULT chosen = SendDlgItemMessageW(window(), IDC_COMING_SPAN, CB_GETCURSEL, 0, 0);
  if (chosen == CB_ERR) return;
  deliver_([&] { form_.chooseSpan(static_cast<ComingSpan>(chosen)); });
}

void WhatComesDialog::onNotify(NMHDR& notification) noexcept {
  if (notification.idFrom == IDC_COMING_ROWS) onRowsNotify(notification);
  if (notification.idFrom == IDC_COMING_CALENDAR) onCalendarNotify(notification);
}

void WhatComesDialog::onRowsNotify(NMHDR& notification) noexcept {
  if (notification.code == LVN_GETDISPINFOW) {
    onRowAsked(reinterpret_cast<NMLVDISPINFOW&>(notification).item);
  } else if (notification.code == NM_CLICK) {
    const int row = reinterpret_cast<const NMITEMACTIVATE&>(notification).iItem;
    if (row < 0) return;
    const DWORD place = GetMessagePos();
    const POINTS at = MAKEPOINTS(place);
    clicked_ = Click{static_cast<DWORD>(GetMessageTime()), {at.x, at.y}};
    // The list has first to be done with the mouse.
    PostMessageW(window(), kOpenRow, static_cast<WPARAM>(row), 0);
  }
}

void WhatComesDialog::onCalendarNotify(const NMHDR& notification) noexcept {
  deliver_([&] {
    if (const auto day = calendar_.onNotify(notification)) form_.chooseDay(*day);
  });
}

void WhatComesDialog::onRowAsked(LVITEMW& item) noexcept {
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
  deliver_([&] {
    const std::wstring text = cell(static_cast<std::size_t>(item.iItem), item.iSubItem);
    const auto room = static_cast<std::size_t>(item.cchTextMax) - 1;
    item.pszText[text.copy(item.pszText, room)] = L'\0';
  });
}

std::wstring WhatComesDialog::cell(std::size_t row, int column) const {
  const std::optional<ComingRow> shown = form_.row(row);
  if (!shown) return {};
  switch (column) {
    case kDate:
      return dateTexts_.dayAndDate(timeOf(shown->moment));
    case kTime:
      return form_.text(*shown, ComingColumn::Time);
    case kName:
      return form_.text(*shown, ComingColumn::Name);
    case kKind:
      return form_.text(*shown, ComingColumn::Kind);
    default:
      return form_.text(*shown, ComingColumn::State);
  }
}

void WhatComesDialog::openRow(std::size_t row) noexcept {
  deliver_([&] { form_.openRow(row); });
}

/// The second press of a double click on a row: the editor came with the first one, and may stand
/// under the pointer with any of its buttons.
bool WhatComesDialog::isSecondClick(const MSG& message) const noexcept {
  const bool press = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK ||
                     message.message == WM_NCLBUTTONDOWN;
  return press && clicked_ && message.time - clicked_->time < GetDoubleClickTime() &&
         std::abs(message.pt.x - clicked_->at.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
         std::abs(message.pt.y - clicked_->at.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
}

bool WhatComesDialog::takesMessage(MSG& message) noexcept {
  return isSecondClick(message) || DialogFrame::takesMessage(message);
}

void WhatComesDialog::showSpan(ComingSpan span) {
  SendDlgItemMessageW(window(), IDC_COMING_SPAN, CB_SETCURSEL, static_cast<WPARAM>(span), 0);
}

void WhatComesDialog::showRows(std::size_t count, std::optional<std::size_t> selected) {
  const int focused = ListView_GetNextItem(list(), -1, LVNI_FOCUSED);
  SendMessageW(list(), LVM_SETITEMCOUNT, count, LVSICF_NOSCROLL);
  if (selectedRow() != selected) {
    ListView_SetItemState(list(), -1, 0, LVIS_SELECTED);
    if (selected) selectRow(*selected);
  }
  // Who uses the keyboard goes on from where the row was that is gone.
  if (!selected && focused >= 0 && count > 0) {
    const int last = static_cast<int>(count) - 1;
    ListView_SetItemState(list(), std::min(focused, last), LVIS_FOCUSED, LVIS_FOCUSED);
  }
  InvalidateRect(list(), nullptr, TRUE);
}

std::optional<std::size_t> WhatComesDialog::selectedRow() const {
  const int selected = ListView_GetNextItem(list(), -1, LVNI_SELECTED);
  return selected < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(selected));
}

void WhatComesDialog::selectRow(std::size_t row) {
  const int item = static_cast<int>(row);
  ListView_SetItemState(list(), item, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void WhatComesDialog::scrollTo(std::size_t row) {
  const int item = static_cast<int>(row);
  const int last =
      std::min(item + ListView_GetCountPerPage(list()) - 1, ListView_GetItemCount(list()) - 1);
  ListView_EnsureVisible(list(), last, FALSE);
  ListView_EnsureVisible(list(), item, FALSE);
}

void WhatComesDialog::setNotice(std::wstring_view text) {
  SetDlgItemTextW(window(), IDC_COMING_NOTICE, std::wstring(text).c_str());
}

void WhatComesDialog::setTimer(int interval) {
  SetTimer(window(), kTimer, static_cast<UINT>(interval), nullptr);
}

Size WhatComesDialog::size() const {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(window(), &placement);
  const RECT& place = placement.rcNormalPosition;
  return {place.right - place.left, place.bottom - place.top};
}

void WhatComesDialog::setSize(Size size) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window(), MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& room = monitor.rcWork;
  const int width = std::min<int>(size.width, room.right - room.left);
  const int height = std::min<int>(size.height, room.bottom - room.top);
  SetWindowPos(window(), nullptr, 0, 0, std::max(width, designed_.width),
               std::max(height, designed_.height), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND WhatComesDialog::list() const {
  return control(IDC_COMING_ROWS);
}

}  // namespace kalvora
