#include <windows.h>

#include <string>

#include "app/Config_file.h"
#include "app/Form1.h"
#include "base/Errors.h"
#include "base/EventGuard.h"
#include "notes/KeepingFileWriter.h"
#include "win32/ProgramWindows.h"
#include "win32/main/MainWindow.h"
#include "win32/main/ShellTrayIcon.h"
#include "win32/platform/PlatformDateTexts.h"
#include "win32/platform/PlatformProfileReader.h"
#include "win32/platform/RegistrySettingsStore.h"
#include "win32/platform/SystemClock.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WaveSound.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsFileWriter.h"
#include "win32/toolkit/MessageBoxes.h"

namespace kalvora {
namespace {

std::filesystem::path programFolder() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return std::filesystem::path(path).parent_path();
}

int runKalvora() {
  MessageBoxReporter reporter;
  EventGuard guard(reporter);
  WindowsFileSystem files;
  WindowsFileWriter disk;
  RegistrySettingsStore settings;
  SystemCodePage codePage;
  PlatformProfileReader profiles;
  Config_file skinValues(profiles, codePage);
  SystemClock clock;
  const std::filesystem::path folder = programFolder();
  SafetyCopies copies(folder / L"backup", files, disk, clock);
  KeepingFileWriter writer(folder / L"notes", disk, copies);
  PlatformDateTexts dateTexts;
  WaveSound sounds;
  ModelessDialogs dialogs;
  MainWindow window(guard);
  Form1* form = nullptr;
  ShellTrayIcon tray(
      guard, [&](int message) { window.deliver([&] { form->pichook_MouseMove(message); }); });
  const Form1Ports ports{guard,     files,  writer, settings, skinValues, codePage, clock,
                         dateTexts, window, tray,   sounds,   folder,     copies};
  Form1 form1(ports);
  ProgramWindows otherWindows(ports, window, form1, dialogs);
  form = &form1;
  form1.attach(otherWindows);
  window.attach(form1);
  window.deliver([&] { form1.Form_Load(); });
  if (!form1.started()) return 1;
  for (const wchar_t* name : {L"notes", L"backup"}) disk.removeLeftovers(files, folder / name);
  window.deliver([&] { form1.tellUnreadableSettings(); });
  return window.runMessageLoop(dialogs);
}

}  // namespace
}  // namespace kalvora

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*arguments*/,
                    int /*showCommand*/) {
  // What the system's own libraries load by name is not taken from beside the program either.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  int code = 1;
  kalvora::MessageBoxReporter reporter;
  kalvora::EventGuard(reporter).run([&] { code = kalvora::runKalvora(); });
  return code;
}
