#include "win32/main/MenuWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeReporter.h"
#include "platform/HeldHandles.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

class Actions : public Menu_NHost {
 public:
  void showAllNotes_frm() override { done.push_back("editor"); }
  void showOptions() override { done.push_back("options"); }
  void showFrmAbout() override { done.push_back("about"); }
  void Koniec_Kalvora() override { done.push_back("exit"); }
  std::vector<std::string> done;
};

class MenuWindowTest : public testing::Test {
 protected:
  MenuWindowTest() { menu.open(); }
  void send(UINT message, WPARAM wParam, LPARAM at = 0) {
    SendMessageW(window.window(), message, wParam, at);
  }
  void click(int x, int y) {
    send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    send(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
  }
  /// A pixel of the menu as it is on the screen.
  COLORREF pixel(int x, int y) const {
    UpdateWindow(window.window());
    const HDC context = GetDC(window.window());
    const COLORREF color = GetPixel(context, x, y);
    ReleaseDC(window.window(), context);
    return color;
  }

  Actions actions;
  FakeReporter reports;
  EventGuard guard{reports};
  EventDelivery deliver{guard};
  MenuWindow window{nullptr, deliver, menu};
  Menu_N menu{window, actions};
};

TEST_F(MenuWindowTest, opensAtThePointer) {
  const Point pointer = window.pointer();
  const Rect place = window.place();
  EXPECT_TRUE(pointer.x == place.x || pointer.x == place.right());
  EXPECT_TRUE(pointer.y == place.y || pointer.y == place.bottom());
  EXPECT_TRUE(IsWindowVisible(window.window()));
}

TEST_F(MenuWindowTest, eachItemIsClickedWhereItStands) {
  for (const int y : {20, 40, 60, 80}) {
    menu.open();
    click(60, y);
    EXPECT_EQ(window.window(), nullptr);
  }
  EXPECT_THAT(actions.done, ElementsAre("editor", "options", "about", "exit"));
}

TEST_F(MenuWindowTest, aClickOnTheBarOrTheBorderDoesNothing) {
  click(10, 40);
  click(60, 5);
  click(60, 100);
  EXPECT_TRUE(actions.done.empty());
  EXPECT_NE(window.window(), nullptr);
}

TEST_F(MenuWindowTest, aReleaseWhosePressWasNotOnThatItemDoesNothing) {
  send(WM_LBUTTONUP, 0, MAKELPARAM(60, 20));
  send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 40));
  // The menu hears of a release beside it too.
  EXPECT_EQ(GetCapture(), window.window());
  send(WM_LBUTTONUP, 0, MAKELPARAM(60, 60));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_TRUE(actions.done.empty());
  EXPECT_NE(window.window(), nullptr);
}

TEST_F(MenuWindowTest, theKeysWork) {
  send(WM_KEYDOWN, VK_DOWN);
  send(WM_KEYDOWN, VK_DOWN);
  send(WM_KEYDOWN, VK_RETURN);
  EXPECT_THAT(actions.done, ElementsAre("options"));
  menu.open();
  send(WM_KEYDOWN, VK_ESCAPE);
  EXPECT_EQ(window.window(), nullptr);
  EXPECT_EQ(actions.done.size(), 1U);
}

TEST_F(MenuWindowTest, theItemsBeginWhereTheyAlwaysDid) {
  const std::vector<int> tops = {12, 32, 52, 72};  // 180, 480, 780 and 1080 twips
  for (const int top : tops) {
    menu.open();
    click(60, top - 1);
    EXPECT_NE(window.window(), nullptr);
    click(60, top);
    EXPECT_EQ(window.window(), nullptr);
  }
  EXPECT_THAT(actions.done, ElementsAre("editor", "options", "about", "exit"));
}

TEST_F(MenuWindowTest, theItemUnderTheMouseAloneIsDarkBlue) {
  for (const int pointedAt : {20, 40, 60, 80, 20}) {
    send(WM_MOUSEMOVE, 0, MAKELPARAM(60, pointedAt));
    for (const int y : {20, 40, 60, 80}) {
      EXPECT_EQ(pixel(window.size().width - 6, y), y == pointedAt ? RGB(0, 0, 128) : RGB(0, 0, 0));
    }
  }
}

TEST_F(MenuWindowTest, theCaptionsAreWhiteAndBegin44PixelsFromTheLeft) {
  int leftmost = window.size().width;
  bool white = false;
  for (int y = 12; y < 31; ++y) {
    for (int x = window.size().width - 6; x > 40; --x) {
      if (pixel(x, y) != RGB(0, 0, 0)) leftmost = x;
      white = white || pixel(x, y) == RGB(255, 255, 255);
    }
  }
  EXPECT_GE(leftmost, 44);
  EXPECT_LE(leftmost, 46);
  EXPECT_TRUE(white);
}

TEST_F(MenuWindowTest, closesByItselfWhenThePointerHasLeft) {
  const Point before = window.pointer();
  const Rect place = window.place();
  SetCursorPos(place.right() + 1, place.bottom() + 1);
  const ULONGLONG start = GetTickCount64();
  while (window.window() != nullptr && GetTickCount64() - start < 5000) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    Sleep(5);
  }
  EXPECT_EQ(window.window(), nullptr);
  EXPECT_TRUE(actions.done.empty());
  SetCursorPos(before.x, before.y);
}

TEST_F(MenuWindowTest, theArrowUpAndTheSpaceBarWorkToo) {
  send(WM_KEYDOWN, VK_UP);
  send(WM_KEYDOWN, VK_UP);
  send(WM_KEYDOWN, VK_SPACE);
  EXPECT_THAT(actions.done, ElementsAre("about"));
}

TEST_F(MenuWindowTest, altAndF4CloseItWithoutAnyAction) {
  send(WM_CLOSE, 0);
  EXPECT_EQ(window.window(), nullptr);
  menu.open();
  EXPECT_NE(window.window(), nullptr);
  EXPECT_TRUE(actions.done.empty());
}

TEST_F(MenuWindowTest, openingAndClosingLeavesNoHandle) {
  menu.unload();
  const HeldHandles before;
  for (int i = 0; i < 50; ++i) {
    menu.open();
    UpdateWindow(window.window());
    menu.unload();
  }
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
