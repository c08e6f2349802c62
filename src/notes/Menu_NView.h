#pragma once

#include "base/Geometry.h"
#include "base/Image.h"

namespace kalvora {

/// The popup menu window as the user sees it; an item is named by its number. All in pixels of the
/// screen.
class Menu_NView {
 public:
  virtual ~Menu_NView() = default;

  /// Makes the window, hidden. An open one is taken as it is.
  virtual void load() = 0;
  /// Ends it; harmless where it is not open.
  virtual void unload() = 0;
  virtual Size size() const = 0;
  /// Shows the window there, in front and with the keyboard.
  virtual void show(Point topLeft) = 0;
  virtual Rect place() const = 0;

  /// Where the mouse pointer is.
  virtual Point pointer() const = 0;
  /// The monitor that a point lies on.
  virtual Rect monitorAt(Point point) const = 0;

  /// The colour behind an item: its label Label1 and its strip Picture1.
  virtual void setBackColor(int item, Pixel color) = 0;

  /// Starts Timer1. Milliseconds.
  virtual void startTimer1(int interval) = 0;
  virtual void stopTimer1() = 0;
};

/// What the menu's items do.
class Menu_NHost {
 public:
  virtual ~Menu_NHost() = default;
  virtual void showAllNotes_frm() = 0;
  virtual void showOptions() = 0;
  virtual void showFrmAbout() = 0;
  virtual void Koniec_Kalvora() = 0;
};

}  // namespace kalvora
