// Another window sends the user to a note in the editor.

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

class EditorShowNote : public EditorFixture {
 protected:
  EditorShowNote() {
    give(L"Gym.tx1", "7|30|mat");
    give(L"Swim.tx1", "8|15|cap");
    give(L"Rent.tx3", "20|||pay");
  }
  std::wstring contentOfPage(NoteKind kind) const { return text(contentBox(kind)); }
};

TEST_F(EditorShowNote, itsPageComesWithTheNoteOnIt) {
  editor_.showNote(NoteKind::Monthly, L"Rent");
  EXPECT_EQ(view_.page, NoteKind::Monthly);
  EXPECT_EQ(loadedNote(NoteKind::Monthly), L"Rent");
  EXPECT_EQ(contentOfPage(NoteKind::Monthly), L"pay");
}

TEST_F(EditorShowNote, whatWasTypedOverAnotherNoteIsKept) {
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  view_.at(contentBox(NoteKind::Daily)).text = L"typed";
  editor_.fieldChanged();
  editor_.showNote(NoteKind::Daily, L"Swim");
  EXPECT_EQ(contentOfPage(NoteKind::Daily), L"cap");
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies_.read(copies[0]), "7|30|typed");
}

TEST_F(EditorShowNote, aNoteOnItsPageStaysAsItIsTypedOver) {
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  view_.at(contentBox(NoteKind::Daily)).text = L"typed";
  editor_.tbsOptions_Click(NoteKind::Fast);
  editor_.showNote(NoteKind::Daily, L"gym");
  EXPECT_EQ(view_.page, NoteKind::Daily);
  EXPECT_EQ(contentOfPage(NoteKind::Daily), L"typed");
}

TEST_F(EditorShowNote, aNoteThatIsNewInTheFolderIsFound) {
  give(L"Walk.tx1", "9|00|shoes");
  editor_.showNote(NoteKind::Daily, L"Walk");
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"Walk");
}

TEST_F(EditorShowNote, aNoteIsFoundHoweverItsNameIsWritten) {
  editor_.showNote(NoteKind::Daily, L"sWIM");
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"Swim");
}

TEST_F(EditorShowNote, aNoteThatIsGoneIsToldAndThePageStays) {
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  editor_.showNote(NoteKind::Daily, L"Away");
  EXPECT_EQ(view_.notice, L"This note is gone.");
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"Gym");
}

TEST_F(EditorShowNote, aKindWithoutAPageIsLeftAlone) {
  host_.kinds = NoteKinds(kNoteKinds).first(5);
  open(HourFormat::Hours24);
  editor_.showNote(NoteKind::Once, L"Trip");
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(EditorShowNote, aPlaceInItsTextIsShown) {
  editor_.showNote(NoteKind::Monthly, L"Rent", {1, L"ay"});
  EXPECT_EQ(view_.piece, L"ay");
  EXPECT_EQ(view_.pieceBegin, 1U);
}

TEST_F(EditorShowNote, ofANoteThatIsTypedOverThePlaceIsLookedFor) {
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  view_.at(contentBox(NoteKind::Daily)).text = L"the blue mat";
  editor_.showNote(NoteKind::Daily, L"Gym", {0, L"mat"});
  EXPECT_EQ(view_.pieceBegin, 9U);
  view_.piece.reset();
  view_.at(contentBox(NoteKind::Daily)).text = L"shoes";
  editor_.showNote(NoteKind::Daily, L"Gym", {700, L"mat"});
  EXPECT_EQ(view_.piece, std::nullopt);
  EXPECT_EQ(contentOfPage(NoteKind::Daily), L"shoes");
}

TEST_F(EditorShowNote, noPlaceIsShownOfANoteThatIsNotOnItsPage) {
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  editor_.showNote(NoteKind::Daily, L"Away", {0, L"mat"});
  EXPECT_EQ(view_.piece, std::nullopt);
  give(L"Large.tx1", "7|30|" + std::string(kLargestNoteSize, 'x'));
  editor_.showNote(NoteKind::Daily, L"Large", {0, L"mat"});
  EXPECT_EQ(view_.piece, std::nullopt);
  editor_.showNote(NoteKind::Daily, L"Swim");
  EXPECT_EQ(view_.piece, std::nullopt) << "nor where none was told";
}

TEST_F(EditorShowNote, theWindowThatFindsIsAskedForWithTheWords) {
  editor_.cmdFind(L"blue mat");
  EXPECT_EQ(host_.found, std::vector<std::wstring>{L"blue mat"});
}

TEST_F(EditorShowNote, ctrlFLeadsToTheFieldForWords) {
  EXPECT_FALSE(editor_.Form_KeyDown(All_Notes_frm::kFindKey, HeldKeys::None));
  EXPECT_FALSE(editor_.Form_KeyDown(All_Notes_frm::kFindKey, HeldKeys::Other));
  EXPECT_EQ(view_.findings, 0);
  EXPECT_TRUE(editor_.Form_KeyDown(All_Notes_frm::kFindKey, HeldKeys::CtrlAlone));
  EXPECT_EQ(view_.findings, 1);
}

TEST_F(EditorShowNote, theButtonAsksForTheWindowOfWhatComes) {
  editor_.cmdWhatComes();
  EXPECT_EQ(host_.calls, std::vector<std::string>{"showWhatComes"});
}

}  // namespace
}  // namespace kalvora
