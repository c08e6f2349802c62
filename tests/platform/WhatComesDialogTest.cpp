#include "win32/coming/WhatComesDialog.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>
#include <vector>

#include "coming/WhatComes.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeComingHost.h"
#include "fakes/FakeReporter.h"
#include "fakes/MemorySettingsStore.h"
#include "fakes/TempFolder.h"
#include "platform/NameForReaders.h"
#include "win32/coming/WhatComesIds.h"
#include "win32/platform/ComLibrary.h"
#include "win32/platform/SystemClock.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {
namespace {

using namespace std::chrono;

enum WhatComesColumn { kDateColumn, kTimeColumn, kNameColumn, kKindColumn, kStateColumn };

/// The real window over a folder of its own. Days are those of now: the platform's calendar begins
/// with today.
class WhatComesDialogTest : public testing::Test {
 protected:
  WhatComesDialogTest() {
    std::filesystem::create_directory(notes_);
    clock_.time = SystemClock().now();
    clock_.time.hour = 0;
    clock_.time.minute = 0;
  }

  void open() {
    dialog_.open();
    pump();
  }
  void pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (dialogs_.takesMessage(message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  HWND control(int id) const { return GetDlgItem(dialog_.window(), id); }
  HWND list() const { return control(IDC_COMING_ROWS); }
  int rows() const { return ListView_GetItemCount(list()); }
  int selected() const { return ListView_GetNextItem(list(), -1, LVNI_SELECTED); }
  std::wstring cell(int row, int column) const {
    std::wstring text(100, L'\0');
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    const auto length = SendMessageW(list(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                                     reinterpret_cast<LPARAM>(&item));
    text.resize(static_cast<std::size_t>(length));
    return text;
  }
  void key(HWND focused, WPARAM virtualKey) {
    SetFocus(focused);
    MSG message{};
    message.hwnd = focused;
    message.message = WM_KEYDOWN;
    message.wParam = virtualKey;
    message.lParam = 1;
    if (!dialogs_.takesMessage(message)) DispatchMessageW(&message);
    pump();
  }
  void clickRow(int row) {
    RECT place{};
    ListView_GetItemRect(list(), row, &place, LVIR_BOUNDS);
    const LPARAM point = MAKELPARAM(place.left + 5, place.top + 5);
    PostMessageW(list(), WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(list(), WM_LBUTTONUP, 0, point);
    pump();
  }
  local_days today() const { return floor<days>(minuteOf(clock_.time)); }
  static SYSTEMTIME systemDay(local_days day) {
    const year_month_day date(day);
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(static_cast<int>(date.year()));
    time.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
    time.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
    return time;
  }
  /// As the calendar tells that the user clicked a day.
  void clickDay(local_days day) {
    NMSELCHANGE told{};
    told.nmhdr = {control(IDC_COMING_CALENDAR), IDC_COMING_CALENDAR, static_cast<UINT>(MCN_SELECT)};
    told.stSelStart = told.stSelEnd = systemDay(day);
    SendMessageW(dialog_.window(), WM_NOTIFY, IDC_COMING_CALENDAR, reinterpret_cast<LPARAM>(&told));
    pump();
  }
  void chooseSpan(ComingSpan span) {
    SendMessageW(control(IDC_COMING_SPAN), CB_SETCURSEL, static_cast<WPARAM>(span), 0);
    SendMessageW(dialog_.window(), WM_COMMAND, MAKEWPARAM(IDC_COMING_SPAN, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(control(IDC_COMING_SPAN)));
    pump();
  }

  TempFolder folder_;
  std::filesystem::path notes_ = folder_.path() / L"notes";
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  ModelessDialogs dialogs_;
  WindowsFileSystem files_;
  SystemCodePage codePage_;
  FakeClock clock_;
  MemorySettingsStore settings_;
  FakeComingHost host_;
  EventDelivery deliver_{guard_};
  WhatComesDialog dialog_{nullptr, dialogs_, deliver_, form_};
  WhatComes form_{{{files_, codePage_, notes_}, clock_, settings_, dialog_, host_}};
};

TEST_F(WhatComesDialogTest, listsWhatComes) {
  folder_.write(notes_ / "Gym.tx1", "18|05|x");
  host_.marks.missed = {{today() - hours(3), L"Bins.tx2"}};
  open();
  EXPECT_EQ(rows(), 8);
  EXPECT_EQ(cell(0, kNameColumn), L"Bins");
  EXPECT_EQ(cell(0, kStateColumn), L"missed");
  EXPECT_EQ(cell(1, kDateColumn), PlatformDateTexts().dayAndDate(clock_.time));
  EXPECT_EQ(cell(1, kTimeColumn), L"18:05");
  EXPECT_EQ(cell(1, kNameColumn), L"Gym");
  EXPECT_EQ(cell(1, kKindColumn), L"Daily");
  EXPECT_EQ(cell(1, kStateColumn), L"");
  EXPECT_EQ(GetFocus(), list());
}

TEST_F(WhatComesDialogTest, aClickOnARowOpensItsNote) {
  folder_.write(notes_ / "Gym.tx1", "18|05|x");
  folder_.write(notes_ / "Swim.tx1", "19|05|x");
  open();
  clickRow(1);
  EXPECT_EQ(host_.opened, std::vector<std::wstring>{L"Swim.tx1"});
}

TEST_F(WhatComesDialogTest, theSecondPressOfADoubleClickReachesNobody) {
  folder_.write(notes_ / "Gym.tx1", "18|05|x");
  open();
  MSG press{};
  press.hwnd = GetDesktopWindow();
  press.message = WM_LBUTTONDOWN;
  press.time = GetTickCount();
  EXPECT_FALSE(dialogs_.takesMessage(press)) << "no row was clicked yet";
  clickRow(0);
  press.time = static_cast<DWORD>(GetMessageTime());
  const DWORD place = GetMessagePos();
  const POINTS clicked = MAKEPOINTS(place);
  press.pt = {clicked.x, clicked.y};
  EXPECT_TRUE(dialogs_.takesMessage(press));
  press.pt.x += 50;
  EXPECT_FALSE(dialogs_.takesMessage(press)) << "a click at another place is one of its own";
  press.pt.x -= 50;
  press.time += GetDoubleClickTime() + 1;
  EXPECT_FALSE(dialogs_.takesMessage(press));
}

TEST_F(WhatComesDialogTest, theArrowsAndEnterOpenANote) {
  folder_.write(notes_ / "Gym.tx1", "18|05|x");
  folder_.write(notes_ / "Swim.tx1", "19|05|x");
  open();
  key(list(), VK_RETURN);
  EXPECT_TRUE(host_.opened.empty()) << "no row is selected";
  key(list(), VK_DOWN);
  key(list(), VK_DOWN);
  EXPECT_EQ(selected(), 1);
  key(list(), VK_RETURN);
  EXPECT_EQ(host_.opened, std::vector<std::wstring>{L"Swim.tx1"});
}

TEST_F(WhatComesDialogTest, aDayOfTheCalendarIsGoneTo) {
  folder_.write(notes_ / "Gym.tx1", "18|05|x");
  open();
  clickDay(today() + days(3));
  EXPECT_EQ(selected(), 3);
  clickDay(today() + days(40));
  EXPECT_EQ(SendMessageW(control(IDC_COMING_SPAN), CB_GETCURSEL, 0, 0),
            static_cast<LRESULT>(ComingSpan::Year));
  EXPECT_EQ(selected(), 40);
  EXPECT_GE(40, ListView_GetTopIndex(list()));
  EXPECT_LT(40, ListView_GetTopIndex(list()) + ListView_GetCountPerPage(list()));
}

TEST_F(WhatComesDialogTest, enterInTheCalendarGoesOnToTheRows) {
  open();
  key(control(IDC_COMING_CALENDAR), VK_RETURN);
  EXPECT_EQ(GetFocus(), list());
}

TEST_F(WhatComesDialogTest, theCalendarIsToldWhichDaysAreBold) {
  folder_.write(notes_ / "Rent.tx3", "20|||x");
  open();
  std::array<MONTHDAYSTATE, 3> states{};
  NMDAYSTATE asked{};
  asked.nmhdr = {control(IDC_COMING_CALENDAR), IDC_COMING_CALENDAR, static_cast<UINT>(-747)};
  const year_month_day now(today());
  asked.stStart = systemDay(local_days((now.year() / now.month() + months(1)) / 1));
  asked.cDayState = static_cast<int>(states.size());
  asked.prgDayState = states.data();
  SendMessageW(dialog_.window(), WM_NOTIFY, IDC_COMING_CALENDAR, reinterpret_cast<LPARAM>(&asked));
  EXPECT_EQ(states, (std::array<MONTHDAYSTATE, 3>{1U << 19U, 1U << 19U, 1U << 19U}));
}

TEST_F(WhatComesDialogTest, anotherSpanIsChosen) {
  folder_.write(notes_ / "Gym.tx1", "18|05|x");
  open();
  chooseSpan(ComingSpan::Month);
  EXPECT_EQ(rows(), 30);
  chooseSpan(ComingSpan::Today);
  EXPECT_EQ(rows(), 1);
}

TEST_F(WhatComesDialogTest, theControlsStandBesideEachOther) {
  open();
  RECT rowsPlace{}, calendar{}, window{};
  GetWindowRect(list(), &rowsPlace);
  GetWindowRect(control(IDC_COMING_CALENDAR), &calendar);
  GetWindowRect(dialog_.window(), &window);
  EXPECT_LT(rowsPlace.right, calendar.left);
  EXPECT_LT(calendar.right, window.right);
  EXPECT_LT(calendar.bottom, rowsPlace.bottom + 30);
  EXPECT_GT(rowsPlace.right - rowsPlace.left, 300);
}

TEST_F(WhatComesDialogTest, theWindowGrowsWithItsListAndKeepsItsSize) {
  open();
  RECT before{}, after{}, window{};
  GetWindowRect(list(), &before);
  GetWindowRect(dialog_.window(), &window);
  SetWindowPos(dialog_.window(), nullptr, 0, 0, window.right - window.left + 60,
               window.bottom - window.top + 40, SWP_NOMOVE | SWP_NOZORDER);
  GetWindowRect(list(), &after);
  EXPECT_EQ(after.right - after.left, before.right - before.left + 60);
  EXPECT_EQ(after.bottom - after.top, before.bottom - before.top + 40);
  const Size size = dialog_.size();
  key(list(), VK_ESCAPE);
  EXPECT_EQ(dialog_.window(), nullptr);
  open();
  EXPECT_EQ(dialog_.size(), size);
}

TEST_F(WhatComesDialogTest, aSizeFarTooLargeFitsTheMonitor) {
  settings_.values = {{L"What comes/Width", L"100000"}, {L"What comes/Height", L"1"}};
  open();
  EXPECT_LE(dialog_.size().width, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_GT(dialog_.size().height, 200);
}

TEST_F(WhatComesDialogTest, listAndCalendarHaveNamesForScreenReaders) {
  const ComApartment com;
  open();
  EXPECT_EQ(nameForReaders(list()), L"Reminders");
  EXPECT_EQ(nameForReaders(control(IDC_COMING_CALENDAR)), L"Calendar");
}

TEST_F(WhatComesDialogTest, openingItAgainBringsTheSameWindow) {
  open();
  const HWND window = dialog_.window();
  open();
  EXPECT_EQ(dialog_.window(), window);
  EXPECT_TRUE(reporter_.messages.empty());
}

}  // namespace
}  // namespace kalvora
