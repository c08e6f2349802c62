// Notes for one date in the editor, and the editor of a user who has none.

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

using namespace std::chrono;
using Names = std::vector<std::wstring>;
using enum ControlArray;

class EditorOnce : public EditorFixture {
 protected:
  year_month_day dateShown() const { return view_.date({OnceDate, 0}); }
  bool touched(NoteKind kind) const {
    return std::ranges::any_of(view_.controls,
                               [&](const auto& entry) { return kindOf(entry.first) == kind; });
  }
  /// Opens a fresh window as the user has it who chose no notes for one date.
  void openWithoutOnce() {
    editor_.unload();
    view_.controls.clear();
    host_.kinds = knownKinds({});
    open(HourFormat::Hours12);
  }
};

TEST_F(EditorOnce, aNewNoteBeginsWithTodayAndTheNextFullHour) {
  clock_.time = LocalTime{2026, 11, 22, 0, 17, 5, 0};
  editor_.cmdNew(NoteKind::Once);
  EXPECT_EQ(dateShown(), 2026y / November / 22);
  const FilledPage page = shown(NoteKind::Once);
  EXPECT_EQ(page.numbers, (Names{L"6", L"0"}));
  EXPECT_EQ(page.half, 1);
  EXPECT_EQ(page.content, L"");
  EXPECT_EQ(name(NoteKind::Once), L"New");
  editor_.cmdSave(NoteKind::Once);
  EXPECT_EQ(files_.content.at(L"New.tx5"), "2026|11|22|18|0|");
  EXPECT_TRUE(view_.questions.empty());
}

TEST_F(EditorOnce, aNewNoteIn24HourTimeSaysTheHourOfTheDay) {
  open(HourFormat::Hours24);
  clock_.time = LocalTime{2026, 11, 22, 0, 17, 5, 0};
  editor_.cmdNew(NoteKind::Once);
  EXPECT_EQ(shown(NoteKind::Once).numbers, (Names{L"18", L"0"}));
}

TEST_F(EditorOnce, opensWithADateThatCanBeSavedAndIsNoTyping) {
  clock_.time = LocalTime{2026, 11, 22, 0, 17, 5, 0};
  open(HourFormat::Hours12);
  EXPECT_EQ(dateShown(), 2026y / November / 22);
  EXPECT_EQ(view_.notice, L"");
  clock_.time.day = 23;
  editor_.keepTyped();
  EXPECT_TRUE(files_.steps.empty());
}

TEST_F(EditorOnce, aDateThatThereIsNotIsSaidAndNothingElseOfTheNoteIsLost) {
  clock_.time = LocalTime{2026, 11, 23, 1, 6, 0, 0};
  for (const char* date : {"2026|2|31", "2026|13|1", "26|2|1", "2026||1", "x|2|1", "2026|2|1.5"}) {
    const std::string bytes = std::string(date) + "|19|05|Dentist";
    give(L"a.tx5", bytes);
    ASSERT_TRUE(pick(NoteKind::Once, L"a"));
    EXPECT_EQ(view_.notice, L"This note's date does not exist: today is shown in its place.");
    EXPECT_EQ(dateShown(), 2026y / November / 23);
    EXPECT_EQ(shown(NoteKind::Once).numbers, (Names{L"7", L"05"}));
    EXPECT_EQ(shown(NoteKind::Once).content, L"Dentist");
    editor_.keepTyped();
    EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"a.tx5", bytes}})) << "no one typed yet";
    editor_.cmdSave(NoteKind::Once);
    EXPECT_EQ(files_.content.at(L"a.tx5"), "2026|11|23|19|05|Dentist") << "what is picked";
    EXPECT_EQ(view_.notice, L"");
  }
}

TEST_F(EditorOnce, aNoteWithoutADateSaysThatItHasNone) {
  for (const char* bytes : {"", "|||7|30|x", "|"}) {
    give(L"a.tx5", bytes);
    ASSERT_TRUE(pick(NoteKind::Once, L"a"));
    EXPECT_EQ(view_.notice, L"This note has no date: today is shown in its place.") << bytes;
  }
}

TEST_F(EditorOnce, theDateOfOneNoteIsNotThatOfTheNext) {
  give(L"a.tx5", "2026|3|4|7|30|x");
  give(L"b.tx5", "2027|5|6|8|30|y");
  ASSERT_TRUE(pick(NoteKind::Once, L"a"));
  EXPECT_EQ(dateShown(), 2026y / March / 4);
  ASSERT_TRUE(pick(NoteKind::Once, L"b"));
  EXPECT_EQ(dateShown(), 2027y / May / 6);
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(EditorOnce, aDateThatIsPickedIsKeptAsADraft) {
  give(L"a.tx5", "2026|3|4|7|30|x");
  ASSERT_TRUE(pick(NoteKind::Once, L"a"));
  view_.setDate({OnceDate, 0}, 2026y / March / 5);
  editor_.keepTyped();
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "2026|3|5|7|30|x");
}

// The user who has none.

TEST_F(EditorOnce, theOthersGetFivePagesAndNothingOfTheSixth) {
  openWithoutOnce();
  EXPECT_TRUE(std::ranges::equal(view_.pages, knownKinds({})));
  give(L"a.tx5", "2026|3|4|7|30|x");
  editor_.keepTyped();
  EXPECT_FALSE(touched(NoteKind::Once));
  host_.kinds = kNoteKinds;
  open(HourFormat::Hours12);
  EXPECT_TRUE(std::ranges::equal(view_.pages, kNoteKinds));
  EXPECT_TRUE(touched(NoteKind::Once)) << "or the test above sees nothing";
  EXPECT_EQ(names(NoteKind::Once), Names{L"a"});
}

TEST_F(EditorOnce, ofFivePagesTheLastIsFollowedByTheFirst) {
  openWithoutOnce();
  editor_.tbsOptions_Click(NoteKind::Fast);
  editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone);
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(EditorOnce, aChoiceMadeMeanwhileHoldsFromTheNextOpening) {
  host_.kinds = knownKinds({});
  editor_.tbsOptions_Click(NoteKind::Fast);
  editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone);
  EXPECT_EQ(view_.page, NoteKind::Once);
  fill({NoteKind::Once, {L"7", L"30"}, L"typed"}, L"Dentist");
  editor_.keepTyped();
  // It is not offered to a user who has no such notes, and it is not lost.
  EXPECT_EQ(copies_.newestFirst().size(), 0U);
  host_.kinds = kNoteKinds;
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_EQ(copies_.read(copies_.newestFirst()[0]), "2027|3|28|7|30|typed");
}

TEST_F(EditorOnce, aDraftTypedOnWhileTheChoiceChangesStaysOneFile) {
  fill({NoteKind::Once, {L"7", L"30"}, L"typed"}, L"Dentist");
  editor_.keepTyped();
  host_.kinds = knownKinds({});
  view_.at(contentBox(NoteKind::Once)).text = L"typed on";
  editor_.keepTyped();
  EXPECT_EQ(files_.content.size(), 1U);
  EXPECT_EQ(files_.content.begin()->second, "2027|3|28|7|30|typed on");
}

TEST_F(EditorOnce, anEditorWithoutSuchAPageOffersNoCopiesOfSuchNotes) {
  files_.content[L"Dentist 2027-03-28 06-29-58.tx5"] = "2027|3|28|7|30|x";
  files_.content[L"Gym 2027-03-28 06-29-57.tx1"] = "7|30|x";
  openWithoutOnce();
  editor_.cmdRestore();
  ASSERT_EQ(view_.offered.size(), 1U);
  host_.kinds = kNoteKinds;
  editor_.cmdRestore();
  ASSERT_EQ(view_.offered.size(), 1U);
  EXPECT_EQ(view_.offered[0].name, L"Gym");
  open(HourFormat::Hours12);
  editor_.cmdRestore();
  EXPECT_EQ(view_.offered.size(), 2U);
}

}  // namespace
}  // namespace kalvora
