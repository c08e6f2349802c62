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

TEST_F(MessageBoxesTest, aQuestionIsAskedThereToo) {
  open();
  SetActiveWindow(dialog_.window());
  Answering answering(L"A question", IDCANCEL);
  EXPECT_FALSE(askOkCancel(L"A question", L"Really ?"));
}

}  // namespace
}  // namespace kalvora
