#include "win32/main/FieldKeys.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "TestWindow.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {
namespace {

/// A window with a title, a text of several lines and a time, whose messages go through the same
/// steps as in the program.
class FieldKeysTest : public testing::Test {
 protected:
  FieldKeysTest() {
    title_ = window_.addEdit(WS_TABSTOP | ES_AUTOHSCROLL, 0);
    text_ = window_.addEdit(WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, 30);
    time_ = window_.addEdit(WS_TABSTOP | ES_AUTOHSCROLL, 60);
    other_ = window_.addEdit(ES_AUTOHSCROLL, 90);
    SetWindowTextW(title_, L"Title");
    SetWindowTextW(text_, L"one\r\ntwo");
    SetWindowTextW(time_, L"7:30");
  }
  ~FieldKeysTest() override {
    std::array<BYTE, 256> none{};
    SetKeyboardState(none.data());
  }

  void hold(std::initializer_list<int> keys) {
    std::array<BYTE, 256> state{};
    for (const int key : keys) state[static_cast<std::size_t>(key)] = 0x80;
    SetKeyboardState(state.data());
  }

  void pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (handleFieldKey(window_.handle(), message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }

  /// Whether the key was done with.
  bool handles(HWND target, UINT message, WPARAM key) {
    return handleFieldKey(window_.handle(), {target, message, key, 0, 0, {0, 0}});
  }

  void press(WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    pump();
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    pump();
  }

  static std::pair<DWORD, DWORD> selectionOf(HWND field) {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    return {start, end};
  }

  TestWindow window_;
  HWND title_ = nullptr;
  HWND text_ = nullptr;
  HWND time_ = nullptr;
  HWND other_ = nullptr;
};

TEST_F(FieldKeysTest, escDoesNothingInAnyField) {
  for (const HWND field : {title_, text_, time_}) {
    SetFocus(field);
    const std::wstring before = textOf(field);
    press(VK_ESCAPE);
    EXPECT_EQ(GetFocus(), field);
    EXPECT_EQ(textOf(field), before);
  }
  EXPECT_FALSE(window_.got(WM_CLOSE));
  EXPECT_FALSE(window_.got(WM_DESTROY));
}

TEST_F(FieldKeysTest, theDialogModeOfAFieldOfSeveralLinesIsWhyItIsNotUsed) {
  SetFocus(text_);
  MSG escape{text_, WM_KEYDOWN, VK_ESCAPE, 1, 0, {0, 0}};
  IsDialogMessageW(window_.handle(), &escape);
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  EXPECT_TRUE(window_.got(WM_CLOSE)) << "the platform does not close windows on Esc any more";
}

TEST_F(FieldKeysTest, whatEscWritesReachesNoField) {
  EXPECT_TRUE(handles(title_, WM_CHAR, VK_ESCAPE));
  EXPECT_FALSE(handles(title_, WM_CHAR, L'a'));
}

TEST_F(FieldKeysTest, tabGoesRoundTheFields) {
  SetFocus(title_);
  for (const HWND expected : {text_, time_, title_}) {
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), expected);
  }
  EXPECT_EQ(textOf(text_), L"one\r\ntwo");
}

TEST_F(FieldKeysTest, shiftTabGoesRoundTheOtherWay) {
  SetFocus(title_);
  hold({VK_SHIFT});
  for (const HWND expected : {time_, text_, title_}) {
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), expected);
  }
}

TEST_F(FieldKeysTest, fromTheWindowItselfTabComesToTheFields) {
  SetFocus(window_.handle());
  press(VK_TAB);
  EXPECT_EQ(GetFocus(), title_);
  SetFocus(window_.handle());
  hold({VK_SHIFT});
  press(VK_TAB);
  EXPECT_EQ(GetFocus(), time_);
}

TEST_F(FieldKeysTest, hiddenAndDisabledFieldsAreLeftOut) {
  SetFocus(title_);
  ShowWindow(text_, SW_HIDE);
  press(VK_TAB);
  EXPECT_EQ(GetFocus(), time_);
  EnableWindow(title_, FALSE);
  ShowWindow(text_, SW_SHOW);
  press(VK_TAB);
  EXPECT_EQ(GetFocus(), text_);
}

TEST_F(FieldKeysTest, withoutAnyFieldTabDoesNothing) {
  for (const HWND field : {title_, text_, time_}) ShowWindow(field, SW_HIDE);
  SetFocus(window_.handle());
  press(VK_TAB);
  EXPECT_EQ(GetFocus(), window_.handle());
}

TEST_F(FieldKeysTest, tabSelectsAFieldOfOneLineAndKeepsTheCaretOfTheText) {
  SetFocus(text_);
  SendMessageW(text_, EM_SETSEL, 2, 2);
  press(VK_TAB);
  EXPECT_EQ(selectionOf(time_), std::pair(DWORD{0}, DWORD{4}));
  hold({VK_SHIFT});
  press(VK_TAB);
  EXPECT_EQ(selectionOf(text_), std::pair(DWORD{2}, DWORD{2}));
}

TEST_F(FieldKeysTest, ctrlTabIsLeftAlone) {
  hold({VK_CONTROL});
  EXPECT_FALSE(handles(title_, WM_KEYDOWN, VK_TAB));
}

TEST_F(FieldKeysTest, enterGoesOnInAFieldOfOneLine) {
  SetFocus(title_);
  press(VK_RETURN);
  EXPECT_EQ(GetFocus(), text_);
  SetFocus(time_);
  press(VK_RETURN);
  EXPECT_EQ(GetFocus(), title_);
  EXPECT_EQ(textOf(time_), L"7:30");
}

TEST_F(FieldKeysTest, enterBreaksTheLineInTheText) {
  SetFocus(text_);
  SendMessageW(text_, EM_SETSEL, 3, 3);
  press(VK_RETURN);
  EXPECT_EQ(GetFocus(), text_);
  EXPECT_EQ(textOf(text_), L"one\r\n\r\ntwo");
}

TEST_F(FieldKeysTest, ctrlASelectsAllAlsoInTheText) {
  hold({VK_CONTROL});
  for (const HWND field : {title_, text_}) {
    SetFocus(field);
    press('A');
    EXPECT_EQ(selectionOf(field), std::pair(DWORD{0}, static_cast<DWORD>(textOf(field).size())));
  }
}

TEST_F(FieldKeysTest, altGrAIsALetter) {
  hold({VK_CONTROL, VK_MENU});
  EXPECT_FALSE(handles(title_, WM_KEYDOWN, 'A'));
}

TEST_F(FieldKeysTest, otherWindowsKeepTheirKeys) {
  TestWindow another;
  const HWND field = another.addEdit(WS_TABSTOP);
  EXPECT_FALSE(handles(field, WM_KEYDOWN, VK_TAB));
  EXPECT_FALSE(handles(field, WM_KEYDOWN, VK_ESCAPE));
  EXPECT_FALSE(handles(nullptr, WM_KEYDOWN, VK_ESCAPE));
}

TEST_F(FieldKeysTest, aHeldAltF4CountsOnce) {
  constexpr LPARAM kWasDown = LPARAM{1} << 30U;
  for (const HWND target : {window_.handle(), title_}) {
    EXPECT_FALSE(handleFieldKey(window_.handle(), {target, WM_SYSKEYDOWN, VK_F4, 1, 0, {0, 0}}));
    EXPECT_TRUE(
        handleFieldKey(window_.handle(), {target, WM_SYSKEYDOWN, VK_F4, kWasDown | 1, 0, {0, 0}}));
    EXPECT_FALSE(
        handleFieldKey(window_.handle(), {target, WM_SYSKEYDOWN, VK_F10, kWasDown | 1, 0, {0, 0}}));
  }
}

}  // namespace
}  // namespace kalvora
