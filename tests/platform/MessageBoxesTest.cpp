#include "win32/toolkit/MessageBoxes.h"

#include <gtest/gtest.h>

#include "platform/NoteEditorWindow.h"
#include "platform/TestWindow.h"

namespace kalvora {
namespace {

class MessageBoxesTest : public NoteEditorWindow {
 protected:
  /// Shows a message, looks at its owner and closes it.
  static HWND ownerOfAMessage() {
    std::atomic<HWND> owner = nullptr;
    std::thread user([&] {
      for (int i = 0; i < 400; ++i, Sleep(25)) {
        const HWND box = FindWindowW(L"#32770", L"A message");
        if (box == nullptr || !IsWindowVisible(box)) continue;
        owner = GetWindow(box, GW_OWNER);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        return;
      }
      ADD_FAILURE() << "there was no message";
    });
    showCriticalMessage(L"A message", L"Something is wrong.");
    user.join();
    return owner;
  }
};

TEST_F(MessageBoxesTest, withoutAWindowAMessageStandsAlone) {
  EXPECT_EQ(windowInUse(), nullptr);
  EXPECT_EQ(ownerOfAMessage(), nullptr);
}

TEST_F(MessageBoxesTest, aMessageBelongsToTheWindowThatTheUserIsIn) {
  open();
  const HWND editor = dialog_.window();
  SetActiveWindow(editor);
  EXPECT_EQ(ownerOfAMessage(), editor);
  // Also of several.
  TestWindow other;
  SetWindowLongPtrW(other.handle(), GWL_EXSTYLE, WS_EX_TOOLWINDOW | WS_EX_CONTROLPARENT);
  SetActiveWindow(other.handle());
  EXPECT_EQ(windowInUse(), other.handle());
  SetActiveWindow(editor);
  EXPECT_EQ(windowInUse(), editor);
}

TEST_F(MessageBoxesTest, whileAnotherProgramIsInUseItIsTheFrontmostWindow) {
  open();
  SetActiveWindow(nullptr);
  EXPECT_EQ(windowInUse(), dialog_.window());
  EXPECT_EQ(ownerOfAMessage(), dialog_.window());
  ShowWindow(dialog_.window(), SW_HIDE);
  EXPECT_EQ(windowInUse(), nullptr);
}

TEST_F(MessageBoxesTest, aWindowThatGoesAwayByItselfHasNoMessages) {
  open();
  // Without controls and title, as the menu, a tip or a list that drops down.
  const TestWindow passing;
  SetActiveWindow(passing.handle());
  EXPECT_EQ(windowInUse(), dialog_.window());
}

std::atomic<MessageBoxReporter*> laterFailures = nullptr;  // until they were reported

/// Reports failures while the message of the first one stands open.
void CALLBACK failAgain(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  for (const wchar_t* failure : {L"One", L"Two", L"Two"}) laterFailures.load()->report(failure);
  laterFailures = nullptr;
}

TEST_F(MessageBoxesTest, theSameFailureIsToldOnceWhileItsMessageStandsOpenOrWaits) {
  MessageBoxReporter reporter;
  laterFailures = &reporter;
  std::vector<std::wstring> told;
  std::atomic<bool> done = false;
  std::thread user([&] {
    for (; !done; Sleep(25)) {
      const HWND box = FindWindowW(L"#32770", L"Error!");
      if (box == nullptr || !IsWindowVisible(box)) continue;
      told.push_back(textOf(GetDlgItem(box, 0xFFFF)));
      while (laterFailures != nullptr) Sleep(25);
      PostMessageW(box, WM_COMMAND, IDOK, 0);
      while (IsWindow(box)) Sleep(25);
    }
  });
  SetTimer(nullptr, 0, 10, failAgain);
  reporter.report(L"One");
  done = true;
  user.join();
  EXPECT_EQ(told, (std::vector<std::wstring>{L"One", L"Two"}));
}

TEST_F(MessageBoxesTest, aQuestionIsAskedThereToo) {
  open();
  SetActiveWindow(dialog_.window());
  Answering answering(L"A question", IDCANCEL);
  EXPECT_FALSE(askOkCancel(L"A question", L"Really ?"));
}

}  // namespace
}  // namespace kalvora
