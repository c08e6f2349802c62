#pragma once

#include "app/Form1View.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// The timers of the scrolling title, which are two of the main window's.
class TitleTimers : public ScrollTimers {
 public:
  /// `view` must outlive this object.
  explicit TitleTimers(Form1View& view) : view_(view) {}

  void startScrool(int milliseconds) override { view_.startTimer(TimerId::scrool, milliseconds); }
  void stopScrool() override { view_.stopTimer(TimerId::scrool); }
  void startPoczekaj(int milliseconds) override {
    view_.startTimer(TimerId::Poczekaj, milliseconds);
  }
  void stopPoczekaj() override { view_.stopTimer(TimerId::Poczekaj); }

 private:
  Form1View& view_;
};

}  // namespace kalvora
