// Nothing typed is lost where a save or a delete cannot be finished.

#include <utility>

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

class EditorFailures : public EditorFixture {
 protected:
  EditorFailures() {
    give(L"Gym.tx1", "7|30|a long old text");
    give(L"Swim.tx1", "8|15|an even longer old text");
    pick(NoteKind::Daily, L"Gym");
    type({ControlArray::CzasD, 0}, L"9");
    view_.setText(contentBox(NoteKind::Daily), L"typed");
  }

  /// Saves with the change of that number failing, and expects the sentence and everything as it
  /// was.
  void expectNothingLost(std::size_t failingStep, const std::wstring& sentence) {
    files_.steps.clear();
    files_.failingStep = failingStep;
    const auto content = files_.content;
    const auto controls = view_.controls;
    try {
      editor_.cmdSave(NoteKind::Daily);
      ADD_FAILURE() << "a save that cannot be finished";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.message().substr(0, sentence.size()), sentence);
    }
    EXPECT_EQ(files_.content, content);
    EXPECT_EQ(view_.controls, controls);
    files_.failingStep = 0;
  }

  std::wstring path(const wchar_t* name) const {
    return (std::filesystem::path(L"notes") / name).wstring();
  }
};

TEST_F(EditorFailures, aSaveUnderTheSameNameThatFailsLeavesAllAsItWas) {
  expectNothingLost(1, L"This file cannot be written: " + path(L"Gym.tx1"));
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content.at(L"Gym.tx1"), "9|30|typed");
}

TEST_F(EditorFailures, aRenamingThatCannotWriteLeavesAllAsItWas) {
  type(nameBox(NoteKind::Daily), L"Run");
  expectNothingLost(1, L"This file cannot be written: " + path(L"Run.tx1"));
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content.at(L"Run.tx1"), "9|30|typed");
  EXPECT_FALSE(files_.content.contains(L"Gym.tx1"));
}

TEST_F(EditorFailures, aRenamingThatCannotRemoveTheOldFileLeavesAllAsItWas) {
  type(nameBox(NoteKind::Daily), L"Run");
  expectNothingLost(2, L"This file cannot be deleted: " + path(L"Gym.tx1"));
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content.at(L"Run.tx1"), "9|30|typed");
  EXPECT_FALSE(files_.content.contains(L"Gym.tx1"));
}

TEST_F(EditorFailures, aRenamingOntoAnotherNoteThatFailsPutsThatNoteBack) {
  type(nameBox(NoteKind::Daily), L"Swim");
  expectNothingLost(1, L"This file cannot be written: " + path(L"Swim.tx1"));
  expectNothingLost(2, L"This file cannot be deleted: " + path(L"Gym.tx1"));
}

TEST_F(EditorFailures, aRenamingInOtherLettersThatFailsLeavesAllAsItWas) {
  type(nameBox(NoteKind::Daily), L"GYM");
  expectNothingLost(1, L"This file cannot be written: " + path(L"Gym.tx1"));
  expectNothingLost(2, L"This file cannot be renamed: " + path(L"Gym.tx1"));
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(names(NoteKind::Daily), (std::vector<std::wstring>{L"GYM", L"Swim"}));
}

TEST_F(EditorFailures, aNewNoteThatCannotBeWrittenLeavesAllAsItWas) {
  editor_.cmdNew(NoteKind::Daily);
  fill({NoteKind::Daily, {L"1", L"2"}, L"typed"}, L"Swim");
  expectNothingLost(1, L"This file cannot be written: " + path(L"Swim.tx1"));
}

TEST_F(EditorFailures, aNoteThatWouldBeTooLargeIsRefusedBeforeAnythingIsWritten) {
  view_.setText(contentBox(NoteKind::Daily), std::wstring(32763, L'x'));
  expectNothingLost(0,
                    L"This note is too large to be saved, it takes 32768 bytes, and a note can "
                    L"hold 32767: " +
                        path(L"Gym.tx1"));
  EXPECT_TRUE(files_.steps.empty());
  view_.setText(contentBox(NoteKind::Daily), std::wstring(32762, L'x'));
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content.at(L"Gym.tx1").size(), 32767U);
}

TEST_F(EditorFailures, aNoteUnderTheNameOfOneTooLargeToOpenIsRefused) {
  give(L"Big.tx1", std::string(32768, 'x'));
  type(nameBox(NoteKind::Daily), L"Big");
  expectNothingLost(0, L"There is already a note of this name, and it is too large to be opened: " +
                           path(L"Big.tx1"));
  EXPECT_TRUE(files_.steps.empty());
}

TEST_F(EditorFailures, anHourBeyond16BitsIsRefusedBeforeAnythingIsWritten) {
  type({ControlArray::CzasD, 0}, L"99999");
  expectNothingLost(0, L"The hour of the note's alarm: The number 99999 is too large.");
  EXPECT_TRUE(files_.steps.empty());
}

TEST_F(EditorFailures, aDeleteThatFailsLeavesAllAsItWas) {
  files_.steps.clear();
  files_.failingStep = 1;
  const auto content = files_.content;
  EXPECT_THROW(editor_.cmdDel(NoteKind::Daily), FileError);
  EXPECT_EQ(files_.content, content);
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_FALSE(files_.content.contains(L"Gym.tx1"));
}

TEST_F(EditorFailures, aFolderThatWasAwayIsListedAgainWhenItsPageIsTurnedTo) {
  const auto content = std::exchange(files_.content, {});
  editor_.Update_Files(NoteKind::Daily, NoteKind::Fast);
  files_.content = content;
  EXPECT_TRUE(names(NoteKind::Daily).empty());
  editor_.tbsOptions_Click(NoteKind::Daily);
  EXPECT_FALSE(names(NoteKind::Daily).empty());
}

}  // namespace
}  // namespace kalvora
