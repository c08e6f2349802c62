// Save and Delete of the note editor.

#include <algorithm>

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;
using Kinds = std::vector<NoteKind>;
using Messages = std::vector<FakeAll_Notes_frmView::Message>;

const FakeAll_Notes_frmView::Message kEmptyValue = {
    L"Empty value",
    L"You didn't enter the time or day to your note,\rwhich means that this note will be without "
    L"an alarm. \r\r Save ?"};

class SavingNotes : public EditorFixture {
 protected:
  void saveDaily(const std::wstring& noteName, const std::wstring& content) {
    fill({NoteKind::Daily, {L"7", L"30"}, content}, noteName);
    editor_.cmdSave(NoteKind::Daily);
  }
  /// A note of every kind comes from elsewhere; a list that is refreshed names it.
  Kinds listsThatASaveRefreshes(NoteKind kind) {
    const std::wstring other = L"other " + std::to_wstring(files_.content.size());
    for (const NoteKind each : kNoteKinds) {
      files_.content[other + std::wstring(extensionOf(each))] = "x";
    }
    editor_.cmdSave(kind);
    Kinds refreshed;
    for (const NoteKind each : kNoteKinds) {
      if (std::ranges::count(names(each), other) > 0) refreshed.push_back(each);
    }
    return refreshed;
  }
};

TEST_F(SavingNotes, savingANewNoteDeletesNothingAndListsIt) {
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|x"}}));
  EXPECT_EQ(files_.steps, Names{L"write Gym.tx1"});
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Gym"});
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"Gym");
}

TEST_F(SavingNotes, savingUnderTheSameNameLeavesNoTail) {
  saveDaily(L"Gym", L"a long text");
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|x"}}));
}

TEST_F(SavingNotes, renamingDeletesTheOldFileAndListsTheNewNameOnly) {
  saveDaily(L"Gym", L"a long text");
  saveDaily(L"Swim", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Swim.tx1", "7|30|x"}}));
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Swim"});
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"Swim");
  // The new file is whole before the old one goes.
  EXPECT_EQ(files_.steps, (Names{L"write Gym.tx1", L"write Swim.tx1", L"remove Gym.tx1"}));
}

TEST_F(SavingNotes, renamingInOtherLettersOnlyKeepsTheNote) {
  saveDaily(L"Gym", L"a long text");
  saveDaily(L"gYM", L"x");
  EXPECT_EQ(files_.content.size(), 1U);
  EXPECT_EQ(files_.content.at(L"gym.tx1"), "7|30|x");
  EXPECT_EQ(names(NoteKind::Daily), Names{L"gYM"});
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"gYM");
}

TEST_F(SavingNotes, aNewNoteUnderTheNameOfALongerOneKeepsItsTail) {
  give(L"Gym.tx1", "7|30|a long text");
  editor_.cmdNew(NoteKind::Daily);
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|x long text");
  EXPECT_EQ(files_.content.size(), 1U);
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x long text");
}

TEST_F(SavingNotes, aNoteRenamedToTheNameOfALongerOneKeepsThatOnesTail) {
  give(L"Gym.tx1", "7|30|a long text");
  saveDaily(L"Swim", L"y");
  saveDaily(L"gym", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"gym.tx1", "7|30|x long text"}}));
}

TEST_F(SavingNotes, aNoteUnderTheNameOfAShorterOneLeavesNothingOfIt) {
  give(L"Gym.tx1", "7|30|a");
  editor_.cmdNew(NoteKind::Daily);
  saveDaily(L"Gym", L"longer");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|longer");
}

TEST_F(SavingNotes, aNoteOfAnotherKindWithTheSameNameIsLeftAlone) {
  give(L"Gym.tx2", "7|30|0|0|0|0|0|0|0|weekly");
  saveDaily(L"Gym", L"x");
  saveDaily(L"Swim", L"x");
  EXPECT_EQ(files_.content.at(L"Gym.tx2"), "7|30|0|0|0|0|0|0|0|weekly");
}

TEST_F(SavingNotes, anUnchangedNoteWhoseFileIsGoneIsWrittenAgain) {
  saveDaily(L"Gym", L"x");
  files_.content.clear();
  saveDaily(L"Gym", L"x");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|x");
}

TEST_F(SavingNotes, aRenamedNoteWhoseOldFileIsGoneIsWritten) {
  saveDaily(L"Gym", L"x");
  files_.content.clear();
  saveDaily(L"Swim", L"x");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Swim.tx1", "7|30|x"}}));
}

TEST_F(SavingNotes, aNoteNamedLikeTheKeepFileNameIsNeverDeleted) {
  saveDaily(L"Kalvora_old_for_not_deleting_only", L"x");
  editor_.cmdDel(NoteKind::Daily);
  saveDaily(L"Gym", L"y");
  EXPECT_EQ(files_.content.size(), 2U);
}

TEST_F(SavingNotes, aNewNoteUnderTheKeepFileNameCountsAsUnchanged) {
  give(L"Kalvora_old_for_not_deleting_only.tx1", "7|30|a long text");
  saveDaily(L"Kalvora_old_for_not_deleting_only", L"x");
  EXPECT_EQ(files_.content.at(L"Kalvora_old_for_not_deleting_only.tx1"), "7|30|x");
}

TEST_F(SavingNotes, theKeepFileNameInOtherLettersIsANameLikeAnyOther) {
  give(L"kalvora_OLD_for_not_deleting_only.tx1", "7|30|a long text");
  saveDaily(L"kalvora_OLD_for_not_deleting_only", L"x");
  EXPECT_EQ(files_.content.at(L"kalvora_OLD_for_not_deleting_only.tx1"), "7|30|x long text");
  saveDaily(L"Gym", L"y");
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|y"}}));
}

TEST_F(SavingNotes, aNewNoteIsWrittenOverOneOfTheLargestSize) {
  const std::string largest = "7|30|" + std::string(32762, 'x');
  give(L"Gym.tx1", largest);
  saveDaily(L"Gym", L"y");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|y" + largest.substr(6));
}

TEST_F(SavingNotes, theDailyListIsRefreshedAfterTheSameNameAndTheKindsOwnAfterAnother) {
  for (const NoteKind kind : kNoteKinds) {
    FilledPage page{kind, {L"7", L"30", L"1"}, L"x"};
    page.weekdays = "0000000";
    editor_.cmdNew(kind);
    fill(page, L"Gym");
    EXPECT_EQ(listsThatASaveRefreshes(kind), Kinds{kind});
    EXPECT_EQ(listsThatASaveRefreshes(kind), Kinds{NoteKind::Daily});
    fill(page, L"Swim");
    EXPECT_EQ(listsThatASaveRefreshes(kind), Kinds{kind});
  }
}

TEST_F(SavingNotes, aRenamingInOtherLettersRefreshesTheKindsOwnList) {
  FilledPage page{NoteKind::Weekly, {L"7", L"30"}, L"x"};
  page.weekdays = "0000000";
  for (const wchar_t* noteName : {L"Gym", L"gYM", L"Run"}) {
    fill(page, noteName);
    editor_.cmdSave(NoteKind::Weekly);
    EXPECT_EQ(names(NoteKind::Weekly), Names{noteName});
  }
}

TEST_F(SavingNotes, afterASaveUnderTheSameNameTheDailyListIsRebuiltWhateverTheKind) {
  FilledPage page{NoteKind::Monthly, {L"1", L"1", L"1"}, L"x"};
  fill(page, L"Rent");
  editor_.cmdSave(NoteKind::Monthly);
  files_.content[L"other.tx1"] = "x";
  files_.content[L"other.tx3"] = "x";
  editor_.cmdSave(NoteKind::Monthly);
  EXPECT_EQ(names(NoteKind::Daily), Names{L"other"});
  EXPECT_EQ(names(NoteKind::Monthly), Names{L"Rent"});
}

TEST_F(SavingNotes, aSelectorWithoutASelectionCountsAsAm) {
  fill({NoteKind::Daily, {L"7", L"30"}, L"x", -1}, L"Gym");
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|x");
}

// The empty-value question.

TEST_F(SavingNotes, asksBeforeItSavesANoteWithoutAnAlarm) {
  fill({NoteKind::Daily, {L"", L"30"}, L"x"}, L"Gym");
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(view_.questions, Messages{kEmptyValue});
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "|30|x");
}

TEST_F(SavingNotes, cancelLeavesThePageAndTheDisk) {
  view_.answer = false;
  fill({NoteKind::Daily, {L"", L"30"}, L"x"}, L"Gym");
  const auto before = view_.controls;
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_TRUE(files_.steps.empty());
  EXPECT_EQ(view_.controls, before);
  view_.answer = true;
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.steps, Names{L"write Gym.tx1"}) << "it is a new note still";
}

TEST_F(SavingNotes, asksForEveryEmptyNumberAndForNothingElse) {
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

TEST_F(SavingNotes, asksBeforeItReplacesCharactersThatANoteCannotStore) {
  view_.answer = false;
  saveDaily(L"Gym", L"\u65E5");
  EXPECT_EQ(view_.questions,
            (Messages{{L"Save",
                       L"The text has characters that a note cannot store. They will be replaced. "
                       L"Save ?"}}));
  EXPECT_TRUE(files_.steps.empty());
  view_.answer = true;
  saveDaily(L"Gym", L"\u65E5");
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "7|30|?");
  EXPECT_EQ(text(contentBox(NoteKind::Daily)), L"\u65E5");
}

TEST_F(SavingNotes, asksForTheEmptyValueFirst) {
  fill({NoteKind::Daily, {L"", L"30"}, L"\u65E5"}, L"Gym");
  editor_.cmdSave(NoteKind::Daily);
  ASSERT_EQ(view_.questions.size(), 2U);
  EXPECT_EQ(view_.questions[0], kEmptyValue);
  view_.answer = false;
  view_.questions.clear();
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(view_.questions, Messages{kEmptyValue});
}

// Delete.

TEST_F(SavingNotes, deleteRemovesTheFileWithoutAQuestionAndKeepsThePage) {
  saveDaily(L"Gym", L"x");
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_TRUE(files_.content.empty());
  EXPECT_TRUE(view_.questions.empty());
  EXPECT_EQ(names(NoteKind::Daily), Names{});
  EXPECT_EQ(name(NoteKind::Daily), L"Gym");
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x");
  give(L"Gym.tx1", "1|1|made by another program");
  EXPECT_EQ(loadedNote(NoteKind::Daily), std::nullopt) << "the page is of no file";
}

TEST_F(SavingNotes, savingAfterDeleteWritesTheNoteAgain) {
  saveDaily(L"Gym", L"x");
  editor_.cmdDel(NoteKind::Daily);
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "7|30|x"}}));
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Gym"});
}

TEST_F(SavingNotes, deleteRemovesTheLoadedNoteAndNotTheNameThatIsTyped) {
  saveDaily(L"Gym", L"x");
  give(L"Swim.tx1", "1|1|y");
  type(nameBox(NoteKind::Daily), L"Swim");
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Swim.tx1", "1|1|y"}}));
}

TEST_F(SavingNotes, deleteOnEveryPageRemovesTheNoteOfItsOwnKind) {
  for (const NoteKind deleted : kNoteKinds) {
    for (const NoteKind kind : kNoteKinds) {
      files_.content[L"Gym" + std::wstring(extensionOf(kind))] = "x";
    }
    editor_.Update_Files(NoteKind::Daily, NoteKind::Once);
    for (const NoteKind kind : kNoteKinds) ASSERT_TRUE(pick(kind, L"Gym"));
    const std::wstring file = L"Gym" + std::wstring(extensionOf(deleted));
    files_.steps.clear();
    editor_.cmdDel(deleted);
    EXPECT_EQ(files_.steps, Names{L"remove " + file});
    EXPECT_FALSE(files_.content.contains(file));
    for (const NoteKind kind : kNoteKinds) {
      EXPECT_EQ(names(kind), kind == deleted ? Names{} : Names{L"Gym"});
      EXPECT_EQ(loadedNote(kind).has_value(), kind != deleted);
      EXPECT_EQ(name(kind), L"Gym");
    }
  }
}

TEST_F(SavingNotes, deleteRefreshesTheListOfItsKindAlone) {
  saveDaily(L"Gym", L"x");
  files_.content[L"other.tx1"] = "x";
  files_.content[L"other.tx2"] = "x";
  files_.content[L"other.txt"] = "x";
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_EQ(names(NoteKind::Daily), Names{L"other"});
  EXPECT_EQ(names(NoteKind::Weekly), Names{});
  EXPECT_EQ(names(NoteKind::Fast), Names{});
}

TEST_F(SavingNotes, savingAfterDeleteTakesTheNameThatStandsInTheBoxThen) {
  saveDaily(L"Gym", L"x");
  editor_.cmdDel(NoteKind::Daily);
  give(L"Gym.tx1", "1|1|made by another program");
  type(nameBox(NoteKind::Daily), L"Swim");
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"Gym.tx1", "1|1|made by another program"},
                                                  {L"Swim.tx1", "7|30|x"}}));
}

TEST_F(SavingNotes, deleteOfANoteWithoutAFileDeletesNothing) {
  give(L"New.tx1", "1|1|y");
  editor_.cmdNew(NoteKind::Daily);
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_TRUE(files_.steps.empty());
  EXPECT_EQ(files_.content.size(), 1U);
}

TEST_F(SavingNotes, deleteOfAFileThatIsGoneCountsAsDone) {
  saveDaily(L"Gym", L"x");
  files_.content.clear();
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_EQ(names(NoteKind::Daily), Names{});
  give(L"Gym.tx1", "1|1|made by another program");
  EXPECT_EQ(loadedNote(NoteKind::Daily), std::nullopt);
}

}  // namespace
}  // namespace kalvora
