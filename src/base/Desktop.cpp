#include "base/Desktop.h"

#include <algorithm>
#include <cstdint>

namespace kalvora {

namespace {

std::int64_t sharedPixels(const Rect& a, const Rect& b) {
  const Rect common = intersection(a, b);
  return std::int64_t{common.width} * common.height;
}

/// How far apart two stretches of one axis lie; 0 where they touch.
std::int64_t gapBetween(std::int64_t from, std::int64_t to, std::int64_t otherFrom,
                        std::int64_t otherTo) {
  return std::max<std::int64_t>({0, otherFrom - to, from - otherTo});
}

std::int64_t squaredDistance(const Rect& a, const Rect& b) {
  const std::int64_t across = gapBetween(a.x, a.right(), b.x, b.right());
  const std::int64_t down = gapBetween(a.y, a.bottom(), b.y, b.bottom());
  return across * across + down * down;
}

}  // namespace

Desktop::Desktop(Size primary, const std::vector<Rect>& others)
    : monitors_{{0, 0, primary.width, primary.height}} {
  monitors_.insert(monitors_.end(), others.begin(), others.end());
}

Rect Desktop::bounds() const {
  Rect all = monitors_.front();
  for (const Rect& monitor : monitors_) {
    const int right = std::max(all.right(), monitor.right());
    const int bottom = std::max(all.bottom(), monitor.bottom());
    all.x = std::min(all.x, monitor.x);
    all.y = std::min(all.y, monitor.y);
    all.width = right - all.x;
    all.height = bottom - all.y;
  }
  return all;
}

bool Desktop::shows(const Rect& window) const {
  return std::ranges::any_of(
      monitors_, [&](const Rect& monitor) { return !intersection(monitor, window).empty(); });
}

Rect Desktop::monitorOf(const Rect& window) const {
  return *std::ranges::min_element(monitors_, [&](const Rect& one, const Rect& other) {
    const std::int64_t ofOne = sharedPixels(one, window);
    const std::int64_t ofOther = sharedPixels(other, window);
    if (ofOne != ofOther) return ofOne > ofOther;
    return squaredDistance(one, window) < squaredDistance(other, window);
  });
}

}  // namespace kalvora
