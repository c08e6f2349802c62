#include "win32/toolkit/ControlText.h"

#include <gtest/gtest.h>

#include "TestWindow.h"

namespace kalvora {
namespace {

TEST(ControlText, isReadWhole) {
  TestWindow window;
  const HWND edit = window.addEdit(ES_MULTILINE);
  SendMessageW(edit, EM_SETLIMITTEXT, 0, 0);
  EXPECT_EQ(textOf(edit), L"");
  // Lines, because a control under Wine breaks one of this length for a minute and a half.
  std::wstring text;
  for (int line = 0; line < 1000; ++line) text += std::wstring(70, L'\x03A9') + L"\r\n";
  SetWindowTextW(edit, text.c_str());
  EXPECT_EQ(textOf(edit), text);
}

TEST(ControlText, ofNoControlIsEmpty) {
  EXPECT_EQ(textOf(nullptr), L"");
}

}  // namespace
}  // namespace kalvora
