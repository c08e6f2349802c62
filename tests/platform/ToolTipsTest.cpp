#include "win32/toolkit/ToolTips.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "TestWindow.h"

namespace kalvora {
namespace {

class ToolTipsTest : public testing::Test {
 protected:
  ~ToolTipsTest() override { tips_.clear(); }

  void show(std::vector<ToolTip> tips) { tips_.show(window_.handle(), std::move(tips)); }

  /// What the control itself says that it shows.
  std::vector<ToolTip> shown() {
    std::vector<ToolTip> result;
    const LRESULT count = SendMessageW(tips_.control(), TTM_GETTOOLCOUNT, 0, 0);
    for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
      wchar_t text[80] = {};
      TTTOOLINFOW tool{};
      tool.cbSize = TTTOOLINFOW_V2_SIZE;
      tool.lpszText = text;
      EXPECT_TRUE(
          SendMessageW(tips_.control(), TTM_ENUMTOOLSW, i, reinterpret_cast<LPARAM>(&tool)));
      EXPECT_EQ(tool.hwnd, window_.handle());
      const RECT& rect = tool.rect;
      result.push_back(
          {{rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top}, text});
    }
    return result;
  }

  TestWindow window_;
  ToolTips tips_;
};

const std::vector<ToolTip> kTwo = {{{5, 6, 20, 10}, L"New"}, {{30, 6, 25, 12}, L"Roll down/up"}};

TEST_F(ToolTipsTest, theControlHasTheTextsAtTheirRectangles) {
  show(kTwo);
  EXPECT_EQ(shown(), kTwo);
}

TEST_F(ToolTipsTest, otherTipsTakeThePlaceOfTheOldOnes) {
  show(kTwo);
  const std::vector<ToolTip> one = {{{50, 60, 7, 8}, L"Minimize"}};
  show(one);
  EXPECT_EQ(shown(), one);
  show({});
  EXPECT_TRUE(shown().empty());
  show(kTwo);
  EXPECT_EQ(shown(), kTwo);
}

TEST_F(ToolTipsTest, theSameTipsAreNotPutUpAnew) {
  show(kTwo);
  const HWND control = tips_.control();
  // A tool that is deleted behind its back stays so, since nothing is new.
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = window_.handle();
  SendMessageW(control, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  show(kTwo);
  EXPECT_EQ(tips_.control(), control);
  EXPECT_EQ(shown(), std::vector<ToolTip>{kTwo[1]});
}

TEST_F(ToolTipsTest, anAmpersandIsShownAsItIs) {
  show({{{0, 0, 9, 9}, L"Save & go"}});
  EXPECT_NE(GetWindowLongPtrW(tips_.control(), GWL_STYLE) & TTS_NOPREFIX, 0);
  EXPECT_EQ(shown()[0].text, L"Save & go");
}

TEST_F(ToolTipsTest, aControlHasATipOfItsOwnAndGivesItUp) {
  const HWND field = window_.addEdit(WS_TABSTOP);
  show({{{5, 6, 20, 10}, L"New"}, {{}, L"Time", field}});
  TTTOOLINFOW tool{};
  wchar_t text[80] = {};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = window_.handle();
  tool.uFlags = TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(field);
  tool.lpszText = text;
  SendMessageW(tips_.control(), TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
  EXPECT_STREQ(text, L"Time");
  show({{{5, 6, 20, 10}, L"New"}});
  EXPECT_EQ(SendMessageW(tips_.control(), TTM_GETTOOLCOUNT, 0, 0), 1);
}

TEST_F(ToolTipsTest, theWindowStillWorksAfterTheTipsAreGone) {
  show(kTwo);
  const HWND control = tips_.control();
  tips_.clear();
  EXPECT_FALSE(IsWindow(control));
  window_.messages.clear();
  SendMessageW(window_.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(7, 8));
  EXPECT_TRUE(window_.got(WM_MOUSEMOVE));
}

}  // namespace
}  // namespace kalvora
