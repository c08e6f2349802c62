#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeOptionsHost.h"
#include "fakes/FakeReporter.h"
#include "fakes/TempFolder.h"
#include "win32/options/OptionsDialog.h"
#include "win32/options/OptionsIds.h"
#include "win32/platform/WindowsFileSystem.h"

namespace kalvora {

/// The dialog with its presenter, on a fake main window and a folder of its own.
class OptionsDialogTest : public testing::Test {
 protected:
  OptionsDialogTest() {
    folder.write("skins/Alpha/config.ini", "");
    folder.write("skins/Beta/config.ini", "");
    folder.write("icons/one.ico", "no icon");
    options.open();
  }

  HWND box(OptionsPage page, int id) const {
    for (HWND child = GetWindow(dialog.window(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      if (HWND found = GetDlgItem(child, id)) return found;
    }
    ADD_FAILURE() << "no control " << id << " on page " << static_cast<int>(page);
    return nullptr;
  }
  HWND winPos(int item) const { return box(OptionsPage::SetWindowPosition, IDC_WINPOS + item); }
  void click(int button) { SendMessageW(dialog.window(), WM_COMMAND, MAKEWPARAM(button, 0), 0); }
  static void type(HWND edit, const wchar_t* text) {
    SendMessageW(edit, EM_SETSEL, 0, -1);
    for (; *text != 0; ++text) SendMessageW(edit, WM_CHAR, static_cast<WPARAM>(*text), 1);
  }

  TempFolder folder;
  WindowsFileSystem files;
  FakeOptionsHost host;
  FakeReporter reports;
  EventGuard guard{reports};
  EventDelivery deliver{guard};
  ModelessDialogs dialogs;
  OptionsDialog dialog{nullptr, dialogs, deliver, options};
  Options options{files, ProgramFolders(folder.path()), host, dialog};
};

}  // namespace kalvora
