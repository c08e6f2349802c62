#pragma once

#include <optional>

#include "app/Form1View.h"
#include "app/Settings.h"

namespace kalvora {

/// Where the main window belongs when it is out: the place of the settings, held against the
/// monitors of now. All in pixels.
class HomePlace {
 public:
  /// Both must outlive this object.
  HomePlace(Form1View& view, Settings& settings) : view_(view), settings_(settings) {}

  /// Where a window of this size stands at home.
  Rect of(Size window) const;
  /// A home at which no monitor shows anything of a window of the size `seen` gives way to the
  /// computed one, flush with the primary monitor's right edge and centred for the size `whole`.
  /// Shows nothing: tellIfLost() does, when nothing can wait for its message any more.
  void findOnDesktop(Size seen, Size whole);
  /// Whether the window stands closer than 20 pixels to the right edge of its monitor, or beyond
  /// it.
  bool tooFarRight(Size window) const;
  /// Puts a window flush with the right edge of the monitor that a window of the size `before` was
  /// on. Throws OverflowError where that is beyond 16 bits.
  void putFlush(Size before, int width);
  /// Tells the user, once, of a home that was given up.
  void tellIfLost();

 private:
  Form1View& view_;
  Settings& settings_;
  std::optional<Point> lost_;  // not told yet
};

}  // namespace kalvora
