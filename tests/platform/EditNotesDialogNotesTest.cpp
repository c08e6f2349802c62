// Notes that are made, changed and deleted in the note editor by messages of Windows.

#include "platform/NoteEditorWindow.h"

namespace kalvora {
namespace {

using enum ControlArray;

class NoteEditorNotes : public NoteEditorWindow {
 protected:
  void pickDate(WORD year, WORD month, WORD ofMonth) {
    SYSTEMTIME day{};
    day.wYear = year;
    day.wMonth = month;
    day.wDay = ofMonth;
    SendMessageW(control({OnceDate, 0}), DTM_SETSYSTEMTIME, GDT_VALID,
                 reinterpret_cast<LPARAM>(&day));
  }
  std::string pickedDate() const {
    SYSTEMTIME day{};
    SendMessageW(control({OnceDate, 0}), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&day));
    return std::to_string(day.wYear) + "-" + std::to_string(day.wMonth) + "-" +
           std::to_string(day.wDay);
  }
};

// Typing.

TEST_F(NoteEditorNotes, lettersTypedIntoEveryNumberListVanish) {
  open();
  for (const EditorControl& list : controlsWithItems(kNoteKinds)) {
    if (!isNumberList(list)) continue;
    const HWND edit = editOf(control(list));
    // A note for one date begins with an hour.
    SetWindowTextW(edit, L"");
    typeInto(edit, L"a1b2c");
    EXPECT_EQ(textOf(edit), L"12");
    // The caret stays behind what was typed last.
    typeInto(edit, L"x3");
    EXPECT_EQ(textOf(edit), L"123");
    SendMessageW(edit, EM_SETSEL, 1, 1);
    typeInto(edit, L"z9");
    EXPECT_EQ(textOf(edit), L"1923");
  }
}

TEST_F(NoteEditorNotes, aNameLosesWhatItMayNotHoldAsItIsTypedOrPasted) {
  open();
  for (const NoteKind kind : kNoteKinds) {
    const HWND box = control(controlOf(FName, kind));
    typeInto(box, L"my/note?");
    EXPECT_EQ(textOf(box), L"mynote");
    SendMessageW(box, EM_SETSEL, 2, 2);
    SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L":* \u00E9!"));
    EXPECT_EQ(textOf(box), L"my note");
    typeInto(box, L"X");
    EXPECT_EQ(textOf(box), L"my Xnote");
  }
}

// Notes of every kind.

TEST_F(NoteEditorNotes, makesANoteOfEachKind) {
  open();
  for (const NoteKind kind : kNoteKinds) {
    press(cmdNew, kind);
    write(controlOf(FName, kind), L"Gym");
    write(controlOf(Zawartosc, kind), L"a\r\nb");
  }
  write({CzasD, 0}, L"07");
  write({CzasD, 1}, L"30");
  choose({AmPmCombo, 0}, 1);
  write({CzasW, 0}, L"12");
  write({CzasW, 1}, L"5");
  choose({AmPmCombo, 1}, 0);
  tick(1);
  tick(5);
  write({ComboM, 0}, L"20");
  write({ComboM, 1}, L"6");
  write({ComboM, 2}, L"2");
  write({ComboY, 0}, L"3");
  choose({MonthY, 0}, 11);
  write({ComboY, 1}, L"7");
  write({ComboY, 2}, L"1");
  choose({CzasF, 0}, 24);
  choose({CzasF, 1}, 11);
  pickDate(2026, 11, 22);
  write({OnceTime, 0}, L"7");
  write({OnceTime, 1}, L"30");
  choose({AmPmCombo, 3}, 1);
  for (const NoteKind kind : kNoteKinds) press(cmdSave, kind);
  EXPECT_EQ(bytes(L"Gym.tx1"), "19|30|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx2"), "12|5|0|1|0|0|0|1|0|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx3"), "20|6|2|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx4"), "3|11|7|1|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.txt"), "24|55|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx5"), "2026|11|22|19|30|a\r\nb");
  for (const NoteKind kind : kNoteKinds) EXPECT_EQ(listed(kind), Names{L"Gym"});
  EXPECT_EQ(reporter_.messages, Names{});
}

TEST_F(NoteEditorNotes, readsRenamesDeletesAndSavesANoteAgain) {
  folder_.write(L"notes/Gym.tx2", "19|30|0|1|0|0|0|1|0|a\r\nb");
  open();
  clickName(NoteKind::Weekly, 0);
  EXPECT_EQ(textOf(control({CzasW, 0})), L"7");
  EXPECT_EQ(SendMessageW(control({AmPmCombo, 1}), CB_GETCURSEL, 0, 0), 1);
  EXPECT_EQ(SendMessageW(control({Check1, 5}), BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_EQ(textOf(control(controlOf(Zawartosc, NoteKind::Weekly))), L"a\r\nb");
  write(controlOf(FName, NoteKind::Weekly), L"Swim");
  press(cmdSave, NoteKind::Weekly);
  EXPECT_EQ(fileNames(), Names{L"Swim.tx2"});
  EXPECT_EQ(listed(NoteKind::Weekly), Names{L"Swim"});
  press(cmdDel, NoteKind::Weekly);
  EXPECT_EQ(fileNames(), Names{});
  press(cmdSave, NoteKind::Weekly);
  EXPECT_EQ(bytes(L"Swim.tx2"), "19|30|0|1|0|0|0|1|0|a\r\nb");
}

TEST_F(NoteEditorNotes, keepsANoteThatIsRenamedInOtherLettersOnly) {
  folder_.write(L"notes/Gym.tx1", "7|30|a long text");
  open();
  clickName(NoteKind::Daily, 0);
  write(controlOf(FName, NoteKind::Daily), L"gYM");
  write(controlOf(Zawartosc, NoteKind::Daily), L"x");
  press(cmdSave, NoteKind::Daily);
  EXPECT_EQ(bytes(L"gym.tx1"), "7|30|x");
  // Not every system takes the new letters over where a file takes the place of its namesake.
  ASSERT_EQ(fileNames().size(), 1U);
  EXPECT_EQ(SendMessageW(control(controlOf(File_list_box, NoteKind::Daily)), LB_GETCURSEL, 0, 0),
            0);
  press(cmdDel, NoteKind::Daily);
  EXPECT_EQ(fileNames(), Names{});
}

TEST_F(NoteEditorNotes, makesANoteWithAnEmptyNameAndOneWithEveryAllowedCharacter) {
  open();
  const wchar_t* const allowed = L"~`@#$%^&()-_=+[]{},.;' 09AZaz";
  for (const wchar_t* name : {L"", allowed}) {
    press(cmdNew, NoteKind::Daily);
    write(controlOf(FName, NoteKind::Daily), L"");
    typeInto(control(controlOf(FName, NoteKind::Daily)), name);
    write({CzasD, 0}, L"1");
    write({CzasD, 1}, L"2");
    press(cmdSave, NoteKind::Daily);
    EXPECT_EQ(bytes((std::wstring(name) + L".tx1").c_str()), "1|2|");
  }
  EXPECT_EQ(reporter_.messages, Names{});
  // Where names with a leading dot are hidden files, the one without a name is not listed.
  const DWORD attributes = GetFileAttributesW((notes_ / L".tx1").c_str());
  const Names all = {L"", allowed};
  const Names visible = {allowed};
  EXPECT_EQ(listed(NoteKind::Daily), (attributes & FILE_ATTRIBUTE_HIDDEN) != 0 ? visible : all);
}

TEST_F(NoteEditorNotes, aClickOnTheNameThatIsSelectedReadsItsNoteAgain) {
  folder_.write(L"notes/Gym.tx1", "7|30|text");
  open();
  clickName(NoteKind::Daily, 0);
  write(controlOf(Zawartosc, NoteKind::Daily), L"spoilt");
  clickName(NoteKind::Daily, 0);
  EXPECT_EQ(textOf(control(controlOf(Zawartosc, NoteKind::Daily))), L"text");
}

TEST_F(NoteEditorNotes, aLongTextIsTakenWholeAndRefusedOnlyWhenItIsSaved) {
  open();
  write(controlOf(FName, NoteKind::Fast), L"a");
  write({CzasF, 0}, L"1");
  write({CzasF, 1}, L"2");
  const HWND text = control(controlOf(Zawartosc, NoteKind::Fast));
  std::wstring longText;
  while (longText.size() < 40000) longText += L"This line is one of very many.\r\n";
  SendMessageW(text, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(longText.c_str()));
  EXPECT_EQ(textOf(text).size(), longText.size());
  press(cmdSave, NoteKind::Fast);
  ASSERT_EQ(reporter_.messages.size(), 1U);
  EXPECT_EQ(fileNames(), Names{});
  EXPECT_EQ(textOf(text).size(), longText.size());
}

TEST_F(NoteEditorNotes, aFileThatAnotherProgramHoldsIsNamedAndNothingIsLost) {
  folder_.write(L"notes/Gym.tx1", "7|30|old");
  const std::filesystem::path file = notes_ / L"Gym.tx1";
  open();
  clickName(NoteKind::Daily, 0);
  write(controlOf(Zawartosc, NoteKind::Daily), L"typed");
  {
    const UniqueFile holder(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    press(cmdSave, NoteKind::Daily);
    ASSERT_EQ(reporter_.messages.size(), 1U);
    EXPECT_NE(reporter_.messages[0].find(file.wstring()), std::wstring::npos);
  }
  EXPECT_EQ(bytes(L"Gym.tx1"), "7|30|old");
  EXPECT_EQ(textOf(control(controlOf(Zawartosc, NoteKind::Daily))), L"typed");
  press(cmdSave, NoteKind::Daily);
  EXPECT_EQ(bytes(L"Gym.tx1"), "7|30|typed");
}

// Notes for one date.

TEST_F(NoteEditorNotes, showsTheDateOfANoteAndForOneThatThereIsNotTodays) {
  folder_.write(L"notes/a.tx5", "2028|2|29|7|30|leap");
  folder_.write(L"notes/b.tx5", "2026|2|31|8|30|never");
  clock_.time = LocalTime{2026, 3, 2, 1, 6, 0, 30};
  open();
  const auto notice = [this] { return textOf(GetDlgItem(dialog_.window(), IDC_NOTICE)); };
  clickName(NoteKind::Once, 0);
  EXPECT_EQ(pickedDate(), "2028-2-29");
  EXPECT_EQ(notice(), L"");
  clickName(NoteKind::Once, 1);
  EXPECT_EQ(pickedDate(), "2026-3-2");
  EXPECT_EQ(notice(), L"This note's date does not exist: today is shown in its place.");
  EXPECT_EQ(textOf(control(controlOf(Zawartosc, NoteKind::Once))), L"never");
  EXPECT_EQ(bytes(L"b.tx5"), "2026|2|31|8|30|never");
  press(cmdSave, NoteKind::Once);
  EXPECT_EQ(bytes(L"b.tx5"), "2026|3|2|8|30|never");
}

TEST_F(NoteEditorNotes, takesNoDateThatNoNoteCanBeFor) {
  open();
  press(cmdNew, NoteKind::Once);
  pickDate(1753, 1, 1);
  EXPECT_EQ(pickedDate(), "1753-1-1");
  pickDate(1752, 12, 31);
  EXPECT_EQ(pickedDate(), "1753-1-1");
}

TEST_F(NoteEditorNotes, aDateThatIsPickedIsTypingThatIsKeptAsADraft) {
  open();
  press(cmdNew, NoteKind::Once);
  form_.keepTyped();
  EXPECT_EQ(copies_.newestFirst().size(), 0U);
  const HWND box = control({OnceDate, 0});
  const auto draftTimerRuns = [this] { return KillTimer(dialog_.window(), 1) != FALSE; };
  draftTimerRuns();
  pickDate(2026, 11, 22);
  NMDATETIMECHANGE picked{};
  picked.nmhdr = {box, static_cast<UINT_PTR>(GetDlgCtrlID(box)),
                  static_cast<UINT>(DTN_DATETIMECHANGE)};
  SendMessageW(GetParent(box), WM_NOTIFY, picked.nmhdr.idFrom, reinterpret_cast<LPARAM>(&picked));
  EXPECT_TRUE(draftTimerRuns());
  form_.keepTyped();
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_EQ(copies_.newestFirst()[0].kind, NoteKind::Once);
}

TEST_F(NoteEditorNotes, theDateIsPickedByTheKeyboardAlone) {
  clock_.time = LocalTime{2026, 3, 2, 1, 6, 0, 30};
  open();
  form_.tbsOptions_Click(NoteKind::Once);
  press(cmdNew, NoteKind::Once);
  const HWND box = control({OnceDate, 0});
  key(box, VK_RIGHT);
  key(box, VK_UP);
  EXPECT_NE(pickedDate(), "2026-3-2");
}

// Questions.

TEST_F(NoteEditorNotes, asksBeforeItSavesANoteWithoutAnAlarm) {
  open();
  press(cmdNew, NoteKind::Daily);
  Answering cancel(L"Empty value", IDCANCEL);
  press(cmdSave, NoteKind::Daily);
  cancel.wait();
  EXPECT_EQ(cancel.text,
            L"You didn't enter the time or day to your note,\rwhich means that this note will be "
            L"without an alarm. \r\r Save ?");
  EXPECT_EQ(fileNames(), Names{});
  Answering ok(L"Empty value", IDOK);
  press(cmdSave, NoteKind::Daily);
  EXPECT_EQ(bytes(L"New.tx1"), "||");
}

TEST_F(NoteEditorNotes, refusesANoteThatIsTooLarge) {
  folder_.write(L"notes/big.tx1", std::string(32768, 'x'));
  open();
  Answering ok(L"Error!", IDOK);
  clickName(NoteKind::Daily, 0);
  ok.wait();
  EXPECT_EQ(ok.text, L"The file is too large to open!");
  EXPECT_EQ(textOf(control(controlOf(FName, NoteKind::Daily))), L"");
}

TEST_F(NoteEditorNotes, aTextThatStandsThereIsNotLaidOutAgain) {
  folder_.write(L"notes/Gym.tx1", "7|30|text");
  open();
  clickName(NoteKind::Daily, 0);
  static int textsSet;
  textsSet = 0;
  const HWND text = control(controlOf(Zawartosc, NoteKind::Daily));
  SetWindowSubclass(
      text,
      [](HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
        if (message == WM_SETTEXT) ++textsSet;
        return DefSubclassProc(box, message, wParam, lParam);
      },
      99, 0);
  clickName(NoteKind::Daily, 0);
  EXPECT_EQ(textsSet, 0);
  SetWindowTextW(text, L"typed over");
  clickName(NoteKind::Daily, 0);
  EXPECT_EQ(textOf(text), L"text");
}

}  // namespace
}  // namespace kalvora
