// What a window shows of a note that the other one renames, writes, deletes and brings back.

#include "TwoWindowsFixture.h"

namespace kalvora {
namespace {

class KeepTypingFollowing : public TwoWindows {
 protected:
  void SetUp() override {
    start();
    openEditorOn(L"Gym");
  }
  std::wstring onPage(const EditorControl& control) const { return editorView.text(control); }
  /// The user restores the only note that was deleted.
  void restore() {
    editorView.onChoose = [](const auto& offered) {
      const auto note = std::ranges::find_if(offered, [](const auto& c) { return !c.isDraft; });
      return std::optional(static_cast<std::size_t>(note - offered.begin()));
    };
    editor.cmdRestore();
  }
  void expectGyms(const std::vector<std::string>& expected) const {
    std::vector<std::string> gyms = noteNames();
    std::erase_if(gyms, [](const std::string& name) { return !name.starts_with("Gym"); });
    EXPECT_EQ(gyms, expected);
  }
  static constexpr EditorControl hourBox() { return {ControlArray::CzasW, 0}; }
};

TEST_F(KeepTypingFollowing, theMainWindowShowsANewTextUnderANewName) {
  editorView.setText(nameBox(), L"Sport");
  editorView.setText(textBox(), L"Shoes");
  leavePage();
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  EXPECT_EQ(text(FieldId::Text2), L"Shoes");
  typeText(text(FieldId::Text2) + L" and socks");
  turn();
  EXPECT_EQ(contentOf("Sport.tx2"), "07|5|0|1|0|0|0|1|0|Shoes and socks");
}

TEST_F(KeepTypingFollowing, thePageShowsANewTextUnderANewName) {
  typeTitle(L"Sport");
  typeText(L"Shoes");
  form().saveMainWindow();
  EXPECT_EQ(onPage(nameBox()), L"Sport");
  EXPECT_EQ(onPage(textBox()), L"Shoes");
  EXPECT_EQ(editorView.at(list()).items, std::vector<std::wstring>{L"Sport"});
}

TEST_F(KeepTypingFollowing, theNewNameScrollsAndItsPlaceIsShown) {
  note("Aerobics.tx2", kGym);
  editorView.setText(nameBox(), L"Z");
  typeText(L"Mat and towel");
  leavePage();
  EXPECT_TRUE(rowSays(RowId::lit_xof, L"3 of 4"));
  tick(TimerId::Poczekaj);
  tick(TimerId::scrool);
  EXPECT_TRUE(titleStripReads(L" Z"));
}

TEST_F(KeepTypingFollowing, whatIsNotTypedOverOnThePageIsShownAnew) {
  editorView.setTicked(tickOf(0), true);
  editor.keepTyped();
  typeText(L"Shoes");
  typeTime(L"8:15");
  form().saveMainWindow();
  EXPECT_EQ(onPage(textBox()), L"Shoes");
  EXPECT_EQ(onPage(hourBox()), L"8");
  EXPECT_TRUE(editorView.ticked(tickOf(0)));
  editorView.setText(textBox(), onPage(textBox()) + L" and socks");
  leavePage();
  EXPECT_EQ(contentOf("Gym.tx2"), "8|15|1|1|0|0|0|1|0|Shoes and socks");
  EXPECT_EQ(draftCount(), 0U);
}

TEST_F(KeepTypingFollowing, whatIsNotTypedOverInTheMainWindowIsShownAnew) {
  typeTime(L"8:15");
  form().keepTyped();
  editorView.setText(textBox(), L"Shoes");
  leavePage();
  EXPECT_EQ(text(FieldId::Text2), L"Shoes");
  EXPECT_EQ(text(FieldId::Text3), L"8:15");
  typeText(text(FieldId::Text2) + L" and socks");
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "8|15|0|1|0|0|0|1|0|Shoes and socks");
  EXPECT_EQ(draftCount(), 0U);
}

TEST_F(KeepTypingFollowing, whatIsTypedOverStaysAsItIs) {
  typeTitle(L"Sport");
  typeText(L"in the window");
  view.setSelection(FieldId::Text2, {3, 6});
  editorView.setText(hourBox(), L"9");
  leavePage();
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  EXPECT_EQ(text(FieldId::Text2), L"in the window");
  EXPECT_EQ(view.selection(FieldId::Text2), (TextSelection{3, 6}));
  EXPECT_EQ(text(FieldId::Text3), L"9:5");
  turn();
  EXPECT_EQ(contentOf("Sport.tx2"), "9|5|0|1|0|0|0|1|0|in the window");
}

TEST_F(KeepTypingFollowing, aTimeThatIsNoneStaysToBeMended) {
  typeTime(L"8:15:20");
  editorView.setText(hourBox(), L"9");
  leavePage();
  EXPECT_EQ(text(FieldId::Text3), L"8:15:20");
  typeTime(L"8:15");
  editorView.setText(hourBox(), L"99999");
  turn();
  EXPECT_EQ(onPage(hourBox()), L"99999");
}

TEST_F(KeepTypingFollowing, aNoteThatIsDeletedAndSavedAgainIsTheSameInTheMainWindow) {
  editor.cmdDel(NoteKind::Weekly);
  editor.cmdSave(NoteKind::Weekly);
  typeText(L"Mat and towel");
  turn();
  expectGyms({"Gym.tx2"});
  EXPECT_EQ(contentOf("Gym.tx2"), "7|5|0|1|0|0|0|1|0|Mat and towel");
}

TEST_F(KeepTypingFollowing, soItIsWhereItIsTypedOverMeanwhile) {
  typeText(L"Mat");
  editor.cmdDel(NoteKind::Weekly);
  typeText(L"Mat and towel");
  restore();
  turn();
  expectGyms({"Gym.tx2"});
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
}

TEST_F(KeepTypingFollowing, aNoteThatIsBroughtBackIsOnItsPageAgain) {
  for (const bool isTyped : {false, true}) {
    click(ButtonId::Buttons_main_03);
    expectGyms({});
    if (isTyped) editorView.setText(textBox(), L"on the page");
    restore();
    EXPECT_EQ(editorView.selection(list()), 0) << "its list marks it";
    editorView.setText(textBox(), L"on the page");
    leavePage();
    expectGyms({"Gym.tx2"});
    EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|on the page");
    note("Gym.tx2", kGym);
    form().showFirstNote();
    turn();
    pick(L"Gym");
  }
  EXPECT_TRUE(editorView.questions.empty());
}

TEST_F(KeepTypingFollowing, aNewPageIsNoNoteThatComesBack) {
  click(ButtonId::Buttons_main_03);
  editor.cmdNew(NoteKind::Weekly);
  restore();
  EXPECT_EQ(onPage(nameBox()), L"New");
  EXPECT_EQ(onPage(textBox()), L"");
}

TEST_F(KeepTypingFollowing, thePageSaysThatItsWordsAreADraftWhereItsNoteIsDeleted) {
  editorView.notice.clear();
  click(ButtonId::Buttons_main_03);
  EXPECT_EQ(editorView.notice, L"");
  restore();
  form().showFirstNote();
  turn();
  editorView.setText(textBox(), L"on the page");
  click(ButtonId::Buttons_main_03);
  EXPECT_EQ(editorView.notice, L"\x201CGym\x201D was deleted. Restore\x2026 has what you typed.");
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(KeepTypingFollowing, aNewNoteOfTheMainWindowIsInTheList) {
  editor.tbsOptions_Click(NoteKind::Fast);
  const EditorControl fastNotes = controlOf(ControlArray::File_list_box, NoteKind::Fast);
  editorView.select(fastNotes, 1);
  click(ButtonId::Buttons_main_01);
  typeText(L"Milk");
  turn();
  EXPECT_EQ(editorView.at(fastNotes).items,
            (std::vector<std::wstring>{L"Before", L"Milk", L"Zoo"}));
  EXPECT_EQ(editorView.selection(fastNotes), 2) << "Zoo, as the user chose it";
}

TEST_F(KeepTypingFollowing, withoutTheWishNeitherWindowDoes) {
  store.values[L"Comfort/Keep_typing"] = L"False";
  Form1 other(ports());
  other.Form_Load();
  other.Nastepny_Load_Formy();
  ASSERT_EQ(text(FieldId::Text1), L"Before");
  note("Before.txt", "||of somebody else");
  other.noteWritten(L"Before.txt");
  EXPECT_EQ(text(FieldId::Text2), L"one before");
  other.noteRenamed(L"Before.txt", L"Sport.txt");
  EXPECT_EQ(text(FieldId::Text1), L"Before");
  typeText(L"one more");
  other.noteDeleted(L"Before.txt");
  EXPECT_EQ(draftCount(), 0U);
  other.keepTyped();
  EXPECT_EQ(draftCount(), 1U) << "it is typed still";
}

class KeepTypingFollowingAside : public KeepTypingFollowing {
 protected:
  KeepTypingFollowingAside() { store.values[L"Comfort/Ring_while_out"] = L"True"; }
};

TEST_F(KeepTypingFollowingAside, aNoteThatComesBackUnderAReminderIsTheSameAfterIt) {
  editor.cmdDel(NoteKind::Weekly);
  typeText(L"Mat and towel");
  minuteCheckAt(9, 40);
  settle();
  expectReminder(L"Zoo", L"one behind");
  restore();
  click(ButtonId::Buttons_Close);
  ASSERT_EQ(text(FieldId::Text2), L"Mat and towel");
  turn();
  expectGyms({"Gym.tx2"});
}

}  // namespace
}  // namespace kalvora
