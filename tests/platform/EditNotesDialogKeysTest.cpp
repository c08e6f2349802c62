// The keys of the note editor, and its opening and closing.

#include <map>

#include "platform/HeldHandles.h"
#include "platform/NoteEditorWindow.h"

namespace kalvora {
namespace {

using enum ControlArray;

class NoteEditorKeys : public NoteEditorWindow {};

// Keys.

TEST_F(NoteEditorKeys, ctrlTabGoesThroughTheTabsAndWraps) {
  open();
  hold(VK_CONTROL, true);
  for (const NoteKind kind : {NoteKind::Weekly, NoteKind::Monthly, NoteKind::Yearly, NoteKind::Fast,
                              NoteKind::Once, NoteKind::Daily}) {
    key(GetFocus(), VK_TAB);
    for (const NoteKind other : kNoteKinds) {
      EXPECT_EQ(IsWindowVisible(page(other)) != FALSE, other == kind);
    }
    // The keyboard goes along with the page.
    EXPECT_EQ(GetFocus(), control(controlOf(File_list_box, kind)));
  }
  hold(VK_CONTROL, false);
}

TEST_F(NoteEditorKeys, theTabKeyComesByEveryControlAndBack) {
  open();
  for (const NoteKind kind : kNoteKinds) {
    form_.tbsOptions_Click(kind);
    const HWND first = control(controlOf(File_list_box, kind));
    SetFocus(first);
    std::vector<HWND> visited;
    do {
      visited.push_back(GetFocus());
      key(GetFocus(), VK_TAB);
    } while (GetFocus() != first && visited.size() < 40);
    // List, name, text, three buttons, Restore, What comes, Close, the field for words to find, its
    // button and the tabs, beside what the kind has of its own.
    const std::map<NoteKind, std::size_t> expected = {
        {NoteKind::Daily, 15},  {NoteKind::Weekly, 22}, {NoteKind::Monthly, 15},
        {NoteKind::Yearly, 16}, {NoteKind::Fast, 15},   {NoteKind::Once, 16}};
    EXPECT_EQ(visited.size(), expected.at(kind));
    EXPECT_EQ(visited.back(), GetDlgItem(dialog_.window(), IDC_TBSOPTIONS));
  }
}

TEST_F(NoteEditorKeys, comingToTheTextWithTheTabKeySelectsNothing) {
  open();
  const HWND text = control(controlOf(Zawartosc, NoteKind::Daily));
  SetWindowTextW(text, L"kept");
  key(control({AmPmCombo, 0}), VK_TAB);
  ASSERT_EQ(GetFocus(), text);
  DWORD from = 9;
  DWORD to = 9;
  SendMessageW(text, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  EXPECT_EQ(from, to);
}

TEST_F(NoteEditorKeys, enterDestroysNothing) {
  folder_.write(L"notes/Gym.tx1", "7|30|text");
  open();
  clickName(NoteKind::Daily, 0);
  for (const EditorControl& box :
       {controlOf(File_list_box, NoteKind::Daily), controlOf(FName, NoteKind::Daily),
        EditorControl{CzasD, 0}, EditorControl{CzasD, 1}, EditorControl{AmPmCombo, 0}}) {
    const HWND edit = isNumberList(box) ? editOf(control(box)) : control(box);
    key(edit, VK_RETURN);
  }
  ASSERT_NE(dialog_.window(), nullptr);
  EXPECT_EQ(fileNames(), Names{L"Gym.tx1"});
  EXPECT_EQ(bytes(L"Gym.tx1"), "7|30|text");
  EXPECT_EQ(textOf(control(controlOf(Zawartosc, NoteKind::Daily))), L"text");
  EXPECT_EQ(host_.calls.size(), 0U);
}

TEST_F(NoteEditorKeys, ctrlFLeadsToTheFieldForWordsAndEnterFindsThem) {
  open();
  const HWND field = GetDlgItem(dialog_.window(), IDC_FINDWORDS);
  hold(VK_CONTROL, true);
  key(control(controlOf(Zawartosc, NoteKind::Daily)), 'F');
  hold(VK_CONTROL, false);
  EXPECT_EQ(GetFocus(), field);
  typeInto(field, L"blue mat");
  key(field, VK_RETURN);
  EXPECT_EQ(host_.found, Names{L"blue mat"});
  SendMessageW(GetDlgItem(dialog_.window(), IDC_CMDFIND), BM_CLICK, 0, 0);
  EXPECT_EQ(host_.found.size(), 2U);
}

TEST_F(NoteEditorKeys, aPlaceThatWasFoundIsSelectedAndSeen) {
  std::string text = "7|30|";
  for (int line = 0; line < 200; ++line) text += "line\r\n";
  folder_.write(L"notes/Gym.tx1", text + "the mat");
  open();
  form_.showNote(NoteKind::Daily, L"Gym", {1204, L"mat"});
  const HWND box = control(controlOf(Zawartosc, NoteKind::Daily));
  EXPECT_EQ(GetFocus(), box);
  DWORD from = 0;
  DWORD to = 0;
  SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  EXPECT_EQ(textOf(box).substr(from, to - from), L"mat");
  EXPECT_GT(SendMessageW(box, EM_GETFIRSTVISIBLELINE, 0, 0), 100);
}

TEST_F(NoteEditorKeys, theEnterThatLedToAPlaceDoesNotWriteOverIt) {
  folder_.write(L"notes/Gym.tx1", "7|30|the mat");
  open();
  hold(VK_RETURN, true);
  dialog_.open();
  form_.showNote(NoteKind::Daily, L"Gym", {4, L"mat"});
  const HWND box = control(controlOf(Zawartosc, NoteKind::Daily));
  const auto enter = [&](LPARAM state) {
    constexpr LPARAM kEnterOnce = 0x001C0001;
    MSG message{};
    message.hwnd = box;
    message.message = WM_KEYDOWN;
    message.wParam = VK_RETURN;
    message.lParam = state | kEnterOnce;
    dialogs_.takesMessage(message);
    pump();
    return textOf(box);
  };
  constexpr LPARAM kHeld = LPARAM{1} << 30U;
  EXPECT_EQ(enter(kHeld), L"the mat");
  EXPECT_EQ(enter(0), L"the \r\n") << "pressed anew it writes";
  EXPECT_EQ(enter(kHeld), L"the \r\n\r\n");
  hold(VK_RETURN, false);
}

TEST_F(NoteEditorKeys, escClosesFromEveryControl) {
  for (const EditorControl& box :
       {controlOf(File_list_box, NoteKind::Daily), controlOf(FName, NoteKind::Daily),
        EditorControl{CzasD, 0}, controlOf(Zawartosc, NoteKind::Daily),
        controlOf(cmdSave, NoteKind::Daily)}) {
    open();
    host_.calls.clear();
    key(isNumberList(box) ? editOf(control(box)) : control(box), VK_ESCAPE);
    EXPECT_EQ(dialog_.window(), nullptr) << static_cast<int>(box.array);
    EXPECT_EQ(host_.calls, (std::vector<std::string>{"Update_All_Al", "showFirstNote"}));
  }
}

TEST_F(NoteEditorKeys, afterNewTypingReplacesTheName) {
  open();
  const HWND button = control(controlOf(cmdNew, NoteKind::Daily));
  SetFocus(button);
  press(cmdNew, NoteKind::Daily);
  ASSERT_EQ(GetFocus(), control(controlOf(FName, NoteKind::Daily)));
  typeInto(GetFocus(), L"Gym");
  EXPECT_EQ(textOf(GetFocus()), L"Gym");
}

TEST_F(NoteEditorKeys, aBareLetterPressesNoButton) {
  folder_.write(L"notes/Gym.tx2", "7|30|0|1|0|0|0|0|0|text");
  open();
  form_.tbsOptions_Click(NoteKind::Weekly);
  clickName(NoteKind::Weekly, 0);
  const HWND tabs = GetDlgItem(dialog_.window(), IDC_TBSOPTIONS);
  for (const HWND focused :
       {control({Check1, 1}), control(controlOf(cmdSave, NoteKind::Weekly)), tabs,
        GetDlgItem(dialog_.window(), IDC_CMDRESTORE), dialog_.window()}) {
    for (const wchar_t typed : {L'd', L'D', L'c', L'n', L'u'}) letter(focused, typed);
    ASSERT_NE(dialog_.window(), nullptr);
    EXPECT_EQ(fileNames(), Names{L"Gym.tx2"});
    EXPECT_EQ(textOf(control(controlOf(FName, NoteKind::Weekly))), L"Gym");
    EXPECT_EQ(SendMessageW(control({Check1, 0}), BM_GETCHECK, 0, 0), BST_UNCHECKED);
  }
}

TEST_F(NoteEditorKeys, whereLettersAreTakenTheyArrive) {
  folder_.write(L"notes/Apple.tx1", "7|30|text");
  folder_.write(L"notes/Dill.tx1", "7|30|text");
  open();
  const HWND name = control(controlOf(FName, NoteKind::Daily));
  letter(name, L'd');
  EXPECT_EQ(textOf(name), L"d");
  const HWND list = control(controlOf(File_list_box, NoteKind::Daily));
  letter(list, L'd');
  EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), 1);
}

TEST_F(NoteEditorKeys, withAltALetterPressesItsButton) {
  folder_.write(L"notes/Gym.tx2", "7|30|0|1|0|0|0|0|0|text");
  open();
  form_.tbsOptions_Click(NoteKind::Weekly);
  clickName(NoteKind::Weekly, 0);
  letter(control({Check1, 1}), L'd', WM_SYSCHAR);
  EXPECT_EQ(fileNames(), Names{});
  EXPECT_EQ(textOf(GetDlgItem(dialog_.window(), IDC_NOTICE)),
            L"\x201CGym\x201D was deleted. Restore\x2026 brings it back.");
}

// Opening and closing.

TEST_F(NoteEditorKeys, closesByItsButtonAndByTheClosingBox) {
  open();
  SendMessageW(GetDlgItem(dialog_.window(), IDC_CMDOK), BM_CLICK, 0, 0);
  EXPECT_EQ(dialog_.window(), nullptr);
  open();
  SendMessageW(dialog_.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  pump();
  EXPECT_EQ(dialog_.window(), nullptr);
  EXPECT_EQ(host_.calls.size(), 4U);
}

TEST_F(NoteEditorKeys, openedAgainItStaysAsItIs) {
  open();
  const HWND window = dialog_.window();
  write(controlOf(FName, NoteKind::Daily), L"typed");
  form_.tbsOptions_Click(NoteKind::Fast);
  open();
  EXPECT_EQ(dialog_.window(), window);
  EXPECT_EQ(pageInFront(), NoteKind::Fast);
  EXPECT_EQ(textOf(control(controlOf(FName, NoteKind::Daily))), L"typed");
}

TEST_F(NoteEditorKeys, endsWithItsOwner) {
  const HWND owner = CreateWindowExW(0, L"Static", L"owner", WS_POPUP, 0, 0, 10, 10, nullptr,
                                     nullptr, GetModuleHandleW(nullptr), nullptr);
  using ThisTest = std::remove_pointer_t<decltype(this)>;
  struct Owned {
    ThisTest& test;
    HWND owner;
    EditNotesDialog dialog{owner, test.dialogs_, test.deliver_, form};
    All_Notes_frm form{{test.files_, test.writer_, test.codePage_, dialog, test.host_, test.notes_,
                        test.copies_, test.clock_}};
  } owned{*this, owner};
  owned.dialog.open();
  DestroyWindow(owner);
  EXPECT_EQ(owned.dialog.window(), nullptr);
  pump();
  open();
  EXPECT_NE(dialog_.window(), nullptr);
}

TEST_F(NoteEditorKeys, openingItAgainAndAgainLeavesNothingBehind) {
  open();
  dialog_.unload();
  const HeldHandles before;
  for (int i = 0; i < 30; ++i) {
    open();
    dialog_.unload();
  }
  EXPECT_FALSE(before.grew());
}

// How long it takes: bench/run editor.
TEST_F(NoteEditorKeys, opensWith5000Notes) {
  for (int i = 0; i < 5000; ++i) {
    const std::filesystem::path note = notes_ / (L"Note " + std::to_wstring(i) + L".tx1");
    const UniqueFile file(
        CreateFileW(note.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  }
  open();
  EXPECT_EQ(listed(NoteKind::Daily).size(), 5000U);
}

}  // namespace
}  // namespace kalvora
