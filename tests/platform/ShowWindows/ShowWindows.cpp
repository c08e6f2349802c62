// Shows a window of the program alone, to look at it:
//   show-windows PROGRAM_FOLDER menu
//   show-windows PROGRAM_FOLDER about
//   show-windows PROGRAM_FOLDER options
// Settings are in memory only; the skins and icons are those of the program folder.

#include <windows.h>
// shellapi.h needs windows.h before it.
#include <shellapi.h>

#include <string>

#include "app/Config_file.h"
#include "app/MainWindowOptions.h"
#include "base/EventGuard.h"
#include "notes/Menu_N.h"
#include "notes/frmAbout.h"
#include "options/Options.h"
#include "win32/about/AboutWindow.h"
#include "win32/main/MainWindow.h"
#include "win32/main/MenuWindow.h"
#include "win32/options/OptionsDialog.h"
#include "win32/platform/HiddenCommand.h"
#include "win32/platform/PlatformDateTexts.h"
#include "win32/platform/PlatformProfileReader.h"
#include "win32/platform/SystemClock.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WaveSound.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsFileWriter.h"
#include "win32/toolkit/MessageBoxes.h"

namespace kalvora {
namespace {

class NoStore : public SettingsStore {
 public:
  std::wstring get(std::wstring_view, std::wstring_view, std::wstring_view text) const override {
    return std::wstring(text);
  }
  void save(std::wstring_view, std::wstring_view, std::wstring_view) override {}
};

class NoTray : public TrayIcon {
 public:
  void setPicture(const std::filesystem::path&) override {}
  void add() override {}
  void remove() override {}
};

class Program : public OptionsActions, public Menu_NHost {
 public:
  bool windowShown() const override { return true; }
  Size fullWindowSize() const override { return {320, 360}; }
  void wearCurrentSkin() override {}
  void Update_Icon_on_task() override {}
  void showAllNotes_frm() override {}
  void showOptions() override { options->open(); }
  void showFrmAbout() override { about->open(); }
  void Koniec_Kalvora() override { PostQuitMessage(0); }

  Options* options = nullptr;
  frmAbout* about = nullptr;
};

int show(const std::filesystem::path& folder, const std::wstring& what) {
  MessageBoxReporter reporter;
  EventGuard guard(reporter);
  WindowsFileSystem files;
  WindowsFileWriter writer;
  NoStore store;
  SystemCodePage codePage;
  PlatformProfileReader profiles;
  Config_file skinValues(profiles, codePage);
  SystemClock clock;
  PlatformDateTexts dateTexts;
  WaveSound sounds;
  NoTray tray;
  MainWindow window(guard);
  window.setPlace({620, 330, 320, 360});
  Form1Ports ports{files,     writer, store, skinValues, codePage, clock,
                   dateTexts, window, tray,  sounds,     folder};
  Settings settings;
  settings.Window_X = 620;
  settings.Window_Y = 330;
  const HWND owner = FindWindowW(L"KalvoraMain", nullptr);
  const EventDelivery deliver = [&](const std::function<void()>& handler) { guard.run(handler); };
  ModelessDialogs dialogs;
  Program program;
  MainWindowOptions host(ports, settings, program);
  OptionsDialog optionsDialog(owner, dialogs, deliver);
  Options options(files, folder, host, optionsDialog);
  optionsDialog.attach(options);
  HiddenCommand shell;
  AboutWindow aboutWindow(owner, dialogs, deliver);
  frmAbout about(aboutWindow, shell, configuredWebAddresses());
  aboutWindow.attach(about);
  MenuWindow menuWindow(owner, deliver);
  Menu_N menu(menuWindow, program);
  menuWindow.attach(menu);
  program.options = &options;
  program.about = &about;
  if (what == L"menu") guard.run([&] { menu.open(); });
  if (what == L"about") guard.run([&] { about.open(); });
  if (what == L"options") guard.run([&] { options.open(); });
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

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  int count = 0;
  LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  const int code = count == 3 ? kalvora::show(arguments[1], arguments[2]) : 2;
  LocalFree(arguments);
  return code;
}
