#include "win32/main/MainWindowFields.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <optional>

#include "TestWindow.h"

namespace kalvora {
namespace {

class MainWindowFieldsTest : public testing::Test {
 protected:
  MainWindowFieldsTest() { fields_.create(window_.handle()); }

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

  TestWindow window_;
  MainWindowFields fields_;
};

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

}  // namespace
}  // namespace kalvora
