// The main window's mouse, keyboard and end, message by message.

#include <windows.h>
// commctrl.h needs windows.h before it.
#include <commctrl.h>

#include "platform/SteppedMainWindow.h"
#include "platform/TestWindow.h"

namespace kalvora {
namespace {

class MainWindowEvents : public SteppedMainWindow {
 protected:
  ~MainWindowEvents() override { ReleaseCapture(); }

  void send(UINT message, WPARAM held, ButtonId button) const {
    const Point at = middleOf(button);
    SendMessageW(main_, message, held, MAKELPARAM(at.x, at.y));
  }
  HWND field(FieldId id) const { return GetDlgItem(main_, MainWindowFields::controlIdOf(id)); }
};

TEST_F(MainWindowEvents, theMouseStaysUntilTheLastOfItsButtonsIsUp) {
  send(WM_LBUTTONDOWN, MK_LBUTTON, ButtonId::Buttons_main_05);
  send(WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, ButtonId::Buttons_main_05);
  send(WM_RBUTTONUP, MK_LBUTTON, ButtonId::Buttons_main_05);
  EXPECT_EQ(GetCapture(), main_);
  EXPECT_EQ(window_->text(FieldId::Text1), L"a") << "another button's release presses nothing";
  send(WM_LBUTTONUP, 0, ButtonId::Buttons_main_05);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(window_->text(FieldId::Text1), L"b");
}

TEST_F(MainWindowEvents, aSecondButtonThatGoesDownTakesNoPressAway) {
  send(WM_LBUTTONDOWN, MK_LBUTTON, ButtonId::Buttons_main_05);
  SendMessageW(main_, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(main_));
  send(WM_LBUTTONUP, 0, ButtonId::Buttons_main_05);
  EXPECT_EQ(window_->text(FieldId::Text1), L"b");
}

TEST_F(MainWindowEvents, aMouseThatGoesToAnotherWindowEndsThePress) {
  send(WM_LBUTTONDOWN, MK_LBUTTON, ButtonId::Buttons_main_05);
  SendMessageW(main_, WM_CAPTURECHANGED, 0, 0);
  send(WM_LBUTTONUP, 0, ButtonId::Buttons_main_05);
  EXPECT_EQ(window_->text(FieldId::Text1), L"a");
}

TEST_F(MainWindowEvents, theFieldThatWasTypedInHasTheKeyboardAgainWhenTheNoteIsRolledDown) {
  SetFocus(field(FieldId::Text2));
  ASSERT_EQ(GetFocus(), field(FieldId::Text2));
  rollUp();
  EXPECT_EQ(GetFocus(), main_);
  window_->deliver([this] { form_.pressButton(ButtonId::Buttons_Down); });
  settle();
  EXPECT_EQ(GetFocus(), field(FieldId::Text2));
}

LRESULT CALLBACK withoutDragging(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                 UINT_PTR /*id*/, DWORD_PTR drags) {
  if (message != WM_NCLBUTTONDOWN) return DefSubclassProc(window, message, wParam, lParam);
  ++*reinterpret_cast<int*>(drags);
  return 0;
}

TEST_F(MainWindowEvents, aClickThatIsOverAlreadyDragsNothing) {
  int drags = 0;
  SetWindowSubclass(main_, withoutDragging, 1, reinterpret_cast<DWORD_PTR>(&drags));
  ASSERT_GE(GetAsyncKeyState(VK_LBUTTON), 0);
  window_->dragByCaption();
  EXPECT_EQ(drags, 0);
  RemoveWindowSubclass(main_, withoutDragging, 1);
}

TEST_F(MainWindowEvents, anEndOfTheSessionThatIsCalledOffEndsNothing) {
  EXPECT_TRUE(SendMessageW(main_, WM_QUERYENDSESSION, 0, 0));
  SendMessageW(main_, WM_ENDSESSION, FALSE, 0);
  EXPECT_TRUE(tray.present);
  send(WM_LBUTTONDOWN, MK_LBUTTON, ButtonId::Buttons_main_05);
  send(WM_LBUTTONUP, 0, ButtonId::Buttons_main_05);
  EXPECT_EQ(window_->text(FieldId::Text1), L"b") << "it goes on";
  SendMessageW(main_, WM_ENDSESSION, TRUE, 0);
  EXPECT_FALSE(tray.present);
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) {
  }
}

TEST_F(MainWindowEvents, aWindowThatTheUserAsksForTakesTheKeyboardAndAReminderLeavesIt) {
  const TestWindow other;
  SetActiveWindow(other.handle());
  window_->show(Activation::LeaveKeyboard);
  EXPECT_EQ(GetActiveWindow(), other.handle());
  window_->show(Activation::TakeKeyboard);
  EXPECT_EQ(GetActiveWindow(), main_);
}

}  // namespace
}  // namespace kalvora
