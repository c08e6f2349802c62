// The main window and the note editor over one note: what is typed in one does not undo what is
// typed in the other, nor a new name, nor a deletion.

#include "TwoWindowsFixture.h"

namespace kalvora {
namespace {

class KeepTypingInBoth : public TwoWindows {
 protected:
  void SetUp() override {
    note("Yoga.tx2", "|||||||||breath");
    start();
    openEditorOn(L"Gym");
  }
  std::wstring onPage(const EditorControl& control) const { return editorView.text(control); }
  std::vector<std::string> gymsAndSports() const {
    std::vector<std::string> names = noteNames();
    std::erase_if(names, [](const std::string& name) {
      return !name.starts_with("Gym") && !name.starts_with("Sport");
    });
    return names;
  }
};

TEST_F(KeepTypingInBoth, thePageThatIsSavedLastKeepsWhatTheMainWindowSaved) {
  editorView.setTicked(tickOf(0), true);
  typeText(L"Mat and towel");
  turn();
  leavePage();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|1|1|0|0|0|1|0|Mat and towel");
  EXPECT_EQ(onPage(textBox()), L"Mat and towel") << "what was saved is on the page";
}

TEST_F(KeepTypingInBoth, theMainWindowThatIsSavedLastKeepsWhatThePageSaved) {
  typeTime(L"8:15");
  editorView.setTicked(tickOf(0), true);
  editorView.setText(textBox(), L"Shoes");
  leavePage();
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "8|15|1|1|0|0|0|1|0|Shoes");
  click(ButtonId::Buttons_main_04);
  EXPECT_EQ(text(FieldId::Text2), L"Shoes");
}

TEST_F(KeepTypingInBoth, ofWhatIsTypedInBothTheLastOneStaysAndTheOtherIsASafetyCopy) {
  typeText(L"in the window");
  editorView.setText(textBox(), L"on the page");
  leavePage();
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|in the window");
  EXPECT_EQ(std::ranges::count(safetyCopies(), "07|5|0|1|0|0|0|1|0|on the page"), 1);
}

TEST_F(KeepTypingInBoth, aTimeIsOneThing) {
  typeTime(L"7:45");
  editorView.setText({ControlArray::CzasW, 0}, L"9");
  leavePage();
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|45|0|1|0|0|0|1|0|Mat");
}

TEST_F(KeepTypingInBoth, whatIsNotTypedOverIsReadAnewInTheOtherWindow) {
  typeText(L"Mat and towel");
  form().saveMainWindow();
  EXPECT_EQ(onPage(textBox()), L"Mat and towel");
  editorView.setText(textBox(), L"Shoes");
  leavePage();
  EXPECT_EQ(text(FieldId::Text2), L"Shoes");
  EXPECT_EQ(draftCount(), 0U);
}

TEST_F(KeepTypingInBoth, saveInTheEditorKeepsWhatTheMainWindowSavedToo) {
  editorView.setTicked(tickOf(0), true);
  typeText(L"Mat and towel");
  form().saveMainWindow();
  editor.cmdSave(NoteKind::Weekly);
  EXPECT_EQ(contentOf("Gym.tx2"), "7|5|1|1|0|0|0|1|0|Mat and towel");
  EXPECT_EQ(onPage(textBox()), L"Mat and towel");
}

TEST_F(KeepTypingInBoth, saveInTheEditorWritesOverNoOtherNoteAndNothingThatIsEmpty) {
  editorView.setText(nameBox(), L"Yoga");
  EXPECT_THROW(editor.cmdSave(NoteKind::Weekly), Failure);
  EXPECT_EQ(contentOf("Yoga.tx2"), "|||||||||breath");
  editorView.setText(nameBox(), L"Gym");
  editor.cmdNew(NoteKind::Weekly);
  const auto before = noteNames();
  editor.cmdSave(NoteKind::Weekly);
  EXPECT_EQ(noteNames(), before);
  EXPECT_EQ(editorView.notice, L"There is nothing to save yet: give it a name or words.");
}

TEST_F(KeepTypingInBoth, aPageWithoutWordsIsNotSavedByLeavingEither) {
  const auto before = noteNames();
  for (const NoteKind kind : {NoteKind::Weekly, NoteKind::Daily}) {
    editor.tbsOptions_Click(kind);
    editor.cmdNew(kind);
    editorView.setText({kind == NoteKind::Daily ? ControlArray::CzasD : ControlArray::CzasW, 0},
                       L"9");
    editor.cmdNew(kind);
  }
  EXPECT_EQ(noteNames(), before);
  EXPECT_EQ(draftCount(), 2U) << "the hour is not lost";
}

TEST_F(KeepTypingInBoth, aNewNameInTheMainWindowIsNotUndoneByThePage) {
  editorView.setText(textBox(), L"on the page");
  typeTitle(L"Sport");
  form().saveMainWindow();
  EXPECT_EQ(onPage(nameBox()), L"Sport");
  leavePage();
  EXPECT_EQ(gymsAndSports(), std::vector<std::string>{"Sport.tx2"});
  EXPECT_EQ(contentOf("Sport.tx2"), "07|5|0|1|0|0|0|1|0|on the page");
  EXPECT_EQ(onPage(nameBox()), L"Sport");
}

TEST_F(KeepTypingInBoth, aNewNameOnThePageIsNotUndoneByTheMainWindow) {
  typeText(L"in the window");
  editorView.setText(nameBox(), L"Sport");
  leavePage();
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  EXPECT_EQ(text(FieldId::Text2), L"in the window");
  turn();
  EXPECT_EQ(gymsAndSports(), std::vector<std::string>{"Sport.tx2"});
  EXPECT_EQ(contentOf("Sport.tx2"), "07|5|0|1|0|0|0|1|0|in the window");
}

TEST_F(KeepTypingInBoth, ofTwoNewNamesTheLastOneStays) {
  typeTitle(L"Sport one");
  editorView.setText(nameBox(), L"Sport two");
  leavePage();
  turn();
  EXPECT_EQ(gymsAndSports(), std::vector<std::string>{"Sport one.tx2"});
  EXPECT_EQ(onPage(nameBox()), L"Sport one");
}

TEST_F(KeepTypingInBoth, aNoteThatIsRenamedCanBeDeletedInTheOtherWindow) {
  editorView.setText(nameBox(), L"Sport");
  leavePage();
  click(ButtonId::Buttons_main_03);
  EXPECT_TRUE(gymsAndSports().empty());
}

TEST_F(KeepTypingInBoth, aDeletionOnThePageIsNotUndoneByTheMainWindow) {
  typeText(L"Mat and towel");
  editor.cmdDel(NoteKind::Weekly);
  form().saveTyped();
  turn();
  EXPECT_TRUE(gymsAndSports().empty());
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(KeepTypingInBoth, aDeletionInTheMainWindowIsNotUndoneByThePage) {
  for (const ButtonId bin : {ButtonId::Buttons_main_03, ButtonId::Buttons_Delete}) {
    note("Gym.tx2", kGym);
    form().showFirstNote();
    turn();
    ASSERT_EQ(text(FieldId::Text1), L"Gym");
    openEditorOn(L"Gym");
    editorView.setText(textBox(), L"on the page");
    click(bin);
    form().saveTyped();
    editor.cmdOK();
    EXPECT_TRUE(gymsAndSports().empty());
  }
  EXPECT_GE(draftCount(), 1U);
}

TEST_F(KeepTypingInBoth, whatIsTypedAfterADeletionInTheOtherWindowIsANewNote) {
  editor.cmdDel(NoteKind::Weekly);
  typeText(L"Mat and towel");
  turn();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
}

TEST_F(KeepTypingInBoth, theNameThatIsClickedIsReadUnderTheNewOneThatTheMainWindowGivesIt) {
  pick(L"Yoga");
  typeTitle(L"Sport");
  typeText(L"Mat and towel");
  pick(L"Gym");
  EXPECT_EQ(onPage(nameBox()), L"Sport");
  EXPECT_EQ(onPage(textBox()), L"Mat and towel");
  EXPECT_EQ(editorView.selection(list()), 0);
  EXPECT_EQ(gymsAndSports(), std::vector<std::string>{"Sport.tx2"});
}

TEST_F(KeepTypingInBoth, aTimeThatIsSavedByLeavingAPageRings) {
  editorView.setText({ControlArray::CzasW, 0}, L"6");
  editorView.setText({ControlArray::CzasW, 1}, L"45");
  for (int day = 0; day < 7; ++day) editorView.setTicked(tickOf(day), true);
  leavePage();
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(6, 45);
  settle();
  expectReminder(L"Gym", L"Mat");
}

class KeepTypingInBothAside : public KeepTypingInBoth {
 protected:
  KeepTypingInBothAside() { store.values[L"Comfort/Ring_while_out"] = L"True"; }
  void typeUnderAReminder() {
    typeText(L"Mat and towel");
    minuteCheckAt(9, 40);
    settle();
    expectReminder(L"Zoo", L"one behind");
  }
};

TEST_F(KeepTypingInBothAside, aNewNameFollowsWhatIsUnderAReminder) {
  typeUnderAReminder();
  editorView.setText(nameBox(), L"Sport");
  editorView.setTicked(tickOf(0), true);
  leavePage();
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(text(FieldId::Text1), L"Sport");
  EXPECT_EQ(text(FieldId::Text2), L"Mat and towel");
  turn();
  EXPECT_EQ(gymsAndSports(), std::vector<std::string>{"Sport.tx2"});
  EXPECT_EQ(contentOf("Sport.tx2"), "07|5|1|1|0|0|0|1|0|Mat and towel");
}

TEST_F(KeepTypingInBothAside, aDeletionGivesUpWhatIsUnderAReminder) {
  typeUnderAReminder();
  editor.cmdDel(NoteKind::Weekly);
  click(ButtonId::Buttons_Close);
  EXPECT_NE(text(FieldId::Text2), L"Mat and towel");
  form().Koniec_Kalvora();
  EXPECT_TRUE(gymsAndSports().empty());
  EXPECT_EQ(draftCount(), 1U);
}

}  // namespace
}  // namespace kalvora
