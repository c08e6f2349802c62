// Notes that no editor wrote: whatever the bytes, a page is filled whole and can be saved again.

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

class EditorDamage : public EditorFixture {
 protected:
  FilledPage read(NoteKind kind, std::string bytes) {
    give(L"a" + std::wstring(extensionOf(kind)), std::move(bytes));
    EXPECT_TRUE(pick(kind, L"a"));
    EXPECT_EQ(name(kind), L"a");
    return shown(kind);
  }
  using Texts = std::vector<std::wstring>;
};

TEST_F(EditorDamage, anHourThatIsNoNumberShowsItsDigits) {
  EXPECT_EQ(read(NoteKind::Daily, "7x|30|a").numbers, (Texts{L"7", L"30"}));
  EXPECT_EQ(read(NoteKind::Daily, "x|y|a").numbers, (Texts{L"", L""}));
  EXPECT_EQ(read(NoteKind::Daily, "-5|-6|a").numbers, (Texts{L"5", L"6"}));
}

TEST_F(EditorDamage, anHourBeyond16BitsStandsAsItIsAndLeavesTheSelector) {
  view_.select({ControlArray::AmPmCombo, 0}, 1);
  const FilledPage page = read(NoteKind::Daily, "99999|30|a");
  EXPECT_EQ(page.numbers, (Texts{L"99999", L"30"}));
  EXPECT_EQ(page.half, 1);
  EXPECT_EQ(page.content, L"a");
}

TEST_F(EditorDamage, aFileThatEndsEarlyLeavesTheLaterControlsEmpty) {
  EXPECT_EQ(read(NoteKind::Daily, "7").numbers, (Texts{L"7", L""}));
  EXPECT_EQ(read(NoteKind::Daily, "").numbers, (Texts{L"", L""}));
  const FilledPage weekly = read(NoteKind::Weekly, "7|30|1|1");
  EXPECT_EQ(weekly.weekdays, "1100000");
  EXPECT_EQ(weekly.content, L"");
  const FilledPage yearly = read(NoteKind::Yearly, "3");
  EXPECT_EQ(yearly.numbers, (Texts{L"3", L"", L""}));
  EXPECT_EQ(yearly.month, -1);
}

TEST_F(EditorDamage, aMissingSeparatorMakesOneFieldSwallowTheRest) {
  const FilledPage page = read(NoteKind::Daily, "7;30;Gym");
  EXPECT_EQ(page.numbers, (Texts{L"730", L""}));
  EXPECT_EQ(page.content, L"");
}

TEST_F(EditorDamage, aWeekdayThatIsNotExactlyOneCharacterIsNotTicked) {
  EXPECT_EQ(read(NoteKind::Weekly, "7|30||11|1|0|10|1|111|x").weekdays, "0010010");
}

TEST_F(EditorDamage, aWeekdayThatIsNeither0Nor1IsNotTicked) {
  EXPECT_EQ(read(NoteKind::Weekly, "7|30|x|2|1|-|9| |1|x").weekdays, "0010001");
}

TEST_F(EditorDamage, nulCharactersAreLeftOut) {
  const std::string bytes("\0|3\0|1|\0|\0001|1|1|1|1|a\0b", 23);
  const FilledPage page = read(NoteKind::Weekly, bytes);
  EXPECT_EQ(page.numbers, (Texts{L"", L"3"}));
  EXPECT_EQ(page.weekdays, "1001111");
  EXPECT_EQ(page.content, L"ab");
}

TEST_F(EditorDamage, aMonthThatTheListDoesNotHaveSelectsNone) {
  for (const char* month : {"-1", "12", "x", "", "99999", "32768"}) {
    view_.select({ControlArray::MonthY, 0}, 5);
    EXPECT_EQ(read(NoteKind::Yearly, "3|" + std::string(month) + "|1|2|x").month, -1) << month;
  }
  EXPECT_EQ(read(NoteKind::Yearly, "3|07|1|2|x").month, 7);
}

TEST_F(EditorDamage, anEmptyHourLeavesTheSelectorAndAFullOneSetsIt) {
  view_.select({ControlArray::AmPmCombo, 0}, 1);
  EXPECT_EQ(read(NoteKind::Daily, "|30|a").half, 1);
  EXPECT_EQ(read(NoteKind::Daily, "7|30|a").half, 0);
  EXPECT_EQ(read(NoteKind::Daily, "13|30|a").half, 1);
}

TEST_F(EditorDamage, anHourIn24HourTimeIsShownAsItIsStored) {
  open(HourFormat::Hours24);
  EXPECT_EQ(read(NoteKind::Fast, "019|30|a").numbers, (Texts{L"019", L"30"}));
  EXPECT_EQ(shown(NoteKind::Fast).half, 0);
}

TEST_F(EditorDamage, aFileOf32767BytesIsReadAndOneMoreIsRefused) {
  const std::string largest = "7|30|" + std::string(32762, 'x');
  ASSERT_EQ(largest.size(), 32767U);
  EXPECT_EQ(read(NoteKind::Daily, largest).content.size(), 32762U);
  EXPECT_TRUE(view_.errors.empty());

  give(L"b.tx1", largest + "x");
  const auto before = shown(NoteKind::Daily);
  ASSERT_TRUE(pick(NoteKind::Daily, L"b"));
  EXPECT_EQ(view_.errors, (std::vector<FakeAll_Notes_frmView::Message>{
                              {L"Error!", L"The file is too large to open!"}}));
  EXPECT_TRUE(shown(NoteKind::Daily) == before);
  EXPECT_EQ(name(NoteKind::Daily), L"a");
  EXPECT_EQ(loadedNote(NoteKind::Daily), L"a");
}

TEST_F(EditorDamage, aRefusedNoteLeavesTheListAtTheNoteOnThePage) {
  give(L"a.tx1", "7|30|x");
  give(L"big.tx1", std::string(32768, 'x'));
  ASSERT_TRUE(pick(NoteKind::Daily, L"big"));
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), -1);
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  ASSERT_TRUE(pick(NoteKind::Daily, L"big"));
  // Otherwise Delete would seem to be meant for the refused note, and would take this one.
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), 0);
}

TEST_F(EditorDamage, aNoteCanBeReadAfterARefusedOne) {
  give(L"big.tx1", std::string(40000, 'x'));
  give(L"small.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"big"));
  ASSERT_TRUE(pick(NoteKind::Daily, L"small"));
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x");
}

TEST_F(EditorDamage, aNoteThatIsGoneLeavesThePageAndTheList) {
  give(L"a.tx1", "7|30|x");
  give(L"b.tx1", "8|30|y");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  files_.content.erase(L"b.tx1");
  EXPECT_THROW(pick(NoteKind::Daily, L"b"), FileError);
  EXPECT_EQ(name(NoteKind::Daily), L"a");
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x");
  EXPECT_EQ(names(NoteKind::Daily), std::vector<std::wstring>{L"a"});
}

TEST_F(EditorDamage, aNameThatNobodyCouldTypeIsKeptSoThatSavingRenamesNothing) {
  give(L"a!b.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a!b"));
  editor_.cmdSave(NoteKind::Daily);
  EXPECT_EQ(files_.content, (MemoryFiles::Content{{L"a!b.tx1", "7|30|x"}}));
}

}  // namespace
}  // namespace kalvora
