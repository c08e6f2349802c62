#include "app/HomePlace.h"

#include <string>
#include <utility>

#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kTitle = L"Kalvora";
constexpr int kRightMargin = 20;

std::wstring messageOf(Point lost) {
  return L"The main window's place, " + numberToText(lost.x) + L" pixels from the left and " +
         numberToText(lost.y) +
         L" from the top, is on none of the monitors that are there now. So the window comes out "
         L"at the right edge of the screen.\r\n\r\nTo have it elsewhere, drag it there, or open "
         L"the options and choose \"Set Window Position\".";
}

}  // namespace

Rect HomePlace::of(Size window) const {
  return {settings_.Window_X, settings_.Window_Y, window.width, window.height};
}

void HomePlace::findOnDesktop(Size seen, Size whole) {
  const Desktop desktop = view_.desktop();
  if (desktop.shows(of(seen))) return;
  const Point before{settings_.Window_X, settings_.Window_Y};
  setComputedPlace({desktop.primary().size(), whole}, settings_);
  // A further one before the message is but a consequence of the first.
  if (!lost_) lost_ = before;
}

bool HomePlace::tooFarRight(Size window) const {
  const Rect home = of(window);
  const Desktop desktop = view_.desktop();
  return desktop.shows(home) && home.right() > desktop.monitorOf(home).right() - kRightMargin;
}

void HomePlace::putFlush(Size before, int width) {
  settings_.Window_X = toInt16(view_.desktop().monitorOf(of(before)).right() - width);
}

void HomePlace::tellIfLost() {
  if (const std::optional<Point> lost = std::exchange(lost_, std::nullopt)) {
    view_.showError(kTitle, messageOf(*lost));
  }
}

}  // namespace kalvora
