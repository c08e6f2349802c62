#include "win32/coming/WhatComesDialog.h"

#include <array>

#include "base/LocalMinute.h"
#include "coming/WhatComes.h"
#include "win32/coming/WhatComesIds.h"
#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

namespace {

enum Column { kDate, kTime, kName, kKind, kState };
constexpr std::array<const wchar_t*, 5> kHeadings = {L"Date", L"Time", L"Name", L"Kind", L"State"};
// The widest that stands in a column; the names have what is left.
constexpr std::array<const wchar_t*, 5> kWidest = {L"Wed 22.12.2026", L"12:00 PM", L"", L"Monthly",
                                                   L"snoozed"};

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
  letGrow(kAnchors);
  rows_.attach(list(), kHeadings, kWidest);
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
  } else if (notification.code == LVN_ODFINDITEMW) {
    // A letter typed in the list leads nowhere; without an answer, to the first row.
    SetWindowLongPtrW(window(), DWLP_MSGRESULT, -1);
  } else if (const auto row = rows_.clickedRow(notification)) {
    PostMessageW(window(), kOpenRow, *row, 0);
  }
}

void WhatComesDialog::onCalendarNotify(const NMHDR& notification) noexcept {
  deliver_([&] {
    if (const auto day = calendar_.onNotify(notification)) form_.chooseDay(*day);
  });
}

void WhatComesDialog::onRowAsked(LVITEMW& item) noexcept {
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
  deliver_(
      [&] { RowList::answer(item, cell(static_cast<std::size_t>(item.iItem), item.iSubItem)); });
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

bool WhatComesDialog::takesMessage(MSG& message) noexcept {
  return rows_.isSecondClick(message) || DialogFrame::takesMessage(message);
}

void WhatComesDialog::showSpan(ComingSpan span) {
  SendDlgItemMessageW(window(), IDC_COMING_SPAN, CB_SETCURSEL, static_cast<WPARAM>(span), 0);
}

void WhatComesDialog::setNotice(std::wstring_view text) {
  SetDlgItemTextW(window(), IDC_COMING_NOTICE, std::wstring(text).c_str());
}

void WhatComesDialog::setTimer(int interval) {
  SetTimer(window(), kTimer, static_cast<UINT>(interval), nullptr);
}

HWND WhatComesDialog::list() const {
  return control(IDC_COMING_ROWS);
}

}  // namespace kalvora
