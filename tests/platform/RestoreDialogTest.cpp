// The list of safety copies, and the button of the note editor that opens it.

#include "platform/NoteEditorWindow.h"

namespace kalvora {
namespace {

using enum ControlArray;

/// Looks at the list of copies from another thread while it stands open, acts in it, and takes it
/// away if that did not.
class InRestoreDialog {
 public:
  template <typename Act>
  explicit InRestoreDialog(Act act)
      : thread_([this, act] {
          for (int i = 0; i < 400 && dialog_ == nullptr; ++i, Sleep(25)) {
            const HWND found = FindWindowW(L"#32770", L"Restore a Note");
            if (found != nullptr && IsWindowVisible(found)) dialog_ = found;
          }
          if (dialog_ == nullptr) return;
          wasOpen = true;
          act(dialog_);
          for (int i = 0; i < 80 && IsWindow(dialog_); ++i) Sleep(25);
          stayedOpen = IsWindow(dialog_) != FALSE;
          if (stayedOpen) PostMessageW(dialog_, WM_COMMAND, IDCANCEL, 0);
        }) {}
  ~InRestoreDialog() { wait(); }
  InRestoreDialog(const InRestoreDialog&) = delete;
  InRestoreDialog& operator=(const InRestoreDialog&) = delete;

  void wait() {
    if (thread_.joinable()) thread_.join();
  }

  bool wasOpen = false;
  bool stayedOpen = false;

 private:
  HWND dialog_ = nullptr;
  std::thread thread_;
};

void pressKey(HWND dialog, WPARAM key) {
  PostMessageW(GetDlgItem(dialog, IDC_COPIES), WM_KEYDOWN, key, 1);
}

class RestoreDialogTest : public NoteEditorWindow {
 protected:
  void deleteNote(const wchar_t* name, const char* content) {
    folder_.write(notes_ / name, content);
    writer_.remove(notes_ / name);
    ++clock_.time.minute;
  }
  /// Presses Restore… and does this in the list; afterwards the list must have gone by itself.
  template <typename Act>
  void restore(Act act) {
    InRestoreDialog dialog(act);
    SendMessageW(GetDlgItem(dialog_.window(), IDC_CMDRESTORE), BM_CLICK, 0, 0);
    dialog.wait();
    pump();
    EXPECT_TRUE(dialog.wasOpen);
    EXPECT_FALSE(dialog.stayedOpen);
  }
};

TEST_F(RestoreDialogTest, enterBringsTheNewestCopyBack) {
  deleteNote(L"Swim.tx1", "8|15|old");
  deleteNote(L"Gym.tx1", "7|30|newest");
  open();
  restore([](HWND dialog) { pressKey(dialog, VK_RETURN); });
  EXPECT_EQ(fileNames(), Names{L"Gym.tx1"});
  EXPECT_EQ(bytes(L"Gym.tx1"), "7|30|newest");
  EXPECT_EQ(listed(NoteKind::Daily), Names{L"Gym"});
  EXPECT_TRUE(reporter_.messages.empty());
}

TEST_F(RestoreDialogTest, theArrowKeysChooseAnother) {
  deleteNote(L"Swim.tx2", "8|15|0|0|0|0|0|0|0|old");
  deleteNote(L"Gym.tx1", "7|30|newest");
  open();
  restore([](HWND dialog) {
    pressKey(dialog, VK_DOWN);
    pressKey(dialog, VK_RETURN);
  });
  EXPECT_EQ(fileNames(), Names{L"Swim.tx2"});
  EXPECT_EQ(pageInFront(), NoteKind::Weekly);
}

TEST_F(RestoreDialogTest, escChangesNothingAndTheEditorStaysOpen) {
  deleteNote(L"Gym.tx1", "7|30|old");
  open();
  restore([](HWND dialog) { pressKey(dialog, VK_ESCAPE); });
  EXPECT_EQ(fileNames(), Names{});
  EXPECT_NE(dialog_.window(), nullptr);
}

TEST_F(RestoreDialogTest, aBareLetterPressesNoButton) {
  deleteNote(L"Gym.tx1", "7|30|old");
  open();
  restore([](HWND dialog) {
    PostMessageW(GetDlgItem(dialog, IDCANCEL), WM_CHAR, L'r', 1);
    PostMessageW(GetDlgItem(dialog, IDCANCEL), WM_KEYDOWN, VK_ESCAPE, 1);
  });
  EXPECT_EQ(fileNames(), Names{});
}

TEST_F(RestoreDialogTest, withoutACopyThereIsNothingToRestore) {
  open();
  restore([](HWND dialog) {
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    EXPECT_EQ(textOf(GetDlgItem(dialog, IDC_COPIES_LABEL)),
              L"There are none yet: nothing was changed, deleted or left unsaved so far.");
    EXPECT_EQ(textOf(GetDlgItem(dialog, IDC_COPY_TEXT)), L"");
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
}

TEST_F(RestoreDialogTest, everyCopyIsListedWithRoomForItsTexts) {
  deleteNote(L"Water the plants.tx1", "7|30|old");
  deleteNote(L"Yoga class.tx2", "8|15|0|0|0|0|0|0|0|old");
  open();
  restore([](HWND dialog) {
    const HWND list = GetDlgItem(dialog, IDC_COPIES);
    EXPECT_EQ(ListView_GetItemCount(list), 2);
    int width = 0;
    const Names first = {L"Yoga class", L"Weakly"};
    for (int column = 0; column < 3; ++column) {
      wchar_t text[64] = L"";
      LVITEMW item{};
      item.iSubItem = column;
      item.pszText = text;
      item.cchTextMax = 64;
      SendMessageW(list, LVM_GETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&item));
      if (column < 2) {
        EXPECT_EQ(text, first[static_cast<std::size_t>(column)]);
      }
      EXPECT_STRNE(text, L"");
      EXPECT_GT(ListView_GetColumnWidth(list, column),
                SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
      width += ListView_GetColumnWidth(list, column);
    }
    RECT inside{};
    GetClientRect(list, &inside);
    EXPECT_LE(width, inside.right);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
}

TEST_F(RestoreDialogTest, theEditorThatGoesAwayMeanwhileTakesTheListWithIt) {
  deleteNote(L"Gym.tx1", "7|30|old");
  open();
  const HWND editor = dialog_.window();
  restore([editor](HWND) { PostMessageW(editor, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(dialog_.window(), nullptr);
  EXPECT_EQ(fileNames(), Names{});
  EXPECT_TRUE(reporter_.messages.empty());
}

TEST_F(RestoreDialogTest, theWholeTextOfWhatIsPickedIsShownAndCannotBeChanged) {
  const std::string longText(40000, 'x');
  deleteNote(L"Swim.tx1", ("8|15|old|er\r\n" + longText).c_str());
  deleteNote(L"Gym.tx1", "7|30|newest");
  open();
  restore([longText](HWND dialog) {
    const HWND text = GetDlgItem(dialog, IDC_COPY_TEXT);
    EXPECT_EQ(textOf(text), L"newest");
    EXPECT_EQ(textOf(GetDlgItem(dialog, IDC_COPY_WHEN)), L"Reminder: at 7:30");
    EXPECT_NE(GetWindowLongPtrW(text, GWL_STYLE) & ES_READONLY, 0);
    pressKey(dialog, VK_DOWN);
    for (int i = 0; i < 400 && textOf(text) == L"newest"; ++i) Sleep(25);
    EXPECT_EQ(textOf(text), L"old|er\r\n" + std::wstring(longText.begin(), longText.end()));
    EXPECT_EQ(textOf(GetDlgItem(dialog, IDC_COPY_WHEN)), L"Reminder: at 8:15");
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
}

TEST_F(RestoreDialogTest, aDraftIsNamedSoAndItsLettersAreShown) {
  open();
  write(controlOf(ControlArray::FName, NoteKind::Daily), L"Gym");
  write(controlOf(ControlArray::Zawartosc, NoteKind::Daily), L"\u65E5 typed");
  press(ControlArray::cmdNew, NoteKind::Daily);
  restore([](HWND dialog) {
    wchar_t name[64] = L"";
    LVITEMW item{};
    item.pszText = name;
    item.cchTextMax = 64;
    SendMessageW(GetDlgItem(dialog, IDC_COPIES), LVM_GETITEMTEXTW, 0,
                 reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(name, L"Gym (draft)");
    EXPECT_EQ(textOf(GetDlgItem(dialog, IDC_COPY_TEXT)), L"\u65E5 typed");
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
}

TEST_F(RestoreDialogTest, aLargerWindowGivesItsRoomToTheText) {
  deleteNote(L"Gym.tx1", "7|30|old");
  open();
  restore([](HWND dialog) {
    const auto placeOf = [](HWND window) {
      RECT place{};
      GetWindowRect(window, &place);
      return place;
    };
    const HWND text = GetDlgItem(dialog, IDC_COPY_TEXT);
    const RECT before = placeOf(text);
    const RECT window = placeOf(dialog);
    SetWindowPos(dialog, nullptr, 0, 0, window.right - window.left + 100,
                 window.bottom - window.top + 80, SWP_NOMOVE | SWP_NOZORDER);
    const RECT after = placeOf(text);
    EXPECT_EQ(after.right - after.left, before.right - before.left + 100);
    EXPECT_EQ(after.bottom - after.top, before.bottom - before.top + 80);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
}

TEST_F(RestoreDialogTest, openingItAgainAndAgainLeavesNothingBehind) {
  deleteNote(L"Gym.tx1", "7|30|old");
  open();
  const auto cancel = [](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); };
  restore(cancel);
  const DWORD gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  for (int i = 0; i < 10; ++i) restore(cancel);
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), gdi + 2);
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), user + 2);
}

}  // namespace
}  // namespace kalvora
