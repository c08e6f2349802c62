#include "win32/options/SoundFileDialog.h"

// commdlg.h needs windows.h before it.
#include <commdlg.h>
#include <dlgs.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "TestWindow.h"
#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

constexpr UINT kLookInterval = 50;  // milliseconds
constexpr int kPatience = 100;      // looks
constexpr const wchar_t* kFilter = L"Wave files (*.wav)|*.wav";

/// The system's dialog waits for the user, so a timer in its own loop is the user.
class SoundFileDialogTest : public testing::Test {
 protected:
  /// `deed` is done to each window in front that was not seen before: the dialog, and its messages.
  std::wstring pick(const std::function<void(HWND)>& deed) {
    deed_ = deed;
    seen_.clear();
    looks_ = 0;
    owner_ = window_.handle();
    const UINT_PTR timer = SetTimer(nullptr, 0, kLookInterval, look);
    std::wstring picked = pickFileToOpen(window_.handle(), kFilter, folder_.path());
    KillTimer(nullptr, timer);
    return picked;
  }

  static HWND nameBox(HWND dialog) {
    const HWND list = GetDlgItem(dialog, cmb13);
    return list != nullptr ? list : GetDlgItem(dialog, edt1);
  }
  static bool isDialog(HWND window) { return nameBox(window) != nullptr; }
  static void enter(HWND dialog, const wchar_t* name) {
    SetWindowTextW(nameBox(dialog), name);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  }
  static void answer(HWND window, WPARAM button) { PostMessageW(window, WM_COMMAND, button, 0); }

  TempFolder folder_;
  TestWindow window_;

 private:
  static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) {
    const HWND front = GetLastActivePopup(owner_);
    if (front != owner_ && IsWindowVisible(front) && seen_.insert(front).second) deed_(front);
    // What the deed should have ended stands open still.
    if (++looks_ > kPatience) answer(front, IDCANCEL);
  }

  static inline std::function<void(HWND)> deed_;
  static inline std::set<HWND> seen_;
  static inline int looks_ = 0;
  static inline HWND owner_ = nullptr;
};

TEST_F(SoundFileDialogTest, beginsInItsFolder) {
  const auto file = folder_.write(L"ring.wav", "a sound");
  EXPECT_EQ(pick([](HWND dialog) { enter(dialog, L"ring.wav"); }), file.native());
}

TEST_F(SoundFileDialogTest, whatIsCancelledIsNothing) {
  folder_.write(L"ring.wav", "a sound");
  int dialogs = 0;
  const std::wstring picked = pick([&](HWND dialog) {
    ++dialogs;
    answer(dialog, IDCANCEL);
  });
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(picked, L"");
}

TEST_F(SoundFileDialogTest, aFileThatThereIsNotIsNotTaken) {
  HWND chooser = nullptr;
  int messages = 0;
  const std::wstring picked = pick([&](HWND window) {
    if (isDialog(window)) {
      chooser = window;
      enter(window, L"none.wav");
      return;
    }
    ++messages;
    answer(window, IDOK);
    answer(chooser, IDCANCEL);
  });
  EXPECT_EQ(messages, 1);
  EXPECT_EQ(picked, L"");
}

TEST_F(SoundFileDialogTest, offersTheKindOfFileAndNoMore) {
  std::vector<std::wstring> kinds;
  pick([&](HWND dialog) {
    const HWND list = GetDlgItem(dialog, cmb1);
    const auto count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
      wchar_t text[80] = {};
      SendMessageW(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
      kinds.emplace_back(text);
    }
    answer(dialog, IDCANCEL);
  });
  EXPECT_EQ(kinds, std::vector<std::wstring>{L"Wave files (*.wav)"});
}

TEST_F(SoundFileDialogTest, theFolderOfTheProgramStaysTheCurrentOne) {
  const auto file = folder_.write(L"ring.wav", "a sound");
  const auto before = std::filesystem::current_path();
  EXPECT_EQ(pick([](HWND dialog) { enter(dialog, L"ring.wav"); }), file.native());
  EXPECT_EQ(std::filesystem::current_path(), before);
}

}  // namespace
}  // namespace kalvora
