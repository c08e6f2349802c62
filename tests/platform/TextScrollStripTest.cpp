#include <gtest/gtest.h>

#include <string>

#include "TestWindow.h"
#include "fakes/FakeReporter.h"
#include "skin/WindowPicture.h"
#include "win32/main/MainWindowFields.h"

namespace kalvora {
namespace {

constexpr COLORREF kPaper = RGB(250, 250, 240);

class TextScrollStripTest : public testing::Test {
 protected:
  TextScrollStripTest() {
    fields_.create(window_.handle(), [](HWND, UINT, WPARAM, LPARAM) {});
    FieldLook title;
    title.width = 150;
    title.height = 18;
    fields_.setLook(FieldId::Text1, title);
    FieldLook text = title;
    text.left = 10;
    text.top = 30;
    text.height = 100;
    text.backgroundColor = kPaper;
    fields_.setLook(FieldId::Text2, text);
  }

  void setLines(int count) {
    std::wstring lines;
    for (int i = 0; i < count; ++i) lines += (i == 0 ? L"" : L"\r\n") + std::to_wstring(i);
    fields_.setText(FieldId::Text2, lines);
    paint();
  }
  void paint() const {
    UpdateWindow(text());
    if (strip() != nullptr) UpdateWindow(strip());
  }
  HWND text() const { return fields_.control(FieldId::Text2); }
  HWND strip() const {
    return FindWindowExW(window_.handle(), nullptr, L"KalvoraTextScroll", nullptr);
  }
  bool stripIsSeen() const { return strip() != nullptr && IsWindowVisible(strip()) != FALSE; }
  Rect placeOf(HWND control) const {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, window_.handle(), reinterpret_cast<POINT*>(&place), 2);
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
  }
  int firstLine() const {
    return static_cast<int>(SendMessageW(text(), EM_GETFIRSTVISIBLELINE, 0, 0));
  }
  /// How many pixels of the lower end of the strip are not the paper's.
  int marked() const {
    const HDC context = GetDC(strip());
    int count = 0;
    for (int y = 90; y < 100; ++y) {
      for (int x = 0; x < kTextScrollWidth; ++x) count += GetPixel(context, x, y) != kPaper ? 1 : 0;
    }
    ReleaseDC(strip(), context);
    return count;
  }
  void mouse(UINT message, int y) const { SendMessageW(strip(), message, 0, MAKELPARAM(4, y)); }

  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  MainWindowFields fields_{guard_};
  TestWindow window_;
};

TEST_F(TextScrollStripTest, standsBesideTheTextWithinItsField) {
  setLines(3);
  ASSERT_TRUE(stripIsSeen());
  EXPECT_EQ(placeOf(text()), (Rect{10, 30, 150 - kTextScrollWidth, 100}));
  EXPECT_EQ(placeOf(strip()), (Rect{160 - kTextScrollWidth, 30, kTextScrollWidth, 100}));
}

TEST_F(TextScrollStripTest, isEmptyWhileAllOfTheTextIsSeen) {
  setLines(3);
  EXPECT_EQ(marked(), 0);
}

TEST_F(TextScrollStripTest, goesWithTheText) {
  setLines(50);
  fields_.setVisibility(FieldId::Text2, Visibility::Hidden);
  EXPECT_FALSE(stripIsSeen());
  fields_.setVisibility(FieldId::Text2, Visibility::Shown);
  paint();
  EXPECT_TRUE(stripIsSeen());
}

TEST_F(TextScrollStripTest, marksTextBelowUntilItsEndIsSeen) {
  setLines(50);
  EXPECT_EQ(marked(), 16);
  SendMessageW(text(), EM_LINESCROLL, 0, 50);
  paint();
  EXPECT_EQ(marked(), 0);
}

TEST_F(TextScrollStripTest, followsWhatIsTyped) {
  setLines(6);
  ASSERT_EQ(marked(), 0);
  for (int i = 0; i < 4; ++i) SendMessageW(text(), WM_CHAR, L'\r', 1);
  SendMessageW(text(), EM_LINESCROLL, 0, -50);
  UpdateWindow(strip());
  EXPECT_GT(marked(), 0);
}

TEST_F(TextScrollStripTest, aPressOnTheThumbAloneDrawsNothing) {
  setLines(2000);
  SendMessageW(text(), EM_LINESCROLL, 0, 7);
  paint();
  mouse(WM_LBUTTONDOWN, 5);
  mouse(WM_MOUSEMOVE, 5);
  EXPECT_EQ(firstLine(), 7);
}

TEST_F(TextScrollStripTest, theThumbDrawsTheText) {
  setLines(50);
  mouse(WM_LBUTTONDOWN, 3);
  EXPECT_EQ(GetCapture(), strip());
  mouse(WM_MOUSEMOVE, 60);
  const int drawn = firstLine();
  EXPECT_GT(drawn, 10);
  mouse(WM_MOUSEMOVE, 500);
  EXPECT_GT(firstLine(), drawn);
  mouse(WM_MOUSEMOVE, -500);
  EXPECT_EQ(firstLine(), 0);
  mouse(WM_LBUTTONUP, 3);
  EXPECT_NE(GetCapture(), strip());
  mouse(WM_MOUSEMOVE, 60);
  EXPECT_EQ(firstLine(), 0) << "nobody holds it any more";
}

TEST_F(TextScrollStripTest, besideTheThumbTheTextIsTurned) {
  setLines(50);
  mouse(WM_LBUTTONDOWN, 95);
  const int turned = firstLine();
  EXPECT_GT(turned, 2);
  paint();
  mouse(WM_LBUTTONDOWN, 1);
  EXPECT_LT(firstLine(), turned);
}

TEST_F(TextScrollStripTest, theWheelOverItIsTheWindows) {
  setLines(50);
  window_.messages.clear();
  SendMessageW(strip(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_TRUE(window_.got(WM_MOUSEWHEEL));
}

}  // namespace
}  // namespace kalvora
