#include "win32/main/ShellTrayIcon.h"

#include <gtest/gtest.h>

#include <vector>

#include "fakes/FakeReporter.h"
#include "platform/HeldHandles.h"
#include "platform/TestWindow.h"

namespace kalvora {
namespace {

class TrayIcons : public testing::Test {
 protected:
  static HWND pichook() { return FindWindowW(L"KalvoraTray", nullptr); }

  /// Whether the task bar has the icon: only then it can be changed.
  static bool present() { return Shell_NotifyIconA(NIM_MODIFY, &record()) != FALSE; }
  static void takeAway() { Shell_NotifyIconA(NIM_DELETE, &record()); }
  /// Lives on until the task bar has it; whether that comes.
  static bool comes() {
    constexpr int kLongEnough = 1000;  // times 20 milliseconds
    for (int i = 0; i < kLongEnough && !present(); ++i) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
      for (MSG message{}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        DispatchMessageW(&message);
      }
    }
    return present();
  }
  /// Lives on for longer than an icon takes to be asked for.
  static void liveAWhile() {
    const UINT_PTR end = SetTimer(nullptr, 0, 50 * USER_TIMER_MINIMUM, nullptr);
    for (MSG message{}; GetMessageW(&message, nullptr, 0, 0) > 0;) {
      if (message.message == WM_TIMER && message.wParam == end) break;
      DispatchMessageW(&message);
    }
    KillTimer(nullptr, end);
  }

  TestWindow timers_;
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  std::vector<int> messages_;
  EventDelivery deliver_{guard_};
  ShellTrayIcon icon_{timers_.handle(), deliver_,
                      [this](int message) { messages_.push_back(message); }};

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
  icon_.add(IconComes::OnceIdle);
  EXPECT_TRUE(comes());
  icon_.remove();
  EXPECT_FALSE(present());
}

TEST_F(TrayIcons, comeAtOnceWhereTheyAreAllThatIsSeen) {
  icon_.add(IconComes::AtOnce);
  EXPECT_TRUE(present());
}

TEST_F(TrayIcons, waitUntilThereIsNothingElseToDo) {
  icon_.add(IconComes::OnceIdle);
  EXPECT_FALSE(present());
  PostMessageW(timers_.handle(), WM_MOUSEMOVE, 0, 0);
  MSG first{};
  Sleep(5 * USER_TIMER_MINIMUM);
  ASSERT_TRUE(GetMessageW(&first, timers_.handle(), 0, 0));
  EXPECT_EQ(first.message, static_cast<UINT>(WM_MOUSEMOVE));
  EXPECT_FALSE(present());
  EXPECT_TRUE(comes());
}

TEST_F(TrayIcons, doNotComeWhereTheyWereRemovedMeanwhile) {
  icon_.add(IconComes::OnceIdle);
  icon_.remove();
  liveAWhile();
  EXPECT_FALSE(present());
}

TEST_F(TrayIcons, comeBackWhenTheTaskBarRestarts) {
  icon_.add(IconComes::OnceIdle);
  ASSERT_TRUE(comes());
  takeAway();
  ASSERT_FALSE(present());
  SendMessageW(pichook(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  EXPECT_TRUE(comes());
}

TEST_F(TrayIcons, doNotComeBackOnceRemoved) {
  icon_.add(IconComes::OnceIdle);
  ASSERT_TRUE(comes());
  icon_.remove();
  SendMessageW(pichook(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  liveAWhile();
  EXPECT_FALSE(present());
}

TEST_F(TrayIcons, areTriedAgainUntilTheTaskBarTakesThem) {
  icon_.add(IconComes::OnceIdle);
  ASSERT_TRUE(comes());
  // One that it has already, it does not take.
  icon_.add(IconComes::OnceIdle);
  liveAWhile();
  takeAway();
  ASSERT_FALSE(present());
  EXPECT_TRUE(comes());
}

TEST_F(TrayIcons, passTheMouseMessageOnByItsNumber) {
  icon_.add(IconComes::OnceIdle);
  ASSERT_TRUE(comes());
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
