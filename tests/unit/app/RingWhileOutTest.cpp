// Reminders that come into the open window, for a user who wants them there.

#include <gmock/gmock.h>

#include "ReminderFixture.h"
#include "fakes/FakeOptionsView.h"

namespace kalvora {
namespace {

using Heard = std::vector<std::wstring>;

class RingWhileOut : public Form1Reminders {
 protected:
  RingWhileOut() {
    store.values[L"Comfort/Ring_while_out"] = L"True";
    store.values[L"Sys/Fast_delete_msg"] = L"False";
    note("A.txt", "||first of the list");
    note("Gym.txt", "7|30|Run");
    note("Pills.tx1", "7|30|Two of them");
  }

  void SetUp() override {
    form().Form_Load();
    openWindow();
    expectBrowsing(L"A");
  }

  void type(FieldId field, std::wstring_view typed, TextSelection selection) {
    view.setText(field, typed);
    view.setSelection(field, selection);
    form().Text2_Change();
    view.setSelection(field, selection);
  }
  std::size_t draftCount() const {
    std::size_t count = 0;
    const std::filesystem::path backup = folder.path() / "backup";
    if (!std::filesystem::is_directory(backup)) return 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(backup)) {
      if (entry.is_regular_file()) ++count;
    }
    return count;
  }
};

TEST_F(RingWhileOut, aReminderComesIntoTheOpenWindowWithItsSoundAndWhereThatStands) {
  const Rect place = view.place();
  sounds.played.clear();
  minuteCheckAt(7, 30);
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(view.place(), place);
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  EXPECT_EQ(view.lastActivation, Activation::LeaveKeyboard);
  EXPECT_EQ(sounds.played, Heard{L"ring.wav"});
}

TEST_F(RingWhileOut, whatWasTypedComesBackAfterTheLastOneUnsavedAndTheWindowStays) {
  view.setText(FieldId::Text1, L"A new name");
  view.setText(FieldId::Text3, L"9:1");
  type(FieldId::Text2, L"half a sen", {2, 6});
  minuteCheckAt(7, 30);
  click(ButtonId::Buttons_Close);
  expectReminder(L"Pills", L"Two of them");
  click(ButtonId::Buttons_Close);
  settle();
  EXPECT_TRUE(view.visible);
  expectBrowsing(L"A new name");
  EXPECT_EQ(text(FieldId::Text2), L"half a sen");
  EXPECT_EQ(text(FieldId::Text3), L"9:1");
  EXPECT_EQ(view.selection(FieldId::Text2), (TextSelection{2, 6}));
  EXPECT_EQ(contentOf("A.txt"), "||first of the list");
  view.setText(FieldId::Text3, L"9:10");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("A new name.txt"), "9|10|half a sen");
  EXPECT_EQ(contentOf("A.txt"), std::nullopt);
}

TEST_F(RingWhileOut, theWindowGoesAwayAsEverAfterwards) {
  type(FieldId::Text2, L"words", {0, 0});
  minuteCheckAt(7, 30);
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  setTime(7, 40, 10);
  click(ButtonId::Buttons_main_02);
  click(ButtonId::Buttons_Close);
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(RingWhileOut, whatWasTypedIsADraftMeanwhileAndNoneOnceItIsSaved) {
  type(FieldId::Text2, L"half a sentence", {0, 0});
  minuteCheckAt(7, 30);
  EXPECT_EQ(draftCount(), 1U);
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(draftCount(), 1U);
  view.setText(FieldId::Text2, L"half a sentence, and the other");
  form().keepTyped();
  EXPECT_EQ(draftCount(), 1U) << "the same draft goes on";
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("A.txt"), "||half a sentence, and the other");
  form().keepTyped();
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "backup" / "drafts") &&
               !std::filesystem::is_empty(folder.path() / "backup" / "drafts"));
}

TEST_F(RingWhileOut, aNewNoteThatWasBegunComesBack) {
  click(ButtonId::Buttons_main_01);
  type(FieldId::Text2, L"words", {5, 5});
  minuteCheckAt(7, 30);
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"Untiled");
  EXPECT_EQ(text(FieldId::Text2), L"words");
  EXPECT_EQ(contentOf("A.txt"), "||first of the list");
}

TEST_F(RingWhileOut, aNoteInWhichNothingWasTypedIsReadAnew) {
  view.setSelection(FieldId::Text2, {3, 7});
  minuteCheckAt(7, 30);
  note("A.txt", "||changed meanwhile");
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text2), L"changed meanwhile");
  EXPECT_EQ(view.selection(FieldId::Text2), (TextSelection{3, 7}));
}

TEST_F(RingWhileOut, aNoteThatIsGoneMeanwhileGivesWayToTheCurrentOne) {
  minuteCheckAt(7, 30);
  std::filesystem::remove(folder.path() / "notes" / "A.txt");
  click(ButtonId::Buttons_Delete);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"Pills");
  expectFields(Editing::Allowed);
  EXPECT_TRUE(view.visible);
}

TEST_F(RingWhileOut, aDeletionMeanwhileLeavesTheNoteOnShowTheOneThatDeleteDeletes) {
  note("Z.txt", "||the last one");
  for (int i = 0; i < 2; ++i) click(ButtonId::Buttons_main_05);
  EXPECT_EQ(text(FieldId::Text1), L"Pills");
  for (const bool typed : {false, true}) {
    note("Gym.txt", "7|30|Run");
    note("Pills.tx1", "7|30|Two of them");
    form().Update_All_Al();
    if (typed) type(FieldId::Text2, L"words", {0, 0});
    minuteCheckAt(7, 30);
    click(ButtonId::Buttons_Delete);
    click(ButtonId::Buttons_Close);
    EXPECT_EQ(text(FieldId::Text1), L"Pills");
    EXPECT_TRUE(rowSays(RowId::lit_xof, L"2 of 3"));
    click(ButtonId::Buttons_main_03);
    EXPECT_EQ(contentOf("Pills.tx1"), std::nullopt);
    EXPECT_EQ(contentOf("Z.txt"), "||the last one");
    note("Gym.txt", "7|30|Run");
    note("Pills.tx1", "7|30|Two of them");
    form().showFirstNote();
    for (int i = 0; i < 2; ++i) click(ButtonId::Buttons_main_05);
    minuteCheckAt(7, 29);
  }
}

TEST_F(RingWhileOut, whatWasTypedIntoANoteThatWasSavedMeanwhileDoesNotReplaceItUnseen) {
  type(FieldId::Text2, L"old words", {0, 0});
  view.setText(FieldId::Text1, L"B");
  minuteCheckAt(7, 30);
  note("A.txt", "||from elsewhere");
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text2), L"old words");
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("B.txt"), "||old words");
  EXPECT_EQ(contentOf("A.txt"), "||from elsewhere");
}

TEST_F(RingWhileOut, whatWasTypedIntoANoteThatIsGoneMeanwhileIsAWayToKeepIt) {
  type(FieldId::Text2, L"words", {0, 0});
  minuteCheckAt(7, 30);
  std::filesystem::remove(folder.path() / "notes" / "A.txt");
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text2), L"words");
  click(ButtonId::Buttons_main_03);
  EXPECT_EQ(contentOf("Gym.txt"), "7|30|Run") << "no other note is deleted in its place";
  click(ButtonId::Buttons_main_02);
  EXPECT_EQ(contentOf("A.txt"), "||words");
}

TEST_F(RingWhileOut, theTimeComesBackAsTheOptionsShowTimesByThen) {
  note("A.txt", "13|5|first of the list");
  click(ButtonId::Buttons_main_05);
  click(ButtonId::Buttons_main_04);
  type(FieldId::Text2, L"typed", {0, 0});
  minuteCheckAt(7, 30);
  FakeOptionsView options;
  form().optionsHost().Options_to_form(options);
  options.setChecked({CheckBox::AmPmCheck, 0}, true);
  form().optionsHost().Save_options_KV(options);
  click(ButtonId::Buttons_Close);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text3), L"1:5");
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
}

TEST_F(RingWhileOut, theEndKeepsWhatCouldNotBeKeptBefore) {
  const std::filesystem::path backup = folder.path() / "backup";
  std::filesystem::remove_all(backup);
  folder.write("backup", "no folder");
  type(FieldId::Text2, L"half a sentence", {0, 0});
  minuteCheckAt(7, 30);
  EXPECT_EQ(draftCount(), 0U);
  std::filesystem::remove(backup);
  form().Koniec_Kalvora();
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(RingWhileOut, oneThatIsOnShowIsNotPutAwayByTheNext) {
  note("Later.txt", "7|31|x");
  form().Update_All_Al();
  minuteCheckAt(7, 30);
  minuteCheckAt(7, 31);
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(putAwayAll(), (Titles{L"Gym", L"Pills", L"Later"}));
}

TEST_F(RingWhileOut, oneThatCameBySlidingGoesBySliding) {
  click(ButtonId::Buttons_Close);
  settle();
  EXPECT_FALSE(view.visible);
  minuteCheckAt(7, 30);
  EXPECT_TRUE(view.runs(TimerId::Timer1));
  settle();
  click(ButtonId::Buttons_Close);
  settle();
  expectReminder(L"Pills", L"Two of them");
  click(ButtonId::Buttons_Close);
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(RingWhileOut, aWindowOnItsWayOutComesBackWithTheReminder) {
  click(ButtonId::Buttons_Close);
  ASSERT_TRUE(view.runs(TimerId::Timer1));
  minuteCheckAt(7, 30);
  settle();
  expectReminder(L"Gym", L"Run");
}

TEST_F(RingWhileOut, aRolledUpWindowRollsDownForIt) {
  click(ButtonId::Buttons_Down);
  settle();
  const int rolled = view.place().height;
  minuteCheckAt(7, 30);
  settle();
  EXPECT_GT(view.place().height, rolled);
  expectReminder(L"Gym", L"Run");
}

TEST_F(RingWhileOut, withoutTheTickItWaitsUntilTheWindowIsAway) {
  FakeOptionsView options;
  form().optionsHost().Options_to_form(options);
  options.setChecked({CheckBox::Comfort, 0}, false);
  form().optionsHost().Save_options_KV(options);
  minuteCheckAt(7, 30);
  expectBrowsing(L"A");
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(putAwayAll(), (Titles{L"Gym", L"Pills"}));
}

}  // namespace
}  // namespace kalvora
