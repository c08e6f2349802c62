#include "app/ButtonNames.h"

#include "fakes/SkinFiles.h"
#include "unit/app/Form1Fixture.h"

namespace kalvora {
namespace {

TEST(ButtonNames, eachButtonIsCalledByWhatItDoes) {
  EXPECT_EQ(nameOf(ButtonId::Buttons_Delete), L"Fast delete");
  EXPECT_EQ(nameOf(ButtonId::Buttons_Down), L"Roll down/up");
  EXPECT_EQ(nameOf(ButtonId::Buttons_Close), L"Minimize");
  EXPECT_EQ(nameOf(ButtonId::Buttons_main_01), L"New");
  EXPECT_EQ(nameOf(ButtonId::Buttons_main_02), L"Save");
  EXPECT_EQ(nameOf(ButtonId::Buttons_main_03), L"Delete");
  EXPECT_EQ(nameOf(ButtonId::Buttons_main_04), L"Previous");
  EXPECT_EQ(nameOf(ButtonId::Buttons_main_05), L"Next");
  EXPECT_EQ(nameOf(ButtonId::Snooze), L"Snooze: remind again later (right-click for when)");
  EXPECT_EQ(nameOf(ButtonId::Done), L"Done: put the reminder away");
}

TEST(ButtonNames, eachFieldIsCalledByWhatItHolds) {
  EXPECT_EQ(nameOf(FieldId::Text1), L"Title");
  EXPECT_EQ(nameOf(FieldId::Text2), L"Text");
  EXPECT_EQ(nameOf(FieldId::Text3), L"Time");
  EXPECT_EQ(nameOf(FieldId::AmPmLabel), L"AM or PM");
}

TEST(ButtonNames, whatTheyDoIsToldTruthfully) {
  EXPECT_EQ(actionOf(ButtonId::Buttons_main_02, {}), L"Save as a Fast note");
  EXPECT_EQ(actionOf(ButtonId::Buttons_main_02, {.Keep_typing = true}), L"Save");
  EXPECT_EQ(actionOf(ButtonId::Buttons_main_03, {}), L"Delete now, without asking");
  EXPECT_EQ(actionOf(ButtonId::Buttons_Delete, {}), L"Delete, and put the window away");
}

TEST(ButtonNames, everyFieldHasATip) {
  EXPECT_EQ(tipOf(FieldId::Text1), L"The note's title, which is its file's name, too");
  EXPECT_EQ(tipOf(FieldId::Text2), L"The note's text");
  EXPECT_EQ(tipOf(FieldId::Text3), L"Time, such as 7:30; empty: no reminder");
  EXPECT_EQ(tipOf(FieldId::AmPmLabel), L"Click, or up and down keys: AM or PM");
}

class NamedButtonsTest : public Form1Test {
 protected:
  NamedButton told(ButtonId id) { return form().namedButtons()[static_cast<std::size_t>(id)]; }
};

TEST_F(NamedButtonsTest, beforeThereIsASkinNoneIsVisible) {
  for (const ButtonId id : kAllButtons) EXPECT_FALSE(told(id).visible);
}

TEST_F(NamedButtonsTest, theyStandWhereTheSkinHasThem) {
  form().Form_Load();
  for (const ButtonId id : kEverySkinsButtons) {
    EXPECT_EQ(told(id).id, id);
    EXPECT_EQ(told(id).name, nameOf(id));
    EXPECT_EQ(told(id).rect, (Rect{2 + 7 * static_cast<int>(id), 30, 5, 5}));
    EXPECT_TRUE(told(id).visible);
  }
}

TEST_F(NamedButtonsTest, theTipsTellTheKeys) {
  form().Form_Load();
  std::vector<std::wstring> tips;
  for (const NamedButton& button : form().namedButtons()) tips.push_back(tipOf(button));
  EXPECT_EQ(tips,
            (std::vector<std::wstring>{
                L"Delete, and put the window away \x00B7 Ctrl+Shift+Del", L"Roll down/up \x00B7 F6",
                L"Minimize \x00B7 Alt+F4", L"New note \x00B7 Ctrl+N",
                L"Save as a Fast note \x00B7 Ctrl+S", L"Delete now, without asking \x00B7 Ctrl+Del",
                L"Previous note \x00B7 Ctrl+PgUp", L"Next note \x00B7 Ctrl+PgDn",
                L"Snooze: remind again later (right-click for when) \x00B7 F7",
                L"Done: put the reminder away \x00B7 F8"}));
}

TEST_F(NamedButtonsTest, theRolledUpWindowShowsThreeOfThem) {
  form().Form_Load();
  form().Nastepny_Load_Formy();
  settle();
  click(ButtonId::Buttons_Down);
  settle();
  ASSERT_TRUE(form().window().fieldsHidden());
  for (const ButtonId id : kAllButtons) {
    EXPECT_EQ(told(id).visible, id <= ButtonId::Buttons_Close) << static_cast<int>(id);
  }
}

}  // namespace
}  // namespace kalvora
