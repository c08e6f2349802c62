#pragma once

#include <vector>

#include "base/Geometry.h"

namespace kalvora {

/// The monitors that are there now, in pixels of the screen. The top left corner of the primary
/// monitor is the origin; the others lie on any side of it.
class Desktop {
 public:
  /// `primary` first, then the others in any order.
  explicit Desktop(Size primary, const std::vector<Rect>& others = {});

  Rect primary() const { return monitors_.front(); }
  const std::vector<Rect>& monitors() const { return monitors_; }
  /// The smallest rectangle around all monitors.
  Rect bounds() const;
  /// Whether at least one pixel of `window` lies on a monitor.
  bool shows(const Rect& window) const;
  /// The monitor that `window` is on: the one that shows most of it, or else the nearest one.
  Rect monitorOf(const Rect& window) const;

 private:
  std::vector<Rect> monitors_;
};

}  // namespace kalvora
