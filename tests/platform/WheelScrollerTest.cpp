#include "win32/main/WheelScroller.h"

#include <gtest/gtest.h>

#include <string>

#include "TestWindow.h"
#include "win32/main/MainWindowFields.h"

namespace kalvora {
namespace {

constexpr int kLinesANotch = 3;

class WheelScrollerTest : public testing::Test {
 protected:
  WheelScrollerTest() {
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &linesBefore_, 0);
    setLines(kLinesANotch);
    field_ = window_.addEdit(ES_MULTILINE | ES_AUTOVSCROLL);
    MoveWindow(field_, 0, 0, 100, 60, FALSE);
    std::wstring text;
    for (int i = 0; i < 100; ++i) text += L"line\r\n";
    SetWindowTextW(field_, text.c_str());
  }
  ~WheelScrollerTest() override { setLines(linesBefore_); }

  static void setLines(UINT lines) {
    SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, lines, nullptr, 0);
  }

  bool turn(int delta, WORD keys = 0) {
    return wheel_.turn(field_, MAKEWPARAM(keys, static_cast<WORD>(delta)));
  }

  int firstLine() const {
    return static_cast<int>(SendMessageW(field_, EM_GETFIRSTVISIBLELINE, 0, 0));
  }

  TestWindow window_;
  HWND field_ = nullptr;
  WheelScroller wheel_;

 private:
  UINT linesBefore_ = 0;
};

TEST_F(WheelScrollerTest, aNotchTowardsTheUserGoesDown) {
  EXPECT_TRUE(turn(-WHEEL_DELTA));
  EXPECT_EQ(firstLine(), kLinesANotch);
  turn(-2 * WHEEL_DELTA);
  EXPECT_EQ(firstLine(), 3 * kLinesANotch);
  turn(WHEEL_DELTA);
  EXPECT_EQ(firstLine(), 2 * kLinesANotch);
}

TEST_F(WheelScrollerTest, itStopsAtTheFirstLine) {
  turn(WHEEL_DELTA);
  EXPECT_EQ(firstLine(), 0);
}

TEST_F(WheelScrollerTest, aFineWheelMovesOnceItHasComeToANotch) {
  turn(-WHEEL_DELTA / 2);
  EXPECT_EQ(firstLine(), 0);
  turn(-WHEEL_DELTA / 2);
  EXPECT_EQ(firstLine(), kLinesANotch);
}

TEST_F(WheelScrollerTest, aWheelThatIsSetToPagesMovesByMoreThanLines) {
  setLines(WHEEL_PAGESCROLL);
  turn(-WHEEL_DELTA);
  const int page = firstLine();
  EXPECT_GT(page, 0);
  turn(-WHEEL_DELTA);
  EXPECT_EQ(firstLine(), 2 * page);
  turn(WHEEL_DELTA);
  EXPECT_EQ(firstLine(), page);
}

TEST_F(WheelScrollerTest, withCtrlOrShiftItIsNotForScrolling) {
  EXPECT_FALSE(turn(-WHEEL_DELTA, MK_CONTROL));
  EXPECT_FALSE(turn(-WHEEL_DELTA, MK_SHIFT));
  EXPECT_EQ(firstLine(), 0);
}

}  // namespace
}  // namespace kalvora
