#pragma once

#include <windows.h>

#include <memory>
#include <set>

#include "unit/app/Form1Fixture.h"
#include "win32/main/MainWindow.h"

namespace kalvora {

/// The main window, whose slide and roll move on when the test says so, on a desktop of its own.
class SteppedWindow : public MainWindow {
 public:
  using MainWindow::MainWindow;
  void startTimer(TimerId timer, int /*interval*/) override { running.insert(timer); }
  void stopTimer(TimerId timer) override { running.erase(timer); }
  Desktop desktop() const override { return Desktop(screen); }
  /// Kept, for the platform may still report a place that the window had during the slide.
  void setPlace(const Rect& place) override {
    lastPlace = place;
    MainWindow::setPlace(place);
  }
  void showError(std::wstring_view /*title*/, std::wstring_view text) override {
    errors.emplace_back(text);
  }

  std::set<TimerId> running;
  Size screen{1024, 768};
  Rect lastPlace;
  std::vector<std::wstring> errors;
};

/// The real main window with the small skin and two notes, out on the screen.
class SteppedMainWindow : public Form1Test {
 protected:
  SteppedMainWindow() {
    note("a.txt", "7|30|Alpha");
    note("b.txt", "||Bravo");
    window_->takeEvents();
    window_->deliver([this] { form_.Form_Load(); });
    window_->deliver([this] { form_.Nastepny_Load_Formy(); });
    settle();
    main_ = FindWindowW(L"KalvoraMain", nullptr);
  }

  static void pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      DispatchMessageW(&message);
    }
  }

  /// Until the window stands still.
  void settle() {
    for (const TimerId timer : {TimerId::Timer1, TimerId::Timer2}) {
      while (window_->running.contains(timer)) {
        window_->deliver([&] { form_.timerTick(timer); });
      }
    }
  }

  void rollUp() {
    window_->deliver([this] { form_.pressButton(ButtonId::Buttons_Down); });
    settle();
    ASSERT_TRUE(form_.window().fieldsHidden());
  }

  std::unique_ptr<SteppedWindow> window_ = std::make_unique<SteppedWindow>(guard, form_);
  Form1 form_{{guard, files, writer, store, skinValues, codePage, clock, dateTexts, *window_, tray,
               sounds, ProgramFolders(folder.path()), copies, others}};
  HWND main_ = nullptr;
};

}  // namespace kalvora
