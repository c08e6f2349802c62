// Notes for one date in the main window, which are unknown files to who has no such notes.

#include "Form1Fixture.h"

namespace kalvora {
namespace {

class OnceNotesShown : public Form1Test {
 protected:
  OnceNotesShown() { note("Dentist.tx5", "2026|11|22|19|30|Upstairs"); }
  void choose() { store.values[L"Comfort/Once_notes"] = L"True"; }
};

TEST_F(OnceNotesShown, haveTheirTextAndTheirTime) {
  choose();
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text1), L"Dentist");
  EXPECT_EQ(text(FieldId::Text2), L"Upstairs");
  EXPECT_EQ(text(FieldId::Text3), L"7:30");
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
}

TEST_F(OnceNotesShown, becomeFastNotesWhereTheyAreSavedAsAllKindsDo) {
  choose();
  form().Form_Load();
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("Dentist.txt"), "19|30|Upstairs");
  EXPECT_EQ(contentOf("Dentist.tx5"), std::nullopt);
}

TEST_F(OnceNotesShown, ofADateThatThereIsNotHaveTheirTextToo) {
  choose();
  note("Dentist.tx5", "2026|2|31|19|30|Upstairs");
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text2), L"Upstairs");
  EXPECT_EQ(view.errors.size(), 1U) << "it does not ring";
}

TEST_F(OnceNotesShown, areAsAnyUnknownFileWithoutTheTick) {
  form().Form_Load();
  EXPECT_EQ(text(FieldId::Text1), L"Dentist");
  EXPECT_EQ(text(FieldId::Text2), L"");
  EXPECT_EQ(text(FieldId::Text3), L"");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("Dentist.tx5"), "2026|11|22|19|30|Upstairs") << "it is no note to replace";
  EXPECT_TRUE(view.errors.empty());
  EXPECT_TRUE(form().noteKinds().size() == 5U);
}

}  // namespace
}  // namespace kalvora
