#pragma once

#include "app/Form1View.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// The timers of the scrolling title, which are two of the main window's.
class TitleTimers : public ScrollTimers {
 public:
  /// `view` must outlive this object.
  explicit TitleTimers(Form1View& view) : view_(view) {}

  void startScrool() override { view_.startTimer(TimerId::scrool, kScroolInterval); }
  void stopScrool() override { view_.stopTimer(TimerId::scrool); }
  void startPoczekaj(int milliseconds) override {
    view_.startTimer(TimerId::Poczekaj, milliseconds);
  }
  void stopPoczekaj() override { view_.stopTimer(TimerId::Poczekaj); }

 private:
  static constexpr int kScroolInterval = 200;  // milliseconds

  Form1View& view_;
};

}  // namespace kalvora
