#include "app/TrayMouse.h"

namespace kalvora {

namespace {

// What the platform calls the tray icon's mouse messages.
constexpr int kLeftButtonDown = 513;
constexpr int kLeftDoubleClick = 515;
constexpr int kRightButtonDown = 516;

/// Holds a flag for the time of a block.
class FlagHeld {
 public:
  explicit FlagHeld(bool& flag) : flag_(flag) { flag_ = true; }
  ~FlagHeld() { flag_ = false; }
  FlagHeld(const FlagHeld&) = delete;
  FlagHeld& operator=(const FlagHeld&) = delete;

 private:
  bool& flag_;
};

}  // namespace

void TrayMouse::pichook_MouseMove(int message) {
  if (running_) return;
  const FlagHeld held(running_);
  switch (message) {
    case kLeftButtonDown:
      press();
      break;
    case kLeftDoubleClick:
      view_.stopTimer(TimerId::TrayClick);
      actions_.toggleFromTray();
      break;
    case kRightButtonDown:
      actions_.openTrayMenu();
      break;
    default:
      break;
  }
}

void TrayMouse::press() {
  const bool away = !motion_.shown() && !motion_.comingOut();
  // A second click that makes it a double click may follow, which has work of its own.
  if (away || motion_.goingAway()) {
    view_.startTimer(TimerId::TrayClick, view_.doubleClickTime());
  }
  if (!away) view_.show(Activation::TakeKeyboard);
}

void TrayMouse::clickStayedSingle() {
  // The timer ticks again: first the window has to be gone.
  if (motion_.goingAway()) return;
  view_.stopTimer(TimerId::TrayClick);
  if (running_ || motion_.shown() || motion_.comingOut()) return;
  const FlagHeld held(running_);
  actions_.bringOutFromTray();
}

}  // namespace kalvora
