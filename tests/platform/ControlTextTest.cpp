#include "win32/ControlText.h"

#include <gtest/gtest.h>

#include "TestWindow.h"

namespace kalvora {
namespace {

TEST(ControlText, isReadWhole) {
  TestWindow window;
  const HWND edit = window.addEdit(ES_MULTILINE);
  SendMessageW(edit, EM_SETLIMITTEXT, 0, 0);
  EXPECT_EQ(textOf(edit), L"");
  const std::wstring text = L"one\r\n" + std::wstring(70000, L'\x03A9');
  SetWindowTextW(edit, text.c_str());
  EXPECT_EQ(textOf(edit), text);
}

TEST(ControlText, ofNoControlIsEmpty) {
  EXPECT_EQ(textOf(nullptr), L"");
}

}  // namespace
}  // namespace kalvora
