#pragma once

#include <windows.h>

#include <filesystem>
#include <utility>

#include "app/Config_file.h"
#include "app/Form1.h"
#include "fakes/FakeOtherWindows.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeReporter.h"
#include "fakes/MemorySettingsStore.h"
#include "win32/main/MainWindow.h"
#include "win32/platform/PlatformProfileReader.h"
#include "win32/platform/SystemClock.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsFileWriter.h"

namespace kalvora {

/// The program in this process, with its real window, files and skins. Its settings are in memory,
/// and what it would say, sound or show in the tray is only recorded.
class ProgramInProcess {
 public:
  /// `folder` stands for the one the program lies in.
  explicit ProgramInProcess(const std::filesystem::path& folder)
      : copies_(folder / L"backup", files_, writer_, clock_, [this] { return form_.noteKinds(); }),
        form_({guard_, files_, writer_, store_, skinValues_, codePage_, clock_, dateTexts_, window_,
               tray_, sounds_, ProgramFolders(folder), copies_, otherWindows_}) {
    window_.takeEvents();
  }

  Form1& form() { return form_; }
  const Form1& form() const { return form_; }
  MainWindow& window() { return window_; }
  MemorySettingsStore& store() { return store_; }
  const FakeReporter& reporter() const { return reporter_; }

  /// As at the start of the program.
  void load() {
    deliver([this] { form_.Form_Load(); });
  }

  /// Wears the skin of the settings, which also brings the window out.
  void reskin() {
    deliver([this] { form_.Load_skin_to_form(SkinChange::WhileRunning); });
    tick(TimerId::Timer1);
  }

  void tick(TimerId timer) {
    deliver([&] { form_.timerTick(timer); });
  }

  /// One event, and the painting that it brings.
  template <typename Handler>
  void deliver(Handler&& handler) {
    window_.deliver(std::forward<Handler>(handler));
    MSG message{};
    while (nextMessage(message)) DispatchMessageW(&message);
  }

  static bool visible() {
    return IsWindowVisible(FindWindowW(L"KalvoraMain", L"Kalvora")) != FALSE;
  }

 private:
  /// Whatever waits but the ticks of the window's timers: on a busy machine one more would come.
  static bool nextMessage(MSG& message) {
    return PeekMessageW(&message, nullptr, 0, WM_TIMER - 1, PM_REMOVE) ||
           PeekMessageW(&message, nullptr, WM_TIMER + 1, 0xFFFF, PM_REMOVE);
  }

  FakeReporter reporter_;
  EventGuard guard_{reporter_};
  WindowsFileSystem files_;
  WindowsFileWriter writer_;
  MemorySettingsStore store_;
  PlatformProfileReader profiles_;
  SystemCodePage codePage_;
  Config_file skinValues_{profiles_, codePage_};
  SystemClock clock_;
  FakeDateTexts dateTexts_;
  FakeTrayIcon tray_;
  FakeSounds sounds_;
  SafetyCopies copies_;
  FakeOtherWindows otherWindows_;
  MainWindow window_{guard_, form_};
  Form1 form_;
};

}  // namespace kalvora
