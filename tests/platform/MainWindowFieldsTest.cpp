#include "win32/MainWindowFields.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace kalvora
