#include "notes/All_Notes_frm.h"

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;
using enum ControlArray;

class NoteEditor : public EditorFixture {};

// Opening.

TEST_F(NoteEditor, opensInTheMiddleOfTheScreenOnTheDailyPage) {
  EXPECT_EQ(view_.centred, 1);
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(NoteEditor, opensWithNothingLoaded) {
  for (const NoteKind kind : kNoteKinds) {
    EXPECT_EQ(view_.selection(list(kind)), -1);
  }
  // January and am.
  for (const EditorControl& control : controlsWithItems(kNoteKinds)) {
    EXPECT_EQ(view_.selection(control), isNumberList(control) ? -1 : 0);
  }
}

TEST_F(NoteEditor, opensWithTheNamesOfTheNotesOfEveryKind) {
  for (const NoteKind kind : kNoteKinds) {
    files_.content[L"a" + std::wstring(extensionOf(kind))] = "x";
  }
  open(HourFormat::Hours12);
  for (const NoteKind kind : kNoteKinds) EXPECT_EQ(names(kind), Names{L"a"});
}

TEST_F(NoteEditor, marksNoNoteWhereNoneIsLoadedThoughOneHasTheKeepFileName) {
  give(L"Kalvora_old_for_not_deleting_only.tx1", "7|30|x");
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), -1);
}

TEST_F(NoteEditor, marksTheLoadedNoteAlsoWhereTheFolderKeepsItsFormerLetters) {
  give(L"Gym.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"Gym"));
  files_.content.clear();
  give(L"GYM.tx1", "7|30|x");
  EXPECT_EQ(names(NoteKind::Daily), Names{L"GYM"});
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), 0);
}

TEST_F(NoteEditor, enablesTheSelectorsOfTheHalfOfTheDayWith12HourTimeOnly) {
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(view_.at({AmPmCombo, i}).enabled);
  open(HourFormat::Hours24);
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(view_.at({AmPmCombo, i}).enabled);
}

Names numbersTo(int first, int last, int step) {
  Names items;
  for (int number = first; number <= last; number += step) items.push_back(std::to_wstring(number));
  return items;
}

TEST_F(NoteEditor, fillsItsListsWithTheirItems) {
  for (const ControlArray time : {CzasD, CzasW, CzasF, OnceTime}) {
    EXPECT_EQ(view_.at({time, 0}).items, numbersTo(0, 24, 1));
    EXPECT_EQ(view_.at({time, 1}).items, numbersTo(0, 55, 5));
  }
  for (const ControlArray days : {ComboM, ComboY}) {
    EXPECT_EQ(view_.at({days, 0}).items, numbersTo(1, 31, 1));
    EXPECT_EQ(view_.at({days, 1}).items, numbersTo(1, 21, 1));
    EXPECT_EQ(view_.at({days, 2}).items, numbersTo(1, 7, 1));
  }
  for (int i = 0; i < 4; ++i) EXPECT_EQ(view_.at({AmPmCombo, i}).items, (Names{L"am", L"pm"}));
  EXPECT_EQ(view_.at({MonthY, 0}).items,
            (Names{L"January", L"February", L"March", L"April", L"May", L"June", L"July", L"August",
                   L"September", L"October", L"November", L"December"}));
}

TEST_F(NoteEditor, opensAgainWithoutWhatWasLoadedBefore) {
  give(L"a.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  editor_.cmdSave(NoteKind::Daily);
  editor_.tbsOptions_Click(NoteKind::Fast);
  editor_.Form_Load();
  EXPECT_EQ(loadedNote(NoteKind::Daily), std::nullopt);
  EXPECT_EQ(view_.page, NoteKind::Daily);
  editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone);
  EXPECT_EQ(view_.page, NoteKind::Weekly) << "on from the daily page";
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
  for (const NoteKind kind : kNoteKinds) {
    files_.content[L"a" + std::wstring(extensionOf(kind))] = "x";
  }
  editor_.Update_Files(NoteKind::Weekly, NoteKind::Monthly);
  EXPECT_EQ(names(NoteKind::Daily), Names{});
  EXPECT_EQ(names(NoteKind::Weekly), Names{L"a"});
  EXPECT_EQ(names(NoteKind::Monthly), Names{L"a"});
  EXPECT_EQ(names(NoteKind::Yearly), Names{});
}

// Tabs.

TEST_F(NoteEditor, ctrlTabGoesToTheNextTabAndFromTheLastToTheFirst) {
  for (const NoteKind kind : {NoteKind::Weekly, NoteKind::Monthly, NoteKind::Yearly, NoteKind::Fast,
                              NoteKind::Once, NoteKind::Daily}) {
    EXPECT_TRUE(editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone));
    EXPECT_EQ(view_.page, kind);
  }
}

TEST_F(NoteEditor, ctrlTabGoesOnFromTheTabThatWasClicked) {
  editor_.tbsOptions_Click(NoteKind::Yearly);
  EXPECT_EQ(view_.page, NoteKind::Yearly);
  editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone);
  EXPECT_EQ(view_.page, NoteKind::Fast);
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
  EXPECT_EQ(editorPage(NoteKind::Once).caption, L"Once");
}

// Typing.

TEST_F(NoteEditor, aLetterTypedIntoAnEmptyNumberListLeavesItEmpty) {
  const std::vector<EditorControl> numberLists = {
      {CzasD, 0},  {CzasD, 1},  {CzasW, 0},    {CzasW, 1},   {CzasF, 0},
      {CzasF, 1},  {ComboM, 0}, {ComboM, 1},   {ComboM, 2},  {ComboY, 0},
      {ComboY, 1}, {ComboY, 2}, {OnceTime, 0}, {OnceTime, 1}};
  for (const EditorControl& control : numberLists) {
    EXPECT_TRUE(isNumberList(control));
    type(control, L"a");
    EXPECT_EQ(text(control), L"");
    type(control, L"12a");
    EXPECT_EQ(text(control), L"12");
    type(control, L"1:2");
    EXPECT_EQ(text(control), L"12");
  }
  EXPECT_FALSE(isNumberList({AmPmCombo, 0}));
  EXPECT_FALSE(isNumberList({MonthY, 0}));
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

TEST_F(NoteEditor, newEmptiesThePageAndWritesNoNote) {
  for (const NoteKind kind : kNoteKinds) {
    FilledPage page{kind, {L"7", L"30", L"3"}, L"text"};
    page.weekdays = "1111111";
    page.month = 7;
    fill(page, L"Gym");
    editor_.cmdNew(kind);
    const FilledPage empty = shown(kind);
    EXPECT_EQ(name(kind), L"New");
    EXPECT_EQ(view_.naming, kind);
    EXPECT_EQ(empty.content, L"");
    // The date and the time of a note for one date have tests of their own.
    const Names numbers(empty.numbers.size());
    if (kind != NoteKind::Once) {
      EXPECT_EQ(empty.numbers, numbers);
    }
    EXPECT_EQ(empty.weekdays, kind == NoteKind::Weekly ? "0000000" : "");
    EXPECT_EQ(empty.month, 0);
  }
  // What stood on the page is kept as a draft.
  for (const std::wstring& step : files_.steps) {
    EXPECT_NE(step.find(L" draft.tx"), std::wstring::npos);
  }
}

TEST_F(NoteEditor, aNewNoteIsMarkedInNoListAndTheOldOneCanBePickedAgain) {
  give(L"a.tx1", "7|30|x");
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  editor_.cmdNew(NoteKind::Daily);
  EXPECT_EQ(view_.selection(list(NoteKind::Daily)), -1);
  ASSERT_TRUE(pick(NoteKind::Daily, L"a"));
  EXPECT_EQ(shown(NoteKind::Daily).content, L"x");
}

// Close.

TEST_F(NoteEditor, closeBringsTheRestUpToDateInThisOrder) {
  editor_.cmdOK();
  EXPECT_EQ(host_.calls, (std::vector<std::string>{"Update_All_Al", "showFirstNote"}));
  EXPECT_EQ(view_.unloads, 1);
}

TEST_F(NoteEditor, staysOpenUntilTheRestIsUpToDate) {
  int unloadsThen = -1;
  host_.onShowFirstNote = [&] { unloadsThen = view_.unloads; };
  editor_.cmdOK();
  EXPECT_EQ(unloadsThen, 0);
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
  for (const NoteKind kind : knownKinds({})) view_.select(list(kind), 0);
  editor_.Czytaj_Day();
  editor_.Czytaj_Weak();
  editor_.Czytaj_Month();
  editor_.Czytaj_Year();
  editor_.Czytaj_Fast();
  const Names contents = {L"daily", L"weekly", L"monthly", L"yearly", L"fast"};
  for (const NoteKind kind : knownKinds({})) {
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
