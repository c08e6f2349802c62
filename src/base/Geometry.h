#pragma once

#include <vector>

namespace kalvora {

/// All in whole pixels; the origin is the top left corner, y grows downwards.
struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

/// Half-open: covers x to x + width - 1 and y to y + height - 1.
struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  constexpr int right() const { return x + width; }
  constexpr int bottom() const { return y + height; }
  constexpr Size size() const { return {width, height}; }
  constexpr bool empty() const { return width <= 0 || height <= 0; }
  constexpr bool contains(Point p) const {
    return p.x >= x && p.x < right() && p.y >= y && p.y < bottom();
  }
  friend bool operator==(const Rect&, const Rect&) = default;
};

/// The common part of two rectangles; empty (0 × 0) where there is none.
Rect intersection(const Rect& a, const Rect& b);

/// A horizontal run of pixels of one row: `left` inclusive, `right` exclusive.
struct RowSpan {
  int y = 0;
  int left = 0;
  int right = 0;
  friend bool operator==(const RowSpan&, const RowSpan&) = default;
};

/// The outline of a window: runs in order of y, then of left, that do not overlap.
using RowSpans = std::vector<RowSpan>;

}  // namespace kalvora
