#include "notes/All_Notes_frm.h"

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;
using Messages = std::vector<FakeAll_Notes_frmView::Message>;
using enum ControlArray;

const FakeAll_Notes_frmView::Message kEmptyValue = {
    L"Empty value",
    L"You didn't enter the time or day to your note,\rwhich means that this note will be without "
    L"an alarm. \r\r Save ?"};

class NoteEditor : public EditorFixture {
 protected:
  void saveDaily(const std::wstring& noteName, const std::wstring& content) {
    fill({NoteKind::Daily, {L"7", L"30"}, content}, noteName);
    editor_.cmdSave(NoteKind::Daily);
  }
};

// Opening.

TEST_F(NoteEditor, opensInTheMiddleOfTheScreenOnTheDailyPage) {
  EXPECT_EQ(view_.centred, 1);
  EXPECT_EQ(view_.page, NoteKind::Daily);
  EXPECT_EQ(editor_.tab(), NoteKind::Daily);
}

TEST_F(NoteEditor, opensWithNothingLoaded) {
  for (const NoteKind kind : kNoteKinds) {
    EXPECT_EQ(oldName(kind), L"Kalvora_old_for_not_deleting_only");
    EXPECT_EQ(view_.selection(list(kind)), -1);
  }
  EXPECT_EQ(view_.selection({MonthY, 0}), 0);
}

TEST_F(NoteEditor, enablesTheSelectorsOfTheHalfOfTheDayWith12HourTimeOnly) {
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(view_.at({AmPmCombo, i}).enabled);
  open(HourFormat::Hours24);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(view_.at({AmPmCombo, i}).enabled);
}

TEST_F(NoteEditor, fillsItsListsWithTheirItems) {
  EXPECT_EQ(view_.at({CzasW, 0}).items.size(), 25U);
  EXPECT_EQ(view_.at({CzasW, 0}).items.back(), L"24");
  EXPECT_EQ(view_.at({CzasF, 1}).items, (Names{L"0", L"5", L"10", L"15", L"20", L"25", L"30", L"35",
                                               L"40", L"45", L"50", L"55"}));
  EXPECT_EQ(view_.at({AmPmCombo, 2}).items, (Names{L"am", L"pm"}));
  EXPECT_EQ(view_.at({ComboM, 0}).items.size(), 31U);
  EXPECT_EQ(view_.at({ComboY, 1}).items.size(), 21U);
  EXPECT_EQ(view_.at({ComboY, 2}).items, (Names{L"1", L"2", L"3", L"4", L"5", L"6", L"7"}));
  EXPECT_EQ(view_.at({MonthY, 0}).items.front(), L"January");
  EXPECT_EQ(view_.at({MonthY, 0}).items.back(), L"December");
}

TEST_F(NoteEditor, opensAgainWithoutWhatWasLoadedBefore) {
  give(L"a.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  editor_.tbsOptions_Click(NoteKind::Fast);
  editor_.Form_Load();
  EXPECT_EQ(oldName(NoteKind::Daily), kKeepFileName);
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(NoteEditor, listsEachKindsNotesWithoutTheirExtension) {
  give(L"Shopping.tx1", "x");
  give(L"B.tx1", "x");
  give(L"Gym.tx2", "x");
  give(L"c.TXT", "x");
  give(L"other.doc", "x");
  give(L"none.tx12", "x");
  EXPECT_EQ(names(NoteKind::Daily), (Names{L"B", L"Shopping"}));
  EXPECT_EQ(names(NoteKind::Weekly), Names{L"Gym"});
  EXPECT_EQ(names(NoteKind::Monthly), Names{});
  EXPECT_EQ(names(NoteKind::Yearly), Names{});
  EXPECT_EQ(names(NoteKind::Fast), Names{L"c"});
}

TEST_F(NoteEditor, refreshesTheKindsThatItIsAskedFor) {
  files_.content[L"a.tx2"] = "x";
  files_.content[L"a.tx3"] = "x";
  files_.content[L"a.tx4"] = "x";
  editor_.Update_Files(NoteKind::Weekly, NoteKind::Monthly);
  EXPECT_EQ(names(NoteKind::Weekly), Names{L"a"});
  EXPECT_EQ(names(NoteKind::Monthly), Names{L"a"});
  EXPECT_EQ(names(NoteKind::Yearly), Names{});
}

// Tabs.

TEST_F(NoteEditor, ctrlTabGoesToTheNextTabAndFromTheLastToTheFirst) {
  for (const NoteKind kind :
       {NoteKind::Weekly, NoteKind::Monthly, NoteKind::Yearly, NoteKind::Fast, NoteKind::Daily}) {
    EXPECT_TRUE(editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone));
    EXPECT_EQ(view_.page, kind);
  }
}

TEST_F(NoteEditor, ctrlTabGoesOnFromTheTabThatWasClicked) {
  editor_.tbsOptions_Click(NoteKind::Fast);
  EXPECT_EQ(view_.page, NoteKind::Fast);
  editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone);
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(NoteEditor, noOtherKeyIsTaken) {
  EXPECT_FALSE(editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::None));
  EXPECT_FALSE(editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::Other));
  EXPECT_FALSE(editor_.Form_KeyDown('A', HeldKeys::CtrlAlone));
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(NoteEditor, theTabsAreNamed) {
  EXPECT_EQ(editorPage(NoteKind::Daily).caption, L"Daily");
  EXPECT_EQ(editorPage(NoteKind::Weekly).caption, L"Weakly");
  EXPECT_EQ(editorPage(NoteKind::Monthly).caption, L"Monthly");
  EXPECT_EQ(editorPage(NoteKind::Yearly).caption, L"Yearly");
  EXPECT_EQ(editorPage(NoteKind::Fast).caption, L"Fast");
}

// Typing.

TEST_F(NoteEditor, aLetterTypedIntoAnEmptyNumberListLeavesItEmpty) {
  for (const EditorControl& control : controlsWithItems()) {
    if (!isNumberList(control)) continue;
    type(control, L"a");
    EXPECT_EQ(text(control), L"");
    type(control, L"12a");
    EXPECT_EQ(text(control), L"12");
  }
}

TEST_F(NoteEditor, aNameLosesWhatItMayNotHold) {
  for (const NoteKind kind : kNoteKinds) {
    type(nameBox(kind), L"my/note?");
    EXPECT_EQ(name(kind), L"mynote");
  }
}

TEST_F(NoteEditor, theCaretStaysAfterWhatWasTyped) {
  view_.setText(nameBox(NoteKind::Daily), L"my/note");
  view_.setCaret(nameBox(NoteKind::Daily), 3);
  editor_.FName_Change(NoteKind::Daily);
  EXPECT_EQ(view_.caret(nameBox(NoteKind::Daily)), 2U);
  view_.setText({CzasD, 1}, L"1x5");
  view_.setCaret({CzasD, 1}, 2);
  editor_.numberList_Change({CzasD, 1});
  EXPECT_EQ(view_.caret({CzasD, 1}), 1U);
}

TEST_F(NoteEditor, aTextThatIsAllAllowedIsNotSetAgain) {
  view_.textsSet = 0;
  type(nameBox(NoteKind::Daily), L"Gym");
  type({CzasD, 0}, L"7");
  type({CzasD, 0}, L"");
  EXPECT_EQ(view_.textsSet, 0);
  EXPECT_EQ(view_.caret(nameBox(NoteKind::Daily)), 3U);
}

// New.

TEST_F(NoteEditor, newEmptiesThePageAndWritesNothing) {
  for (const NoteKind kind : kNoteKinds) {
    FilledPage page{kind, {L"7", L"30", L"3"}, L"text"};
    page.weekdays = "1111111";
    page.month = 7;
    fill(page, L"Gym");
    editor_.cmdNew(kind);
    const FilledPage empty = shown(kind);
    EXPECT_EQ(name(kind), L"New");
    EXPECT_EQ(oldName(kind), kKeepFileName);
    EXPECT_EQ(empty.content, L"");
    for (const std::wstring& number : empty.numbers) EXPECT_EQ(number, L"");
    EXPECT_EQ(empty.weekdays, kind == NoteKind::Weekly ? "0000000" : "");
    EXPECT_EQ(empty.month, 0);
  }
  EXPECT_TRUE(files_.steps.empty());
}

TEST_F(NoteEditor, aNewNoteIsMarkedInNoListAndTheOldOneCanBePickedAgain) {
  give(L"a.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  editor_.cmdNew(NoteKind::Daily);
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), -1);
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x");
}

// Save.

TEST_F(NoteEditor, savingANewNoteDeletesNothingAndListsIt) {
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|x"}}));
  EXPECT_EQ(files_.steps, Names{L"write Gym.tx1"});
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Gym"});
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), 0);
  EXPECT_EQ(oldName(NoteKind::Daily), L"Gym");
}

TEST_F(NoteEditor, savingUnderTheSameNameLeavesNoTail) {
  saveDaily(L"Gym", L"a long text");
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|x"}}));
}

TEST_F(NoteEditor, renamingDeletesTheOldFileAndListsTheNewNameOnly) {
  saveDaily(L"Gym", L"a long text");
  saveDaily(L"Swim", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Swim.tx1", "7|30|x"}}));
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Swim"});
  EXPECT_EQ(oldName(NoteKind::Daily), L"Swim");
  // The new file is whole before the old one goes.
  EXPECT_EQ(files_.steps, (Names{L"write Gym.tx1", L"write Swim.tx1", L"remove Gym.tx1"}));
}

TEST_F(NoteEditor, renamingInOtherLettersOnlyKeepsTheNote) {
  saveDaily(L"Gym", L"a long text");
  saveDaily(L"gYM", L"x");
  EXPECT_EQ(files_.content.size(), 1U);
  EXPECT_EQ(files_.content.at(L"gym.tx1"), "7|30|x");
  EXPECT_EQ(names(NoteKind::Daily), Names{L"gYM"});
  EXPECT_EQ(oldName(NoteKind::Daily), L"gYM");
}

TEST_F(NoteEditor, aNewNoteUnderTheNameOfALongerOneKeepsItsTail) {
  give(L"Gym.tx1", "7|30|a long text");
  editor_.cmdNew(NoteKind::Daily);
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|x long text");
  EXPECT_EQ(files_.content.size(), 1U);
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x long text");
}

TEST_F(NoteEditor, aNoteRenamedToTheNameOfALongerOneKeepsThatOnesTail) {
  give(L"Gym.tx1", "7|30|a long text");
  saveDaily(L"Swim", L"y");
  saveDaily(L"gym", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"gym.tx1", "7|30|x long text"}}));
}

TEST_F(NoteEditor, aNoteUnderTheNameOfAShorterOneLeavesNothingOfIt) {
  give(L"Gym.tx1", "7|30|a");
  editor_.cmdNew(NoteKind::Daily);
  saveDaily(L"Gym", L"longer");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|longer");
}

TEST_F(NoteEditor, aNoteOfAnotherKindWithTheSameNameIsLeftAlone) {
  give(L"Gym.tx2", "7|30|0|0|0|0|0|0|0|weekly");
  saveDaily(L"Gym", L"x");
  saveDaily(L"Swim", L"x");
  EXPECT_EQ(files_.content.at(L"Gym.tx2"), "7|30|0|0|0|0|0|0|0|weekly");
}

TEST_F(NoteEditor, anUnchangedNoteWhoseFileIsGoneIsWrittenAgain) {
  saveDaily(L"Gym", L"x");
  files_.content.clear();
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|x");
}

TEST_F(NoteEditor, aRenamedNoteWhoseOldFileIsGoneIsWritten) {
  saveDaily(L"Gym", L"x");
  files_.content.clear();
  saveDaily(L"Swim", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Swim.tx1", "7|30|x"}}));
}

TEST_F(NoteEditor, aNoteNamedLikeTheKeepFileNameIsNeverDeleted) {
  saveDaily(L"Kalvora_old_for_not_deleting_only", L"x");
  editor_.cmdDel(NoteKind::Daily);
  saveDaily(L"Gym", L"y");
  EXPECT_EQ(files_.content.size(), 2U);
}

TEST_F(NoteEditor, theRefreshMarkIs0AfterTheSameNameAndTheKindAfterAnother) {
  EXPECT_EQ(editor_.state().refreshMark, 555);
  for (const NoteKind kind : kNoteKinds) {
    FilledPage page{kind, {L"7", L"30", L"1"}, L"x"};
    page.weekdays = "0000000";
    editor_.cmdNew(kind);
    fill(page, L"Gym");
    editor_.cmdSave(kind);
    EXPECT_EQ(editor_.state().refreshMark, static_cast<int>(kind));
    editor_.cmdSave(kind);
    EXPECT_EQ(editor_.state().refreshMark, 0);
    fill(page, L"Swim");
    editor_.cmdSave(kind);
    EXPECT_EQ(editor_.state().refreshMark, static_cast<int>(kind));
  }
}

TEST_F(NoteEditor, afterASaveUnderTheSameNameTheDailyListIsRebuiltWhateverTheKind) {
  FilledPage page{NoteKind::Monthly, {L"1", L"1", L"1"}, L"x"};
  fill(page, L"Rent");
  editor_.cmdSave(NoteKind::Monthly);
  files_.content[L"other.tx1"] = "x";
  files_.content[L"other.tx3"] = "x";
  editor_.cmdSave(NoteKind::Monthly);
  EXPECT_EQ(names(NoteKind::Daily), Names{L"other"});
  EXPECT_EQ(names(NoteKind::Monthly), Names{L"Rent"});
}

// The empty-value question.

TEST_F(NoteEditor, asksBeforeItSavesANoteWithoutAnAlarm) {
  fill({NoteKind::Daily, {L"", L"30"}, L"x"}, L"Gym");
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(view_.questions, Messages{kEmptyValue});
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "|30|x");
}

TEST_F(NoteEditor, cancelLeavesThePageAndTheDisk) {
  view_.answer = false;
  fill({NoteKind::Daily, {L"", L"30"}, L"x"}, L"Gym");
  const auto before = view_.controls;
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_TRUE(files_.steps.empty());
  EXPECT_EQ(view_.controls, before);
  EXPECT_EQ(oldName(NoteKind::Daily), kKeepFileName);
  EXPECT_EQ(editor_.state().refreshMark, 555);
}

TEST_F(NoteEditor, asksForEveryEmptyNumberAndForNothingElse) {
  for (const NoteKind kind : kNoteKinds) {
    FilledPage page{kind, {L"1", L"1"}, L""};
    if (!hasClockTime(kind)) page.numbers.push_back(L"1");
    page.weekdays = "0000000";
    page.month = -1;
    fill(page, L"a");
    editor_.cmdSave(kind);
    EXPECT_TRUE(view_.questions.empty());
    for (std::wstring& number : page.numbers) {
      const std::wstring before = number;
      number.clear();
      fill(page, L"a");
      editor_.cmdSave(kind);
      EXPECT_EQ(view_.questions, Messages{kEmptyValue});
      view_.questions.clear();
      number = before;
    }
  }
}

TEST_F(NoteEditor, asksBeforeItReplacesCharactersThatANoteCannotStore) {
  view_.answer = false;
  saveDaily(L"Gym", L"\u65E5");
  EXPECT_EQ(view_.questions.size(), 1U);
  EXPECT_TRUE(files_.steps.empty());
  view_.answer = true;
  saveDaily(L"Gym", L"\u65E5");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|?");
  EXPECT_EQ(text(contentBox(NoteKind::Daily)), L"\u65E5");
}

// Delete.

TEST_F(NoteEditor, deleteRemovesTheFileWithoutAQuestionAndKeepsThePage) {
  saveDaily(L"Gym", L"x");
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_TRUE(files_.content.empty());
  EXPECT_TRUE(view_.questions.empty());
  EXPECT_EQ(names(NoteKind::Daily), Names{});
  EXPECT_EQ(name(NoteKind::Daily), L"Gym");
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x");
  EXPECT_EQ(oldName(NoteKind::Daily), kKeepFileName);
}

TEST_F(NoteEditor, savingAfterDeleteWritesTheNoteAgain) {
  saveDaily(L"Gym", L"x");
  editor_.cmdDel(NoteKind::Daily);
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|x"}}));
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Gym"});
}

TEST_F(NoteEditor, deleteRemovesTheLoadedNoteAndNotTheNameThatIsTyped) {
  saveDaily(L"Gym", L"x");
  give(L"Swim.tx1", "1|1|y");
  type(nameBox(NoteKind::Daily), L"Swim");
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Swim.tx1", "1|1|y"}}));
}

TEST_F(NoteEditor, deleteOfANoteWithoutAFileDeletesNothing) {
  give(L"New.tx1", "1|1|y");
  editor_.cmdNew(NoteKind::Daily);
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_TRUE(files_.steps.empty());
  EXPECT_EQ(files_.content.size(), 1U);
}

TEST_F(NoteEditor, deleteOfAFileThatIsGoneCountsAsDone) {
  saveDaily(L"Gym", L"x");
  files_.content.clear();
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_EQ(oldName(NoteKind::Daily), kKeepFileName);
  EXPECT_EQ(names(NoteKind::Daily), Names{});
}

// Close.

TEST_F(NoteEditor, closeBringsTheRestUpToDateInThisOrder) {
  editor_.cmdOK();
  EXPECT_EQ(host_.calls, (std::vector<std::string>{"Update_All_Al", "showFirstNote"}));
  EXPECT_EQ(view_.unloads, 1);
}

TEST_F(NoteEditor, closesWhateverFails) {
  host_.onUpdate = [] { throw Failure(L"a broken note"); };
  EXPECT_THROW(editor_.cmdOK(), Failure);
  EXPECT_EQ(view_.unloads, 1);
}

// Each kind.

TEST_F(NoteEditor, theReadersAndWritersOfTheKindsUseTheirOwnPage) {
  give(L"a.tx1", "1|10|daily");
  give(L"a.tx2", "2|20|1|0|0|0|0|0|0|weekly");
  give(L"a.tx3", "3|30|1|monthly");
  give(L"a.tx4", "4|0|1|1|yearly");
  give(L"a.txt", "5|50|fast");
  for (const NoteKind kind : kNoteKinds) view_.select(list(kind), 0);
  editor_.Czytaj_Day();
  editor_.Czytaj_Weak();
  editor_.Czytaj_Month();
  editor_.Czytaj_Year();
  editor_.Czytaj_Fast();
  const Names contents = {L"daily", L"weekly", L"monthly", L"yearly", L"fast"};
  for (const NoteKind kind : kNoteKinds) {
    EXPECT_EQ(shown(kind).content, contents[static_cast<std::size_t>(kind)]);
  }
  const auto before = files_.content;
  editor_.Zapisz_Day();
  editor_.Zapisz_Weak();
  editor_.Zapisz_Month();
  editor_.Zapisz_Year();
  editor_.Zapisz_Fast();
  EXPECT_EQ(files_.content, before);
  EXPECT_EQ(files_.steps.size(), 5U);
}

TEST_F(NoteEditor, aListWithNothingSelectedReadsNothing) {
  give(L"a.tx1", "1|10|daily");
  editor_.File_list_box_Click(NoteKind::Daily);
  EXPECT_EQ(name(NoteKind::Daily), L"");
}

TEST_F(NoteEditor, theHourIsStoredAsItWasShownThoughTheSettingChangesMeanwhile) {
  give(L"a.tx1", "19|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  host_.format = HourFormat::Hours24;
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content.at(L"a.tx1"), "19|30|x");
}

}  // namespace
}  // namespace kalvora
