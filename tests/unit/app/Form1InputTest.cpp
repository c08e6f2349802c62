#include "unit/app/Form1Fixture.h"

namespace kalvora {
namespace {

class Form1InputTest : public Form1Test {
 protected:
  void type(FieldId field, const std::wstring& text, std::size_t caret) {
    view.setText(field, text);
    view.setCaret(field, caret);
  }
};

TEST_F(Form1InputTest, aPastedLineFeedBecomesALineEnd) {
  form().Form_Load();
  type(FieldId::Text2, L"one\ntwo", 4);
  form().Text2_Change();
  EXPECT_EQ(text(FieldId::Text2), L"one\r\ntwo");
  EXPECT_EQ(view.caret(FieldId::Text2), 5U);
}

TEST_F(Form1InputTest, aTextThatNeedsNothingIsLeftAlone) {
  form().Form_Load();
  type(FieldId::Text2, L"one\r\ntwo", 99);
  form().Text2_Change();
  EXPECT_EQ(text(FieldId::Text2), L"one\r\ntwo");
  EXPECT_EQ(view.caret(FieldId::Text2), 99U);  // not set again, which would scroll
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

TEST_F(Form1InputTest, aPressedButtonLooksPressedOnlyUnderThePointer) {
  form().Form_Load();
  const Point middle = middleOf(ButtonId::Buttons_main_05);
  const auto look = [&] { return form().window().paint({60, 40}).at(middle.x, middle.y); };
  const Pixel normal = look();
  form().Form_MouseDown(MouseButton::Left, middle);
  const Pixel pressed = look();
  EXPECT_NE(pressed, normal);
  form().mouseMove(MouseButton::Left, {1, 1});
  EXPECT_EQ(look(), normal);
  form().mouseMove(MouseButton::Left, middle);
  EXPECT_EQ(look(), pressed);
}

TEST_F(Form1InputTest, aPressWhoseMouseIsTakenAwayDoesNothing) {
  note("a.txt", "||A");
  note("b.txt", "||B");
  form().Form_Load();
  const Point middle = middleOf(ButtonId::Buttons_main_05);
  form().Form_MouseDown(MouseButton::Left, middle);
  form().mouseLost();
  form().mouseUp(MouseButton::Left, middle);
  EXPECT_EQ(text(FieldId::Text1), L"a");
}

TEST_F(Form1InputTest, closingByKeyboardSendsTheWindowBackToTheTray) {
  form().Form_Load();
  form().Nastepny_Load_Formy();
  settle();
  ASSERT_TRUE(view.visible);
  form().closeByKeyboard();
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(Form1InputTest, closingByKeyboardLeavesAHiddenWindowAlone) {
  form().Form_Load();
  ASSERT_FALSE(view.visible);
  form().closeByKeyboard();
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  EXPECT_FALSE(view.visible);
}

TEST_F(Form1InputTest, aRolledUpWindowIsStillAsLargeAsItsSkin) {
  form().Form_Load();
  form().Nastepny_Load_Formy();
  settle();
  form().pressButton(ButtonId::Buttons_Down);
  settle();
  ASSERT_EQ(view.rect.height, 20);
  EXPECT_EQ(form().optionsHost().fullSize(), (Size{60, 40}));
}

}  // namespace
}  // namespace kalvora
