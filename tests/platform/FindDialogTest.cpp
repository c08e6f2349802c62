#include "win32/find/FindDialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakeFindHost.h"
#include "fakes/FakeReporter.h"
#include "fakes/MemorySettingsStore.h"
#include "fakes/TempFolder.h"
#include "find/FindNotes.h"
#include "platform/NameForReaders.h"
#include "win32/find/FindIds.h"
#include "win32/platform/ComLibrary.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {
namespace {

/// The real window over a folder of its own.
class FindDialogTest : public testing::Test {
 protected:
  FindDialogTest() {
    std::filesystem::create_directory(notes_);
    folder_.write(notes_ / "Gym.tx1", "18|05|Mat and towel");
    folder_.write(notes_ / "Rent.tx3", "20|||Pay it");
    folder_.write(notes_ / "Swim.tx1", "19|05|Cap,\r\ntowel");
  }

  void open(const std::wstring& words = {}) {
    dialog_.open(words);
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
  HWND control(int id) const { return GetDlgItem(dialog_.window(), id); }
  HWND field() const { return control(IDC_FIND_WORDS); }
  HWND list() const { return control(IDC_FIND_ROWS); }
  int rows() const { return ListView_GetItemCount(list()); }
  int selected() const { return ListView_GetNextItem(list(), -1, LVNI_SELECTED); }
  std::wstring notice() const { return textOf(control(IDC_FIND_NOTICE)); }
  std::wstring cell(int row, FindColumn column) const {
    std::wstring text(300, L'\0');
    LVITEMW item{};
    item.iSubItem = static_cast<int>(column);
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    const auto length = SendMessageW(list(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                                     reinterpret_cast<LPARAM>(&item));
    text.resize(static_cast<std::size_t>(length));
    return text;
  }
  void type(const wchar_t* words) {
    SetWindowTextW(field(), words);
    pump();
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

  TempFolder folder_;
  std::filesystem::path notes_ = folder_.path() / L"notes";
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  ModelessDialogs dialogs_;
  WindowsFileSystem files_;
  SystemCodePage codePage_;
  MemorySettingsStore settings_;
  FakeFindHost host_;
  EventDelivery deliver_{guard_};
  FindDialog dialog_{nullptr, dialogs_, deliver_, form_};
  FindNotes form_{{{files_, codePage_, notes_}, settings_, dialog_, host_}};
};

TEST_F(FindDialogTest, findsAsOneTypes) {
  open();
  EXPECT_EQ(GetFocus(), field());
  EXPECT_EQ(rows(), 3);
  type(L"TOWEL");
  EXPECT_EQ(rows(), 2);
  EXPECT_EQ(cell(1, FindColumn::Name), L"Swim");
  EXPECT_EQ(cell(1, FindColumn::Kind), L"Daily");
  EXPECT_EQ(cell(1, FindColumn::Text), L"Cap, towel");
  EXPECT_EQ(notice(), L"2 notes.");
  type(L"towel rent");
  EXPECT_EQ(notice(), L"Nothing is found.");
}

TEST_F(FindDialogTest, opensWithWords) {
  open(L"pay");
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(textOf(field()), L"pay");
  const HWND window = dialog_.window();
  open(L"cap");
  EXPECT_EQ(dialog_.window(), window);
  EXPECT_EQ(cell(0, FindColumn::Name), L"Swim");
  open();
  EXPECT_EQ(textOf(field()), L"cap") << "without words what stands there stays";
  EXPECT_TRUE(reporter_.messages.empty());
}

TEST_F(FindDialogTest, enterInTheFieldOpensTheFirstRow) {
  open(L"towel");
  key(field(), VK_RETURN);
  EXPECT_EQ(host_.opened, std::vector<std::wstring>{L"Gym.tx1"});
  EXPECT_EQ(host_.places[0], (PlaceInNote{8, L"towel"}));
  type(L"nowhere");
  key(field(), VK_RETURN);
  EXPECT_EQ(host_.opened.size(), 1U);
}

TEST_F(FindDialogTest, theArrowsGoFromTheFieldToTheRowsAndBack) {
  open(L"towel");
  key(field(), VK_DOWN);
  EXPECT_EQ(GetFocus(), list());
  EXPECT_EQ(selected(), 0);
  key(list(), VK_DOWN);
  EXPECT_EQ(selected(), 1);
  key(list(), VK_RETURN);
  EXPECT_EQ(host_.opened, std::vector<std::wstring>{L"Swim.tx1"});
  key(list(), VK_UP);
  EXPECT_EQ(GetFocus(), list());
  key(list(), VK_UP);
  EXPECT_EQ(GetFocus(), field());
}

TEST_F(FindDialogTest, aLetterTypedInTheListSelectsNothing) {
  open(L"towel");
  key(field(), VK_DOWN);
  key(list(), VK_DOWN);
  SendMessageW(list(), WM_CHAR, L'q', 1);
  EXPECT_EQ(selected(), 1);
}

TEST_F(FindDialogTest, aClickOnARowOpensItsNote) {
  open(L"towel");
  RECT place{};
  ListView_GetItemRect(list(), 1, &place, LVIR_BOUNDS);
  const LPARAM point = MAKELPARAM(place.left + 5, place.top + 5);
  PostMessageW(list(), WM_LBUTTONDOWN, MK_LBUTTON, point);
  PostMessageW(list(), WM_LBUTTONUP, 0, point);
  pump();
  EXPECT_EQ(host_.opened, std::vector<std::wstring>{L"Swim.tx1"});
}

TEST_F(FindDialogTest, growsWithItsListAndKeepsItsSize) {
  open();
  RECT before{};
  RECT after{};
  GetWindowRect(list(), &before);
  const Size designed = dialog_.size();
  dialog_.setSize({designed.width + 60, designed.height + 40});
  GetWindowRect(list(), &after);
  EXPECT_EQ(after.right - after.left, before.right - before.left + 60);
  EXPECT_EQ(after.bottom - after.top, before.bottom - before.top + 40);
  key(field(), VK_ESCAPE);
  EXPECT_EQ(dialog_.window(), nullptr);
  open();
  EXPECT_EQ(dialog_.size(), (Size{designed.width + 60, designed.height + 40}));
}

TEST_F(FindDialogTest, fieldAndListHaveNamesForScreenReaders) {
  const ComApartment com;
  open();
  EXPECT_EQ(nameForReaders(field()), L"Words:");
  EXPECT_EQ(nameForReaders(list()), L"Notes");
}

}  // namespace
}  // namespace kalvora
