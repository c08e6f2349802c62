#include "win32/main/ShellTrayIcon.h"

#include <gtest/gtest.h>

#include <vector>

#include "fakes/FakeReporter.h"
#include "platform/HeldHandles.h"

namespace kalvora {
namespace {

class TrayIcons : public testing::Test {
 protected:
  static HWND pichook() { return FindWindowW(L"KalvoraTray", nullptr); }

  /// Whether the task bar has the icon: only then it can be changed.
  static bool present() { return Shell_NotifyIconA(NIM_MODIFY, &record()) != FALSE; }
  static void takeAway() { Shell_NotifyIconA(NIM_DELETE, &record()); }

  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  std::vector<int> messages_;
  EventDelivery deliver_{guard_};
  ShellTrayIcon icon_{deliver_, [this](int message) { messages_.push_back(message); }};

 private:
  static NOTIFYICONDATAA& record() {
    static NOTIFYICONDATAA data;
    data = {};
    data.cbSize = NOTIFYICONDATAA_V1_SIZE;
    data.hWnd = pichook();
    data.uID = 1;
    data.uFlags = NIF_TIP;
    return data;
  }
};

TEST_F(TrayIcons, areThereFromAddToRemove) {
  EXPECT_FALSE(present());
  icon_.add();
  EXPECT_TRUE(present());
  icon_.remove();
  EXPECT_FALSE(present());
}

TEST_F(TrayIcons, comeBackWhenTheTaskBarRestarts) {
  icon_.add();
  takeAway();
  ASSERT_FALSE(present());
  SendMessageW(pichook(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  EXPECT_TRUE(present());
}

TEST_F(TrayIcons, doNotComeBackOnceRemoved) {
  icon_.add();
  icon_.remove();
  SendMessageW(pichook(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  EXPECT_FALSE(present());
}

TEST_F(TrayIcons, areTriedAgainUntilTheTaskBarTakesThem) {
  icon_.add();
  // One that it has already, it does not take.
  icon_.add();
  takeAway();
  constexpr DWORD kLongEnough = 20000;  // milliseconds
  while (!present() &&
         MsgWaitForMultipleObjects(0, nullptr, FALSE, kLongEnough, QS_ALLINPUT) == WAIT_OBJECT_0) {
    for (MSG message{}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
      DispatchMessageW(&message);
    }
  }
  EXPECT_TRUE(present());
}

TEST_F(TrayIcons, passTheMouseMessageOnByItsNumber) {
  SendMessageW(pichook(), WM_MOUSEMOVE, 1, WM_LBUTTONDBLCLK);
  SendMessageW(pichook(), WM_MOUSEMOVE, 1, WM_RBUTTONDOWN);
  EXPECT_EQ(messages_, (std::vector<int>{515, 516}));
}

TEST_F(TrayIcons, keepTheirPictureWhereAFileIsNoIcon) {
  const HeldHandles before;
  for (int i = 0; i < 20; ++i) icon_.setPicture(L"there is no such file.ico");
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
