#pragma once

#include <cstdint>

namespace kalvora {

/// A place on a monitor, from its top left corner, or a size, in twips. 32 bits: a large screen is
/// wider than 16 bits hold.
struct TwipsPlace {
  std::int32_t left = 0;
  std::int32_t top = 0;
  friend bool operator==(const TwipsPlace&, const TwipsPlace&) = default;
};
struct TwipsSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

/// How near an edge of its monitor a dropped window must be to snap to it: 20 pixels.
inline constexpr std::int32_t kSnapMargin = 300;

/// Where a window that was dropped at `window` comes to stand: flush with the edges of the monitor
/// that it is near and not beyond. One dropped partly off the monitor stays partly off it.
TwipsPlace snapToEdges(TwipsPlace window, TwipsSize size, TwipsSize monitor);

}  // namespace kalvora
