// What is typed in the note editor and not saved survives every way of leaving a page.

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

struct Typed {
  FilledPage page;
  std::string bytes;
};

void PrintTo(const Typed& typed, std::ostream* out) {
  *out << typed.bytes;
}

const Typed kTyped[] = {
    {{NoteKind::Daily, {L"7", L"30"}, L"typed", 1}, "19|30|typed"},
    {{NoteKind::Weekly, {L"8", L"15"}, L"typed", 0, "0100010"}, "8|15|0|1|0|0|0|1|0|typed"},
    {{NoteKind::Monthly, {L"20", L"6", L"2"}, L"typed"}, "20|6|2|typed"},
    {{NoteKind::Yearly, {L"20", L"6", L"2"}, L"typed", 0, "", 3}, "20|3|6|2|typed"},
    {{NoteKind::Fast, {L"7", L"30"}, L"typed", 1}, "19|30|typed"},
    {{NoteKind::Once, {L"7", L"30"}, L"typed", 1}, "2027|3|28|19|30|typed"},
};

class EditorDrafts : public EditorFixture, public testing::WithParamInterface<Typed> {
 protected:
  EditorDrafts() {
    // Its notes and its copies lie in one folder in memory; so the lists show copies too.
    give(L"Other" + std::wstring(extensionOf(kind())), "");
  }
  NoteKind kind() const { return GetParam().page.kind; }
  void fillIn() {
    fill(GetParam().page, L"Gym");
    editor_.fieldChanged();
  }
  /// The bytes of every draft, the newest first.
  std::vector<std::string> drafts() const {
    std::vector<std::string> found;
    for (const SafetyCopy& copy : copies_.newestFirst()) {
      if (copy.isDraft) found.push_back(copies_.read(copy));
    }
    return found;
  }
  void expectKept() {
    const auto copies = copies_.newestFirst();
    ASSERT_EQ(copies.size(), 1U);
    EXPECT_TRUE(copies[0].isDraft);
    EXPECT_EQ(copies[0].name, L"Gym");
    EXPECT_EQ(copies[0].kind, kind());
    EXPECT_EQ(copies_.read(copies[0]), GetParam().bytes);
  }
};

INSTANTIATE_TEST_SUITE_P(Kinds, EditorDrafts, testing::ValuesIn(kTyped));

TEST_P(EditorDrafts, anotherNameClicked) {
  fillIn();
  ASSERT_TRUE(pick(kind(), L"Other"));
  expectKept();
}

TEST_P(EditorDrafts, newPressed) {
  fillIn();
  editor_.cmdNew(kind());
  expectKept();
}

TEST_P(EditorDrafts, closed) {
  fillIn();
  editor_.cmdOK();
  EXPECT_EQ(view_.unloads, 1);
  expectKept();
}

TEST_P(EditorDrafts, closedAfterTheNoteWasDeleted) {
  ASSERT_TRUE(pick(kind(), L"Other"));
  fillIn();
  editor_.cmdDel(kind());
  editor_.cmdOK();
  EXPECT_EQ(drafts(), std::vector{GetParam().bytes});
}

TEST_P(EditorDrafts, theProgramEnds) {
  fillIn();
  editor_.unload();
  expectKept();
}

TEST_P(EditorDrafts, theSessionEnds) {
  fillIn();
  editor_.keepTyped();
  expectKept();
}

TEST_P(EditorDrafts, theProgramIsKilledSecondsLater) {
  fillIn();
  EXPECT_EQ(view_.draftTimer, 3000);
  editor_.Draft_Timer();
  EXPECT_EQ(view_.draftTimer, std::nullopt);
  expectKept();
}

TEST_P(EditorDrafts, oneThatCannotBeKeptIsTriedAgainThoughNothingMoreIsTyped) {
  fillIn();
  files_.failingStep = files_.steps.size() + 1;
  editor_.Draft_Timer();
  EXPECT_EQ(drafts(), std::vector<std::string>{});
  EXPECT_EQ(view_.draftTimer, 10000);
  editor_.Draft_Timer();
  EXPECT_EQ(view_.draftTimer, std::nullopt);
  expectKept();
}

TEST_P(EditorDrafts, anUntouchedPageNeedsNone) {
  editor_.keepTyped();
  ASSERT_TRUE(pick(kind(), L"Other"));
  editor_.keepTyped();
  editor_.cmdNew(kind());
  editor_.cmdOK();
  EXPECT_EQ(drafts(), std::vector<std::string>{});
}

TEST_P(EditorDrafts, aSaveTakesTheDraftAway) {
  fillIn();
  editor_.Draft_Timer();
  editor_.cmdSave(kind());
  editor_.cmdOK();
  EXPECT_EQ(drafts(), std::vector<std::string>{});
}

TEST_P(EditorDrafts, aSaveThatFailsLeavesItToBeKept) {
  fillIn();
  files_.failingStep = files_.steps.size() + 1;
  EXPECT_THROW(editor_.cmdSave(kind()), FileError);
  editor_.cmdOK();
  expectKept();
}

TEST_P(EditorDrafts, theClosedEditorKeepsNothingMore) {
  fillIn();
  editor_.cmdOK();
  view_.controls.clear();
  editor_.keepTyped();
  editor_.unload();
  expectKept();
}

TEST_P(EditorDrafts, openedAgainItBeginsAnew) {
  fillIn();
  editor_.cmdOK();
  view_.controls.clear();
  editor_.Form_Load();
  editor_.keepTyped();
  expectKept();
  editor_.fieldChanged();
  EXPECT_EQ(view_.draftTimer, 3000);
}

using EditorDraftsOfOneKind = EditorFixture;

TEST_F(EditorDraftsOfOneKind, aNoteThatIsRefusedLeavesThePageAndItsDraftAlone) {
  give(L"large.txt", std::string(kLargestNoteSize + 1, 'x'));
  fill({NoteKind::Fast, {L"7", L"30"}, L"typed"}, L"Gym");
  ASSERT_TRUE(pick(NoteKind::Fast, L"large"));
  view_.at(contentBox(NoteKind::Fast)).text = L"typed on";
  editor_.keepTyped();
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies_.read(copies[0]), "7|30|typed on");
}

TEST_F(EditorDraftsOfOneKind, anHourThatNoNoteCanHoldStandsAboveTheText) {
  fill({NoteKind::Fast, {L"99999", L"30"}, L"typed", 1}, L"Gym");
  editor_.keepTyped();
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "|30|99999 pm\r\ntyped");
}

}  // namespace
}  // namespace kalvora
