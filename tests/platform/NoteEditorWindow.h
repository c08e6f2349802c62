#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFollower.h"
#include "fakes/FakeReporter.h"
#include "fakes/TempFolder.h"
#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "win32/editor/EditNotesDialog.h"
#include "win32/editor/EditNotesIds.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsFileWriter.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {

using Names = std::vector<std::wstring>;

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

/// The real window of the note editor, over a folder of its own.
class NoteEditorWindow : public testing::Test {
 protected:
  NoteEditorWindow() { std::filesystem::create_directory(notes_); }

  void open() {
    dialog_.open();
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
    const HWND list =
        findControl(dialog_.window(), idOf(controlOf(ControlArray::File_list_box, kind)));
    return GetParent(list);
  }
  /// The kind whose tab is chosen.
  NoteKind pageInFront() const {
    const HWND tabs = GetDlgItem(dialog_.window(), IDC_TBSOPTIONS);
    return static_cast<NoteKind>(SendMessageW(tabs, TCM_GETCURSEL, 0, 0));
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
  void tick(int weekday) { SendMessageW(control({ControlArray::Check1, weekday}), BM_CLICK, 0, 0); }
  void press(ControlArray button, NoteKind kind) {
    SendMessageW(control(controlOf(button, kind)), BM_CLICK, 0, 0);
    pump();
  }
  void clickName(NoteKind kind, int position) {
    const HWND list = control(controlOf(ControlArray::File_list_box, kind));
    RECT item{};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(position),
                 reinterpret_cast<LPARAM>(&item));
    const LPARAM point = MAKELPARAM(item.left + 5, item.top + 5);
    SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageW(list, WM_LBUTTONUP, 0, point);
    pump();
  }
  Names listed(NoteKind kind) const {
    const HWND list = control(controlOf(ControlArray::File_list_box, kind));
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
  /// A letter as the message loop gets it after the key went down.
  void letter(HWND focused, wchar_t typed, UINT kind = WM_CHAR) {
    SetFocus(focused);
    MSG message{};
    message.hwnd = focused;
    message.message = kind;
    message.wParam = typed;
    message.lParam = kind == WM_SYSCHAR ? 0x20000001 : 1;
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
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  ModelessDialogs dialogs_;
  WindowsFileSystem files_;
  WindowsFileWriter disk_;
  SystemCodePage codePage_;
  FakeClock clock_;
  SafetyCopies copies_{folder_.path() / L"backup", files_, disk_, clock_,
                       [this] { return host_.kinds; }};
  FakeNoteFollower follower_;
  KeepingFileWriter writer_{notes_, disk_, copies_, follower_};
  FakeEditorHost host_;
  EventDelivery deliver_{guard_};
  EditNotesDialog dialog_{nullptr, dialogs_, deliver_, form_};
  All_Notes_frm form_{{files_, writer_, codePage_, dialog_, host_, notes_, copies_, clock_}};
};

}  // namespace kalvora
