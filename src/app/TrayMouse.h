#pragma once

#include "app/Form1View.h"
#include "app/WindowMotion.h"

namespace kalvora {

/// What the mouse on the tray icon can make the program do.
class TrayActions {
 public:
  virtual ~TrayActions() = default;
  /// Brings out a window that is away, or a reminder that waits.
  virtual void bringOutFromTray() = 0;
  /// The same, or sends away a window that is out.
  virtual void toggleFromTray() = 0;
  virtual void openTrayMenu() = 0;
};

/// The mouse on the tray icon: tells a single click from a double click.
class TrayMouse {
 public:
  /// All must outlive this object.
  TrayMouse(Form1View& view, const WindowMotion& motion, TrayActions& actions)
      : view_(view), motion_(motion), actions_(actions) {}

  /// The tray icon's mouse message `message`. One that comes while another is handled is ignored.
  void pichook_MouseMove(int message);
  /// The tick of TrayClick: no second click came within the double-click time. Brings the window
  /// out; one that is on its way out has to be gone first, at a later tick.
  void clickStayedSingle();

 private:
  void press();

  Form1View& view_;
  const WindowMotion& motion_;
  TrayActions& actions_;
  bool running_ = false;  // a message is handled
};

}  // namespace kalvora
