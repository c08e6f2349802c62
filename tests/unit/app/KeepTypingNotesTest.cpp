// What is saved for who wants notes saved when they are left: new notes, notes of other kinds, by
// Save, and under a reminder.

#include "KeepTypingFixture.h"
#include "fakes/FakeOptionsView.h"
#include "options/ComfortTable.h"

namespace kalvora {
namespace {

class KeepTypingNotes : public KeepTypingFixture {
 protected:
  void SetUp() override { start(); }
  void startNew() {
    click(ButtonId::Buttons_main_01);
    typeTime(L"");
    ASSERT_EQ(text(FieldId::Text1), L"Untiled");
  }
  void turn() { click(ButtonId::Buttons_main_05); }
  /// Applies the options with that wish, or without it, and with another clock.
  void applyOptions(bool keeps) {
    FakeOptionsView options;
    form().optionsHost().Options_to_form(options);
    for (std::size_t item = 0; item < comfortTicks().size(); ++item) {
      const bool isIt = comfortTicks()[item].member == &Comfort::Keep_typing;
      if (isIt) options.setChecked({CheckBox::Comfort, static_cast<int>(item)}, keeps);
    }
    options.setChecked({CheckBox::AmPmCheck, 0}, keeps);
    form().optionsHost().Save_options_KV(options);
  }
  void save() { click(ButtonId::Buttons_main_02); }
};

const std::vector<std::string> kAsAtFirst = {"Before.txt", "Gym.tx2", "Zoo.txt"};

TEST_F(KeepTypingNotes, aNewNoteIsCalledByItsFirstWords) {
  startNew();
  typeText(L"\r\n  Buy: milk/bread!\r\nand tea");
  turn();
  EXPECT_EQ(contentOf("Buy milkbread.txt"), "||\r\n  Buy: milk/bread!\r\nand tea");
  EXPECT_EQ(text(FieldId::Text1), L"Gym") << "the one behind it";
}

TEST_F(KeepTypingNotes, aLongFirstLineGivesItsFirstWholeWords) {
  startNew();
  typeText(L"One two three four five six seven eight nine ten");
  turn();
  EXPECT_TRUE(contentOf("One two three four five six seven eight.txt"));
  startNew();
  typeText(std::wstring(60, L'x'));
  turn();
  EXPECT_TRUE(contentOf(std::string(40, 'x') + ".txt"));
}

TEST_F(KeepTypingNotes, aNameThatIsMadeIsAFreeOneAndNoDevice) {
  startNew();
  typeText(L"zoo");
  turn();
  startNew();
  typeText(L"Before");
  turn();
  EXPECT_EQ(contentOf("Before (2).txt"), "||Before");
  startNew();
  typeText(L"com1\r\nthe port");
  turn();
  EXPECT_EQ(contentOf("the port.txt"), "||com1\r\nthe port");
  startNew();
  typeText(L"!!!");
  turn();
  EXPECT_EQ(contentOf("Untiled.txt"), "||!!!");
  EXPECT_EQ(contentOf("Before.txt"), "||one before");
}

TEST_F(KeepTypingNotes, aNewNoteThatTheUserNamedHasThatName) {
  startNew();
  typeTitle(L"Shopping");
  turn();
  EXPECT_EQ(contentOf("Shopping.txt"), "||");
}

TEST_F(KeepTypingNotes, anEmptyNewNoteIsNoNote) {
  startNew();
  turn();
  startNew();
  typeText(L" \r\n ");
  turn();
  startNew();
  EXPECT_THROW(save(), Failure);
  form().Koniec_Kalvora();
  EXPECT_EQ(noteNames(), kAsAtFirst);
}

TEST_F(KeepTypingNotes, saveKeepsTheKindAndTheNoteOnShow) {
  typeTitle(L"Zumba");
  typeText(L"Shoes");
  save();
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Zoo.txt", "Zumba.tx2"}));
  EXPECT_EQ(contentOf("Zumba.tx2"), "07|5|0|1|0|0|0|1|0|Shoes");
  EXPECT_EQ(text(FieldId::Text1), L"Zumba");
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"3 of 3"));
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text1), L"Zoo");
}

TEST_F(KeepTypingNotes, saveWritesOverNoOtherNoteAndSaysSo) {
  note("Yoga.tx2", "|||||||||breath");
  typeTitle(L"Yoga");
  guard.run([this] { save(); });
  const std::vector<std::wstring> kTold = {L"There is already a note of this name: Yoga"};
  EXPECT_EQ(reporter.messages, kTold);
  EXPECT_EQ(contentOf("Yoga.tx2"), "|||||||||breath");
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  EXPECT_EQ(text(FieldId::Text1), L"Yoga");
}

TEST_F(KeepTypingNotes, aNameInOtherLettersIsItsOwn) {
  typeTitle(L"GYM");
  turn();
  EXPECT_TRUE(view.questions.empty());
  EXPECT_EQ(contentOf("GYM.tx2"), kGym);
}

TEST_F(KeepTypingNotes, aNoteOfDaysTakesNoTimeOfDay) {
  note("Rent.tx3", "20|6|2|pay");
  typeText(L"Mat");
  click(ButtonId::Buttons_main_02);
  turn();
  ASSERT_EQ(text(FieldId::Text1), L"Rent");
  typeText(L"pay it");
  typeTime(L"8:00");
  view.answer = Answer::Cancel;
  turn();
  ASSERT_EQ(view.questions.size(), 1U);
  EXPECT_TRUE(view.questions[0].text.starts_with(L"A note of this kind has no time of day: 8:00"));
  EXPECT_EQ(text(FieldId::Text1), L"Rent");
  typeTime(L"");
  turn();
  EXPECT_EQ(contentOf("Rent.tx3"), "20|6|2|pay it");
}

TEST_F(KeepTypingNotes, aDamagedTimeThatWasNotTouchedStays) {
  note("Odd.tx1", "half past|4|x");
  note("Short.tx1", "9");
  click(ButtonId::Buttons_main_02);
  turn();
  ASSERT_EQ(text(FieldId::Text1), L"Odd");
  typeText(L"y");
  turn();
  EXPECT_EQ(contentOf("Odd.tx1"), "half past|4|y");
  ASSERT_EQ(text(FieldId::Text1), L"Short");
  typeText(L"z");
  turn();
  EXPECT_EQ(contentOf("Short.tx1"), "9||z");
}

TEST_F(KeepTypingNotes, whatIsNoNoteBecomesANewOne) {
  folder.write("notes/Hello.doc", "something else");
  click(ButtonId::Buttons_main_02);
  turn();
  ASSERT_EQ(text(FieldId::Text1), L"Hello");
  typeText(L"words");
  turn();
  EXPECT_EQ(contentOf("Hello.doc"), "something else");
  EXPECT_EQ(contentOf("Hello.txt"), "||words");
}

TEST_F(KeepTypingNotes, theSentenceInPlaceOfANoteIsNotSaved) {
  note("Large.txt", std::string(40000, 'x'));
  click(ButtonId::Buttons_main_02);
  turn();
  ASSERT_EQ(text(FieldId::Text1), L"Large");
  ASSERT_EQ(text(FieldId::Text2), L"This note is too large to be opened.");
  typeText(L"words");
  turn();
  EXPECT_EQ(contentOf("Large.txt"), std::string(40000, 'x'));
  EXPECT_EQ(view.questions.size(), 1U);
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(KeepTypingNotes, aDeletionSavesNothing) {
  typeText(L"Mat and towel");
  click(ButtonId::Buttons_main_03);
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Zoo.txt"}));
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(KeepTypingNotes, aTimeThatWasTypedRingsAfterwards) {
  click(ButtonId::Buttons_main_04);
  typeTime(L"6:45");
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(6, 45);
  settle();
  expectReminder(L"Before", L"one before");
}

TEST_F(KeepTypingNotes, anAnswerDoesNotCloseWhatCameMeanwhile) {
  typeText(L"Mat \x4E2D");
  view.onAsk = [this] {
    view.onAsk = nullptr;
    form().endWithSession();
  };
  form().Koniec_Kalvora();
  EXPECT_EQ(std::ranges::count(view.calls, "unload"), 1);
}

TEST_F(KeepTypingNotes, theWishAloneTypesNothing) {
  applyOptions(false);
  turn();
  EXPECT_EQ(draftCount(), 0U);
  click(ButtonId::Buttons_main_04);
  applyOptions(true);
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  EXPECT_TRUE(safetyCopies().empty());
  EXPECT_EQ(draftCount(), 0U);
}

TEST_F(KeepTypingNotes, whatWasTypedBeforeTheWishIsSavedByIt) {
  applyOptions(false);
  typeText(L"Mat and towel");
  applyOptions(true);
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
}

TEST_F(KeepTypingNotes, withoutTheWishAllIsAsItWas) {
  applyOptions(false);
  typeText(L"Mat and towel");
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  EXPECT_EQ(draftCount(), 1U);
  click(ButtonId::Buttons_main_04);
  save();
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Gym.txt", "Zoo.txt"}));
  EXPECT_EQ(contentOf("Gym.txt"), "7|5|Mat");
}

class KeepTypingAside : public KeepTypingNotes {
 protected:
  KeepTypingAside() { store.values[L"Comfort/Ring_while_out"] = L"True"; }
  void typeUnderAReminder() {
    typeText(L"Mat and towel");
    minuteCheckAt(9, 40);
    settle();
    expectReminder(L"Zoo", L"one behind");
  }
};

TEST_F(KeepTypingAside, whatAReminderComesOverIsNotLeft) {
  typeUnderAReminder();
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text2), L"Mat and towel");
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
}

TEST_F(KeepTypingAside, theEndOfTheProgramSavesIt) {
  typeUnderAReminder();
  form().Koniec_Kalvora();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
  EXPECT_EQ(draftCount(), 0U);
}

TEST_F(KeepTypingAside, aSessionThatDoesNotEndBringsItBackSaved) {
  typeTitle(L"Sport");
  typeUnderAReminder();
  form().saveTyped();
  EXPECT_EQ(contentOf("Sport.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
  EXPECT_EQ(contentOf("Zoo.txt"), "9|40|one behind");
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  EXPECT_EQ(text(FieldId::Text2), L"Mat and towel");
  typeText(L"Mat");
  turn();
  EXPECT_EQ(contentOf("Sport.tx2"), kGym);
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Sport.tx2", "Zoo.txt"}));
}

TEST_F(KeepTypingAside, aNewNoteUnderAReminderIsSavedOnce) {
  startNew();
  typeUnderAReminder();
  form().saveTyped();
  form().saveTyped();
  EXPECT_EQ(contentOf("Mat and towel.txt"), "||Mat and towel");
  click(ButtonId::Buttons_Close);
  form().Koniec_Kalvora();
  EXPECT_EQ(noteNames().size(), 4U);
}

}  // namespace
}  // namespace kalvora
