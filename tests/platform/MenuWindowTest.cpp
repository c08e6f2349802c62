#include "win32/MenuWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/EventGuard.h"

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
  MenuWindowTest() {
    window.attach(menu);
    menu.open();
  }
  void send(UINT message, WPARAM wParam, LPARAM at = 0) {
    SendMessageW(window.window(), message, wParam, at);
  }

  Actions actions;
  MenuWindow window{nullptr, [](const std::function<void()>& handler) { handler(); }};
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
    send(WM_LBUTTONUP, 0, MAKELPARAM(60, y));
    EXPECT_EQ(window.window(), nullptr);
  }
  EXPECT_THAT(actions.done, ElementsAre("editor", "options", "about", "exit"));
}

TEST_F(MenuWindowTest, aClickOnTheBarOrTheBorderDoesNothing) {
  send(WM_LBUTTONUP, 0, MAKELPARAM(10, 40));
  send(WM_LBUTTONUP, 0, MAKELPARAM(60, 5));
  send(WM_LBUTTONUP, 0, MAKELPARAM(60, 100));
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

TEST_F(MenuWindowTest, openingAndClosingLeavesNoHandle) {
  menu.unload();
  const int before = liveHandles();
  for (int i = 0; i < 50; ++i) {
    menu.open();
    UpdateWindow(window.window());
    menu.unload();
  }
  EXPECT_EQ(liveHandles(), before);
}

}  // namespace
}  // namespace kalvora
