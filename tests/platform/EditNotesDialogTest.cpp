// The note editor's window as Windows sees it: filled in, clicked and read by messages.

#include "win32/EditNotesDialog.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cwctype>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/TempFolder.h"
#include "notes/All_Notes_frm.h"
#include "win32/SystemCodePage.h"
#include "win32/UniqueHandle.h"
#include "win32/WindowsFileSystem.h"
#include "win32/WindowsFileWriter.h"
#include "win32/resource.h"

namespace kalvora {
namespace {

using enum ControlArray;
using Names = std::vector<std::wstring>;

class RecordingReporter : public ErrorReporter {
 public:
  void report(std::wstring_view message) noexcept override { messages.emplace_back(message); }
  Names messages;
};

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)), L'\0');
  SendMessageW(window, WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(text.data()));
  return text;
}

/// Answers the next message box of this title from another thread, as a user would.
class Answering {
 public:
  Answering(const wchar_t* title, WORD button)
      : thread_([this, title, button] {
          for (int i = 0; i < 400 && !ended_; ++i) {
            const HWND box = FindWindowW(L"#32770", title);
            const HWND pressed = box != nullptr ? GetDlgItem(box, button) : nullptr;
            if (pressed != nullptr && IsWindowVisible(box)) {
              text = textOf(GetDlgItem(box, 0xFFFF));
              PostMessageW(box, WM_COMMAND, button, reinterpret_cast<LPARAM>(pressed));
              return;
            }
            Sleep(25);
          }
        }) {}
  ~Answering() { wait(); }
  Answering(const Answering&) = delete;
  Answering& operator=(const Answering&) = delete;
  void wait() {
    ended_ = true;
    if (thread_.joinable()) thread_.join();
  }

  std::wstring text;

 private:
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

class NoteEditorWindow : public testing::Test {
 protected:
  NoteEditorWindow() { std::filesystem::create_directory(notes_); }

  void open() {
    dialog_.open(nullptr);
    pump();
  }
  void pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (dialogs_.takesMessage(message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }

  HWND page(NoteKind kind) const {
    const HWND list = findControl(dialog_.window(), idOf(controlOf(File_list_box, kind)));
    return GetParent(list);
  }
  HWND control(const EditorControl& wanted) const {
    return GetDlgItem(page(kindOf(wanted)), idOf(wanted));
  }
  static HWND editOf(HWND combo) { return FindWindowExW(combo, nullptr, L"Edit", nullptr); }

  void write(const EditorControl& box, const wchar_t* text) { SetWindowTextW(control(box), text); }
  void typeInto(HWND edit, const wchar_t* text) {
    for (; *text != L'\0'; ++text) SendMessageW(edit, WM_CHAR, *text, 1);
  }
  void choose(const EditorControl& combo, int position) {
    SendMessageW(control(combo), CB_SETCURSEL, static_cast<WPARAM>(position), 0);
  }
  void tick(int weekday) { SendMessageW(control({Check1, weekday}), BM_CLICK, 0, 0); }
  void press(ControlArray button, NoteKind kind) {
    SendMessageW(control(controlOf(button, kind)), BM_CLICK, 0, 0);
    pump();
  }
  void clickName(NoteKind kind, int position) {
    const HWND list = control(controlOf(File_list_box, kind));
    RECT item{};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(position),
                 reinterpret_cast<LPARAM>(&item));
    const LPARAM point = MAKELPARAM(item.left + 5, item.top + 5);
    SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageW(list, WM_LBUTTONUP, 0, point);
    pump();
  }
  Names listed(NoteKind kind) const {
    const HWND list = control(controlOf(File_list_box, kind));
    Names names(static_cast<std::size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < names.size(); ++i) {
      names[i].resize(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, i, 0)));
      SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(names[i].data()));
    }
    return names;
  }
  void key(HWND focused, WPARAM virtualKey) {
    SetFocus(focused);
    MSG message{};
    message.hwnd = focused;
    message.message = WM_KEYDOWN;
    message.wParam = virtualKey;
    message.lParam = 1;
    if (!dialogs_.takesMessage(message)) DispatchMessageW(&message);
    pump();
  }
  void hold(int virtualKey, bool down) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    keys[virtualKey] = down ? 0x80 : 0;
    SetKeyboardState(keys);
  }

  std::optional<std::string> bytes(const wchar_t* fileName) const {
    std::ifstream in(notes_ / fileName, std::ios::binary);
    if (!in) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  Names fileNames() const { return files_.files(notes_, L"*"); }

  static HWND findControl(HWND parent, int id) {
    struct Search {
      int id;
      HWND found;
    } search{id, nullptr};
    EnumChildWindows(
        parent,
        [](HWND child, LPARAM data) -> BOOL {
          auto* const wanted = reinterpret_cast<Search*>(data);
          if (GetDlgCtrlID(child) != wanted->id) return TRUE;
          wanted->found = child;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  TempFolder folder_;
  std::filesystem::path notes_ = folder_.path() / L"notes";
  RecordingReporter reporter_;
  EventGuard guard_{reporter_};
  ModelessDialogs dialogs_;
  WindowsFileSystem files_;
  WindowsFileWriter writer_;
  SystemCodePage codePage_;
  FakeEditorHost host_;
  EditNotesDialog dialog_{guard_, dialogs_};
  All_Notes_frm form_{{files_, writer_, codePage_, dialog_, host_, notes_}};
  struct Attached {
    Attached(EditNotesDialog& dialog, All_Notes_frm& form) { dialog.attach(form); }
  } attached_{dialog_, form_};
};

std::wstring withoutAccessKey(std::wstring caption) {
  std::erase(caption, L'&');
  return caption;
}

// What it looks like.

TEST_F(NoteEditorWindow, hasItsTabsAndCaptions) {
  open();
  EXPECT_EQ(textOf(dialog_.window()), L"Edit Notes");
  const HWND tabs = GetDlgItem(dialog_.window(), IDC_TBSOPTIONS);
  Names captions;
  for (int i = 0; i < SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0); ++i) {
    wchar_t caption[32] = L"";
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption;
    item.cchTextMax = 32;
    SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    captions.emplace_back(caption);
  }
  EXPECT_EQ(captions, (Names{L"Daily", L"Weakly", L"Monthly", L"Yearly", L"Fast"}));
  EXPECT_EQ(withoutAccessKey(textOf(GetDlgItem(dialog_.window(), IDC_CMDOK))), L"Close");
  for (const NoteKind kind : kNoteKinds) {
    EXPECT_EQ(withoutAccessKey(textOf(control(controlOf(cmdNew, kind)))), L"New");
    EXPECT_EQ(withoutAccessKey(textOf(control(controlOf(cmdSave, kind)))), L"Save");
    EXPECT_EQ(withoutAccessKey(textOf(control(controlOf(cmdDel, kind)))), L"Delete");
  }
  const Names weekdays = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                          L"Thursday", L"Friday", L"Saturday"};
  for (int day = 0; day < 7; ++day) {
    EXPECT_EQ(withoutAccessKey(textOf(control({Check1, day}))),
              weekdays[static_cast<std::size_t>(day)]);
  }
}

TEST_F(NoteEditorWindow, hasTheLabelsOfEachPageInTheirOrder) {
  open();
  const std::map<NoteKind, Names> expected = {
      {NoteKind::Daily, {L"Notes:", L"Name:", L"Time:", L":", L"Text:"}},
      {NoteKind::Weekly, {L"Notes:", L"Name:", L"Time:", L":", L"Text:"}},
      {NoteKind::Monthly,
       {L"Notes:", L"Name:", L"Day:", L"Remind me", L"day(s) before", L"every", L"day(s)",
        L"Text:"}},
      {NoteKind::Yearly,
       {L"Notes:", L"Name:", L"Day:", L"Month:", L"Remind me", L"day(s) before", L"every",
        L"day(s)", L"Text:"}},
      {NoteKind::Fast, {L"Notes:", L"Name:", L"Time:", L":", L"Text:"}},
  };
  for (const NoteKind kind : kNoteKinds) {
    Names labels;
    for (HWND label = nullptr;
         (label = FindWindowExW(page(kind), label, L"Static", nullptr)) != nullptr;) {
      labels.push_back(withoutAccessKey(textOf(label)));
    }
    EXPECT_EQ(labels, expected.at(kind));
  }
}

TEST_F(NoteEditorWindow, givesEachAccessKeyOnceAPage) {
  open();
  for (const NoteKind kind : kNoteKinds) {
    std::set<wchar_t> keys = {L'C'};
    for (HWND child = GetWindow(page(kind), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      wchar_t type[32] = L"";
      GetClassNameW(child, type, 32);
      if (lstrcmpiW(type, L"Static") != 0 && lstrcmpiW(type, L"Button") != 0) continue;
      const std::wstring caption = textOf(child);
      const std::size_t mark = caption.find(L'&');
      if (mark == std::wstring::npos) continue;
      const auto key = static_cast<wchar_t>(std::towupper(caption.at(mark + 1)));
      EXPECT_TRUE(keys.insert(key).second) << static_cast<int>(kind) << static_cast<char>(key);
    }
    EXPECT_GE(keys.size(), 8U);
  }
}

TEST_F(NoteEditorWindow, standsInTheMiddleOfTheScreen) {
  open();
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  RECT place{};
  GetWindowRect(dialog_.window(), &place);
  EXPECT_NEAR(place.left + place.right, work.left + work.right, 2);
  EXPECT_NEAR(place.top + place.bottom, work.top + work.bottom, 2);
}

TEST_F(NoteEditorWindow, growsItsListAndItsTextAndNeverShrinksBelowItsDesign) {
  open();
  const auto sizeOf = [](HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return POINT{place.right - place.left, place.bottom - place.top};
  };
  const POINT whole = sizeOf(dialog_.window());
  const HWND list = control(controlOf(File_list_box, NoteKind::Daily));
  const HWND text = control(controlOf(Zawartosc, NoteKind::Daily));
  const POINT listBefore = sizeOf(list);
  const POINT textBefore = sizeOf(text);
  SetWindowPos(dialog_.window(), nullptr, 0, 0, whole.x + 80, whole.y + 60,
               SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(sizeOf(list).y, listBefore.y + 60);
  EXPECT_EQ(sizeOf(list).x, listBefore.x);
  EXPECT_EQ(sizeOf(text).y, textBefore.y + 60);
  EXPECT_EQ(sizeOf(text).x, textBefore.x + 80);
  SetWindowPos(dialog_.window(), nullptr, 0, 0, 50, 50, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(sizeOf(dialog_.window()).x, whole.x);
  EXPECT_EQ(sizeOf(dialog_.window()).y, whole.y);
  EXPECT_EQ(sizeOf(text).y, textBefore.y);
}

TEST_F(NoteEditorWindow, disablesTheHalfOfTheDayIn24HourTime) {
  host_.format = HourFormat::Hours24;
  open();
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(IsWindowEnabled(control({AmPmCombo, i})));
}

// Typing.

TEST_F(NoteEditorWindow, lettersTypedIntoEveryNumberListVanish) {
  open();
  for (const EditorControl& list : controlsWithItems()) {
    if (!isNumberList(list)) continue;
    const HWND edit = editOf(control(list));
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

TEST_F(NoteEditorWindow, aNameLosesWhatItMayNotHoldAsItIsTypedOrPasted) {
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

TEST_F(NoteEditorWindow, makesANoteOfEachKind) {
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
  for (const NoteKind kind : kNoteKinds) press(cmdSave, kind);
  EXPECT_EQ(bytes(L"Gym.tx1"), "19|30|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx2"), "12|5|0|1|0|0|0|1|0|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx3"), "20|6|2|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.tx4"), "3|11|7|1|a\r\nb");
  EXPECT_EQ(bytes(L"Gym.txt"), "24|55|a\r\nb");
  for (const NoteKind kind : kNoteKinds) EXPECT_EQ(listed(kind), Names{L"Gym"});
  EXPECT_EQ(reporter_.messages, Names{});
}

TEST_F(NoteEditorWindow, readsRenamesDeletesAndSavesANoteAgain) {
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

TEST_F(NoteEditorWindow, keepsANoteThatIsRenamedInOtherLettersOnly) {
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

TEST_F(NoteEditorWindow, makesANoteWithAnEmptyNameAndOneWithEveryAllowedCharacter) {
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

TEST_F(NoteEditorWindow, aClickOnTheNameThatIsSelectedReadsItsNoteAgain) {
  folder_.write(L"notes/Gym.tx1", "7|30|text");
  open();
  clickName(NoteKind::Daily, 0);
  write(controlOf(Zawartosc, NoteKind::Daily), L"spoilt");
  clickName(NoteKind::Daily, 0);
  EXPECT_EQ(textOf(control(controlOf(Zawartosc, NoteKind::Daily))), L"text");
}

TEST_F(NoteEditorWindow, aLongTextIsTakenWholeAndRefusedOnlyWhenItIsSaved) {
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

TEST_F(NoteEditorWindow, aFileThatAnotherProgramHoldsIsNamedAndNothingIsLost) {
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

// Questions.

TEST_F(NoteEditorWindow, asksBeforeItSavesANoteWithoutAnAlarm) {
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

TEST_F(NoteEditorWindow, refusesANoteThatIsTooLarge) {
  folder_.write(L"notes/big.tx1", std::string(32768, 'x'));
  open();
  Answering ok(L"Error!", IDOK);
  clickName(NoteKind::Daily, 0);
  ok.wait();
  EXPECT_EQ(ok.text, L"The file is too large to open!");
  EXPECT_EQ(textOf(control(controlOf(FName, NoteKind::Daily))), L"");
}

// Keys.

TEST_F(NoteEditorWindow, ctrlTabGoesThroughTheTabsAndWraps) {
  open();
  hold(VK_CONTROL, true);
  for (const NoteKind kind :
       {NoteKind::Weekly, NoteKind::Monthly, NoteKind::Yearly, NoteKind::Fast, NoteKind::Daily}) {
    key(GetFocus(), VK_TAB);
    for (const NoteKind other : kNoteKinds) {
      EXPECT_EQ(IsWindowVisible(page(other)) != FALSE, other == kind);
    }
    // The keyboard goes along with the page.
    EXPECT_EQ(GetFocus(), control(controlOf(File_list_box, kind)));
  }
  hold(VK_CONTROL, false);
}

TEST_F(NoteEditorWindow, theTabKeyComesByEveryControlAndBack) {
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
    // List, name, text, three buttons, Close and the tabs, beside what the kind has of its own.
    const std::map<NoteKind, std::size_t> expected = {{NoteKind::Daily, 11},
                                                      {NoteKind::Weekly, 18},
                                                      {NoteKind::Monthly, 11},
                                                      {NoteKind::Yearly, 12},
                                                      {NoteKind::Fast, 11}};
    EXPECT_EQ(visited.size(), expected.at(kind));
    EXPECT_EQ(visited.back(), GetDlgItem(dialog_.window(), IDC_TBSOPTIONS));
  }
}

TEST_F(NoteEditorWindow, comingToTheTextWithTheTabKeySelectsNothing) {
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

TEST_F(NoteEditorWindow, enterDestroysNothing) {
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

TEST_F(NoteEditorWindow, escClosesFromEveryControl) {
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

// Opening and closing.

TEST_F(NoteEditorWindow, closesByItsButtonAndByTheClosingBox) {
  open();
  SendMessageW(GetDlgItem(dialog_.window(), IDC_CMDOK), BM_CLICK, 0, 0);
  EXPECT_EQ(dialog_.window(), nullptr);
  open();
  SendMessageW(dialog_.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  pump();
  EXPECT_EQ(dialog_.window(), nullptr);
  EXPECT_EQ(host_.calls.size(), 4U);
}

TEST_F(NoteEditorWindow, openedAgainItStaysAsItIs) {
  open();
  const HWND window = dialog_.window();
  write(controlOf(FName, NoteKind::Daily), L"typed");
  form_.tbsOptions_Click(NoteKind::Fast);
  open();
  EXPECT_EQ(dialog_.window(), window);
  EXPECT_EQ(form_.tab(), NoteKind::Fast);
  EXPECT_EQ(textOf(control(controlOf(FName, NoteKind::Daily))), L"typed");
}

TEST_F(NoteEditorWindow, endsWithItsOwner) {
  const HWND owner = CreateWindowExW(0, L"Static", L"owner", WS_POPUP, 0, 0, 10, 10, nullptr,
                                     nullptr, GetModuleHandleW(nullptr), nullptr);
  dialog_.open(owner);
  DestroyWindow(owner);
  EXPECT_EQ(dialog_.window(), nullptr);
  pump();
  open();
  EXPECT_NE(dialog_.window(), nullptr);
}

TEST_F(NoteEditorWindow, openingItAgainAndAgainLeavesNothingBehind) {
  open();
  dialog_.unload();
  const int handles = liveHandles();
  const DWORD gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  for (int i = 0; i < 30; ++i) {
    open();
    dialog_.unload();
  }
  EXPECT_EQ(liveHandles(), handles);
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), gdi + 2);
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), user + 2);
}

TEST_F(NoteEditorWindow, opensWith5000NotesWithinASecond) {
  for (int i = 0; i < 5000; ++i) {
    const std::filesystem::path note = notes_ / (L"Note " + std::to_wstring(i) + L".tx1");
    const UniqueFile file(
        CreateFileW(note.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  }
  const auto start = std::chrono::steady_clock::now();
  open();
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(
                                std::chrono::steady_clock::now() - start)
                                .count();
  EXPECT_EQ(listed(NoteKind::Daily).size(), 5000U);
  RecordProperty("milliseconds", static_cast<int>(milliseconds));
  std::printf("5000 notes: %d ms\n", static_cast<int>(milliseconds));
  EXPECT_LT(milliseconds, 1000);
}

}  // namespace
}  // namespace kalvora
