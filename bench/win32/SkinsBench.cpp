// How long it takes to wear another skin, and to make a window's outline from its picture: the
// program's own code, with its real window. Prints the milliseconds of every repetition.
//
//   skins-bench FOLDER REPETITIONS     FOLDER holds "shape.bmp", and "skins" with one skin

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "app/Config_file.h"
#include "app/Form1.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeReporter.h"
#include "fakes/MemorySettingsStore.h"
#include "skin/WindowShape.h"
#include "win32/MainWindow.h"
#include "win32/PlatformProfileReader.h"
#include "win32/SystemClock.h"
#include "win32/SystemCodePage.h"
#include "win32/WindowRegion.h"
#include "win32/WindowsFileSystem.h"
#include "win32/WindowsFileWriter.h"

namespace kalvora {
namespace {

template <typename Work>
void printTimes(const char* name, int repetitions, Work&& work) {
  using Milliseconds = std::chrono::duration<double, std::milli>;
  work();  // fills the caches
  std::printf("%s", name);
  for (int i = 0; i < repetitions; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    std::printf(" %.4f", Milliseconds(std::chrono::steady_clock::now() - start).count());
  }
  std::printf("\n");
}

void paintWhatIsDue() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

/// The program in this process, its window on the screen.
class Program {
 public:
  explicit Program(const std::filesystem::path& folder)
      : form_({guard_, files_, writer_, store_, skinValues_, codePage_, clock_, dateTexts_, window_,
               tray_, sounds_, folder}) {
    store_.values[L"Graph/Win1_Jump"] = L"2000";
    window_.attach(form_);
    window_.deliver([this] { form_.Form_Load(); });
    finishSlide();
    reskin();  // which brings the window out
    requireWorn();
  }

  /// All that it takes until the window is painted anew.
  void reskin() {
    window_.deliver([this] { form_.Load_skin_to_form(SkinChange::WhileRunning); });
    paintWhatIsDue();
    finishSlide();
  }

  /// A program that complains, or is not to be seen, would be measured as a fast one.
  void requireWorn() const {
    const HWND window = FindWindowW(L"KalvoraMain", nullptr);
    const bool worn = form_.started() && reporter_.messages.empty() && IsWindowVisible(window);
    if (!worn) throw std::runtime_error("the skin is not worn");
  }

 private:
  void finishSlide() {
    window_.deliver([this] { form_.timerTick(TimerId::Timer1); });
    paintWhatIsDue();
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
  MainWindow window_{guard_};
  Form1 form_;
};

void run(const std::filesystem::path& folder, int repetitions) {
  const Picture shape = decodePicture(
      WindowsFileSystem().read(folder / "shape.bmp", static_cast<std::size_t>(kMaxPictureBytes)));
  printTimes("region", repetitions, [&] {
    if (!regionOf(*SkinShapeToRegion(shape))) std::abort();
  });
  Program program(folder);
  printTimes("reskin", repetitions, [&] { program.reskin(); });
  program.requireWorn();
}

}  // namespace
}  // namespace kalvora

int main(int count, char** arguments) {
  if (count != 3) return 2;
  kalvora::run(std::filesystem::absolute(arguments[1]), std::atoi(arguments[2]));
}
