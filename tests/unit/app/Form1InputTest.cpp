#include "unit/app/Form1Fixture.h"

namespace kalvora {
namespace {

class Form1InputTest : public Form1Test {
 protected:
  void type(FieldId field, const std::wstring& text, std::size_t caret) {
    view.setFieldText(field, text);
    view.setFieldCaret(field, caret);
  }
};

TEST_F(Form1InputTest, aPastedLineFeedBecomesALineEnd) {
  form().Form_Load();
  type(FieldId::Text2, L"one\ntwo", 4);
  form().Text2_Change();
  EXPECT_EQ(text(FieldId::Text2), L"one\r\ntwo");
  EXPECT_EQ(view.fieldCaret(FieldId::Text2), 5U);
}

TEST_F(Form1InputTest, aTextThatNeedsNothingIsLeftAlone) {
  form().Form_Load();
  type(FieldId::Text2, L"one\r\ntwo", 99);
  form().Text2_Change();
  EXPECT_EQ(text(FieldId::Text2), L"one\r\ntwo");
  EXPECT_EQ(view.fieldCaret(FieldId::Text2), 99U);  // not set again, which would scroll
}

TEST_F(Form1InputTest, aButtonWorksWithoutTheMouse) {
  note("a.txt", "||A");
  note("b.txt", "||B");
  form().Form_Load();
  form().pressButton(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"b");
}

TEST_F(Form1InputTest, aButtonThatIsNotToBeSeenDoesNothing) {
  note("a.txt", "||A");
  note("b.txt", "||B");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  settle();
  form().pressButton(ButtonId::Buttons_Down);
  settle();
  ASSERT_FALSE(form().window().buttonVisible(ButtonId::Buttons_main_05));
  form().pressButton(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"a");
}

}  // namespace
}  // namespace kalvora
