// Opens the note editor alone over a folder of notes, to look at it and to try it by hand:
//   show-edit-notes.exe FOLDER [24]

#include <windows.h>

#include <shellapi.h>

#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "win32/editor/EditNotesDialog.h"
#include "win32/platform/SystemClock.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsFileWriter.h"
#include "win32/toolkit/MessageBoxes.h"

namespace kalvora {
namespace {

/// Ends the program when the editor is closed.
class AloneHost : public All_Notes_frmHost {
 public:
  explicit AloneHost(HourFormat format) : format_(format) {}
  HourFormat hourFormat() const override { return format_; }
  void Update_All_Al() override {}
  void showFirstNote() override { PostQuitMessage(0); }

 private:
  HourFormat format_;
};

int show(const std::filesystem::path& folder, HourFormat format) {
  MessageBoxReporter reporter;
  EventGuard guard(reporter);
  ModelessDialogs dialogs;
  EditNotesDialog dialog(guard, dialogs);
  WindowsFileSystem files;
  WindowsFileWriter disk;
  const SystemClock clock;
  SafetyCopies copies(folder.parent_path() / L"backup", files, disk, clock);
  KeepingFileWriter writer(folder, disk, copies);
  SystemCodePage codePage;
  AloneHost host(format);
  All_Notes_frm form({files, writer, codePage, dialog, host, folder, copies, clock});
  dialog.attach(form);
  if (!guard.run([&] { dialog.open(nullptr); })) return 1;
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (dialogs.takesMessage(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

}  // namespace
}  // namespace kalvora

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*arguments*/,
                    int /*showCommand*/) {
  int count = 0;
  wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  if (count < 2) return 2;
  return kalvora::show(arguments[1], kalvora::hourFormatOf(count == 2));
}
