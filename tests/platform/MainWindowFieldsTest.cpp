#include "win32/main/MainWindowFields.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "TestWindow.h"
#include "fakes/FakeReporter.h"
#include "win32/toolkit/BitmapOf.h"

namespace kalvora {
namespace {

class MainWindowFieldsTest : public testing::Test {
 protected:
  MainWindowFieldsTest() {
    fields_.create(window_.handle(), [this](HWND control, UINT message, WPARAM, LPARAM) {
      mouse.emplace_back(control, message);
    });
  }

  void place(FieldId field, float height) {
    FieldLook look;
    look.width = 150;
    look.height = height;
    look.backgroundColor = 0;
    fields_.setLook(field, look);
  }

  /// The height of the letters that a field writes with.
  LONG letters(FieldId field) const {
    const auto font =
        reinterpret_cast<HFONT>(SendMessageW(fields_.control(field), WM_GETFONT, 0, 0));
    LOGFONTW description{};
    GetObjectW(font, sizeof description, &description);
    return -description.lfHeight;
  }

  std::vector<std::pair<HWND, UINT>> mouse;
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  MainWindowFields fields_{guard_};
  TestWindow window_;
};

TEST_F(MainWindowFieldsTest, theMouseOverAFieldIsHeardOf) {
  const HWND time = fields_.control(FieldId::Text3);
  SendMessageW(time, WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
  EXPECT_EQ(mouse, (std::vector<std::pair<HWND, UINT>>{{time, WM_MOUSEMOVE}}));
}

TEST_F(MainWindowFieldsTest, largeBoxesHaveLargeLettersAndTheNoteFollowsItsTitle) {
  place(FieldId::Text1, 30);
  place(FieldId::Text2, 100);
  place(FieldId::Text3, 18);
  EXPECT_EQ(letters(FieldId::Text1), 20);
  EXPECT_EQ(letters(FieldId::Text2), 20);
  EXPECT_EQ(letters(FieldId::Text3), 13);
}

TEST_F(MainWindowFieldsTest, anotherSkinBringsTheUsualLettersBack) {
  place(FieldId::Text1, 30);
  place(FieldId::Text2, 100);
  place(FieldId::Text1, 18);
  EXPECT_EQ(letters(FieldId::Text1), 13);
  EXPECT_EQ(letters(FieldId::Text2), 13);
}

TEST_F(MainWindowFieldsTest, aBoxThatTheLabelLiesUnderIsSeenFromTheStart) {
  constexpr COLORREF kBox = RGB(200, 40, 10);
  constexpr COLORREF kLabel = RGB(10, 40, 200);
  const UniqueBrush ground(CreateSolidBrush(kLabel));
  const UniqueBrush box(CreateSolidBrush(kBox));
  const HWND label = fields_.control(FieldId::AmPmLabel);
  window_.answer = [&](UINT message, WPARAM, LPARAM control) -> std::optional<LRESULT> {
    if (message != WM_CTLCOLOREDIT && message != WM_CTLCOLORSTATIC) return std::nullopt;
    const bool isLabel = reinterpret_cast<HWND>(control) == label;
    return reinterpret_cast<LRESULT>(isLabel ? ground.get() : box.get());
  };
  FieldLook look;
  look.left = 10;
  look.top = 10;
  look.width = 20;
  look.height = 20;
  look.backgroundColor = 0;
  for (const FieldId field : {FieldId::Text1, FieldId::Text2, FieldId::Text3, FieldId::AmPmLabel}) {
    fields_.setLook(field, look);
  }
  UpdateWindow(window_.handle());
  // The label is painted last, as it is when the half of the day is set.
  RedrawWindow(label, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  const HDC context = GetDC(window_.handle());
  EXPECT_EQ(GetPixel(context, 25, 25), kBox);
  ReleaseDC(window_.handle(), context);
}

TEST_F(MainWindowFieldsTest, aBoxHasTheColoursOfItsSkin) {
  FieldLook look;
  look.textColor = RGB(1, 2, 3);
  look.backgroundColor = RGB(200, 40, 10);
  fields_.setLook(FieldId::Text2, look);
  const UniqueMemoryDc context(CreateCompatibleDC(nullptr));
  LOGBRUSH ground{};
  GetObjectW(fields_.colors(context.get(), FieldId::Text2, {}), sizeof ground, &ground);
  EXPECT_EQ(GetTextColor(context.get()), RGB(1, 2, 3));
  EXPECT_EQ(GetBkColor(context.get()), RGB(200, 40, 10));
  EXPECT_EQ(ground.lbColor, RGB(200, 40, 10));
}

TEST_F(MainWindowFieldsTest, theLabelHasThePictureBeneathItForItsGround) {
  FieldLook look;
  look.left = 30;
  look.top = 20;
  look.width = 8;
  look.height = 8;
  look.textColor = RGB(9, 8, 7);
  fields_.setLook(FieldId::AmPmLabel, look);
  Image picture(200, 150, 0x102030);
  picture.fill(fields_.place(FieldId::AmPmLabel), 0xC0FFEE);
  const UniqueMemoryDc context(CreateCompatibleDC(nullptr));
  const UniqueBitmap bitmap(bitmapOf(Image(8, 8)));
  const auto before = SelectObject(context.get(), bitmap.get());
  const RECT all{0, 0, 8, 8};
  FillRect(context.get(), &all, fields_.colors(context.get(), FieldId::AmPmLabel, picture));
  EXPECT_EQ(GetTextColor(context.get()), RGB(9, 8, 7));
  EXPECT_EQ(GetBkMode(context.get()), TRANSPARENT);
  EXPECT_EQ(GetPixel(context.get(), 0, 0), RGB(0xC0, 0xFF, 0xEE));
  EXPECT_EQ(GetPixel(context.get(), 7, 7), RGB(0xC0, 0xFF, 0xEE));
  SelectObject(context.get(), before);
}

TEST_F(MainWindowFieldsTest, theCaretStandsWhereItWasPutAndAtTheEndOfWhatIsSelected) {
  fields_.setText(FieldId::Text1, L"Milk and bread");
  fields_.setCaret(FieldId::Text1, 4);
  EXPECT_EQ(fields_.caret(FieldId::Text1), 4U);
  SendMessageW(fields_.control(FieldId::Text1), WM_CHAR, L'!', 0);
  EXPECT_EQ(fields_.text(FieldId::Text1), L"Milk! and bread");
  SendMessageW(fields_.control(FieldId::Text1), EM_SETSEL, 2, 7);
  EXPECT_EQ(fields_.caret(FieldId::Text1), 7U);
}

TEST_F(MainWindowFieldsTest, aLockedFieldTakesNoLettersUntilItIsUnlocked) {
  fields_.setText(FieldId::Text2, L"kept");
  fields_.setEditing(FieldId::Text2, Editing::Locked);
  SendMessageW(fields_.control(FieldId::Text2), WM_CHAR, L'x', 0);
  EXPECT_EQ(fields_.text(FieldId::Text2), L"kept");
  fields_.setEditing(FieldId::Text2, Editing::Allowed);
  SendMessageW(fields_.control(FieldId::Text2), WM_CHAR, L'x', 0);
  EXPECT_EQ(fields_.text(FieldId::Text2), L"xkept");
}

TEST_F(MainWindowFieldsTest, aSkinWithTheSameLettersDoesNotLayTheNoteOutAgain) {
  place(FieldId::Text1, 18);
  static int fontsSet;
  fontsSet = 0;
  SetWindowSubclass(
      fields_.control(FieldId::Text2),
      [](HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
        if (message == WM_SETFONT) ++fontsSet;
        return DefSubclassProc(control, message, wParam, lParam);
      },
      99, 0);
  place(FieldId::Text1, 18);
  EXPECT_EQ(fontsSet, 0);
  place(FieldId::Text1, 30);
  EXPECT_EQ(fontsSet, 1);
}

TEST_F(MainWindowFieldsTest, theyLeaveTheWheelToTheirWindow) {
  window_.answer = [](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_MOUSEWHEEL) return 0;
    return std::nullopt;
  };
  for (const FieldId field : kAllFields) {
    window_.messages.clear();
    SendMessageW(GetDlgItem(window_.handle(), MainWindowFields::controlIdOf(field)), WM_MOUSEWHEEL,
                 MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(std::ranges::count(window_.messages, UINT{WM_MOUSEWHEEL}), 1);
  }
}

TEST_F(MainWindowFieldsTest, theyTakeMoreThanANoteCanHold) {
  const std::wstring much(70000, L'x');
  for (const FieldId field : {FieldId::Text1, FieldId::Text2, FieldId::Text3}) {
    const HWND control = GetDlgItem(window_.handle(), MainWindowFields::controlIdOf(field));
    // As pasting does, which stops at the field's limit.
    SendMessageW(control, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(much.c_str()));
    EXPECT_EQ(fields_.text(field).size(), much.size());
  }
}

}  // namespace
}  // namespace kalvora
