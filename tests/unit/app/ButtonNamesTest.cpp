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

class NamedButtonsTest : public Form1Test {
 protected:
  NamedButton told(ButtonId id) {
    return namedButtons(form().window())[static_cast<std::size_t>(id)];
  }
};

TEST_F(NamedButtonsTest, beforeThereIsASkinNoneIsVisible) {
  for (const ButtonId id : kAllButtons) EXPECT_FALSE(told(id).visible);
}

TEST_F(NamedButtonsTest, theyStandWhereTheSkinHasThem) {
  form().Form_Load();
  for (const ButtonId id : kEverySkinsButtons) {
    EXPECT_EQ(told(id),
              (NamedButton{id, nameOf(id), {2 + 7 * static_cast<int>(id), 30, 5, 5}, true}));
  }
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
