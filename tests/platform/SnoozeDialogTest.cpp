// The dialog that asks for the moment at which a reminder comes back.

#include "win32/main/SnoozeDialog.h"

#include <gtest/gtest.h>

#include <thread>

#include "fakes/FakeReporter.h"
#include "platform/TestWindow.h"
#include "win32/main/SnoozeIds.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {
namespace {

/// Waits for a visible dialog with this title.
HWND dialogCalled(const wchar_t* title, HWND otherThan = nullptr) {
  for (int i = 0; i < 400; ++i, Sleep(25)) {
    HWND found = nullptr;
    while ((found = FindWindowExW(nullptr, found, L"#32770", title)) != nullptr) {
      if (found != otherThan && IsWindowVisible(found)) return found;
    }
  }
  return nullptr;
}

class SnoozeDialogTest : public testing::Test {
 protected:
  static constexpr const wchar_t* kTitle = L"Remind Me Later";
  static constexpr LocalMinute kProposed{
      std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(19) +
      std::chrono::minutes(5)};

  /// Opens the dialog, and does this in it from another thread.
  template <typename Act>
  std::optional<LocalMinute> answerOf(Act act, HourFormat format = HourFormat::Hours24) {
    std::thread user([&] {
      const HWND dialog = dialogCalled(kTitle);
      ASSERT_NE(dialog, nullptr);
      act(dialog);
    });
    const MomentQuestion question{kProposed, format, [this](LocalMinute moment) {
                                    asked_.push_back(moment);
                                    return refusals_-- > 0 ? std::wstring_view(L"Too early.")
                                                           : std::wstring_view();
                                  }};
    ModelessDialogs dialogs;
    const auto answer = SnoozeDialog(window_.handle(), dialogs, deliver_, question).ask();
    user.join();
    return answer;
  }
  static void press(HWND dialog, WPARAM button) { PostMessageW(dialog, WM_COMMAND, button, 0); }

  TestWindow window_;
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  EventDelivery deliver_{guard_};
  std::vector<LocalMinute> asked_;
  int refusals_ = 0;
};

TEST_F(SnoozeDialogTest, givesTheMomentThatIsProposed) {
  const auto answer = answerOf([](HWND dialog) { press(dialog, IDOK); });
  EXPECT_EQ(answer, kProposed);
  EXPECT_EQ(asked_, std::vector<LocalMinute>{kProposed});
  EXPECT_TRUE(IsWindowEnabled(window_.handle()));
  EXPECT_TRUE(reporter_.messages.empty());
}

TEST_F(SnoozeDialogTest, showsHoursAsTheUserHasThem) {
  for (const HourFormat format : {HourFormat::Hours24, HourFormat::Hours12}) {
    std::wstring time;
    answerOf(
        [&](HWND dialog) {
          time = textOf(GetDlgItem(dialog, IDC_SNOOZE_TIME));
          press(dialog, IDCANCEL);
        },
        format);
    EXPECT_EQ(time, format == HourFormat::Hours24 ? L"19:05" : L"7:05 PM");
  }
}

TEST_F(SnoozeDialogTest, givesNothingWhereItIsLeft) {
  EXPECT_EQ(answerOf([](HWND dialog) { press(dialog, IDCANCEL); }), std::nullopt);
  EXPECT_EQ(answerOf([](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); }), std::nullopt);
  EXPECT_EQ(asked_, std::vector<LocalMinute>{});
}

TEST_F(SnoozeDialogTest, staysOpenWhereAMomentIsRefused) {
  refusals_ = 1;
  std::wstring said;
  bool stayed = false;
  const auto answer = answerOf([&](HWND dialog) {
    press(dialog, IDOK);
    const HWND message = dialogCalled(kTitle, dialog);
    ASSERT_NE(message, nullptr);
    for (HWND one = nullptr; (one = FindWindowExW(message, one, L"Static", nullptr)) != nullptr;) {
      said += textOf(one);
    }
    PostMessageW(message, WM_COMMAND, IDOK, 0);
    for (int i = 0; i < 400 && !IsWindowEnabled(dialog); ++i) Sleep(25);
    stayed = IsWindowVisible(dialog) != FALSE;
    press(dialog, IDOK);
  });
  EXPECT_EQ(said, L"Too early.");
  EXPECT_TRUE(stayed);
  EXPECT_EQ(answer, kProposed);
  EXPECT_EQ(asked_.size(), 2U);
}

TEST_F(SnoozeDialogTest, isDoneByTheKeyboard) {
  HWND focus = nullptr;
  const auto answer = answerOf([&](HWND dialog) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &info);
    focus = info.hwndFocus;
    PostMessageW(GetDlgItem(dialog, IDC_SNOOZE_DATE), WM_KEYDOWN, VK_RETURN, 1);
  });
  EXPECT_NE(focus, nullptr);
  EXPECT_EQ(answer, kProposed);
}

}  // namespace
}  // namespace kalvora
