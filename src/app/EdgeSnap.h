#pragma once

#include <cstdint>

namespace kalvora {

/// A place or a size on the screen in twips. 32 bits: a large screen is wider than 16 bits hold.
struct TwipsPlace {
  std::int32_t left = 0;
  std::int32_t top = 0;
  friend bool operator==(const TwipsPlace&, const TwipsPlace&) = default;
};
struct TwipsSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

/// How near an edge of the screen a dropped window must be to snap to it: 20 pixels.
inline constexpr std::int32_t kSnapMargin = 300;

/// Where a window that was dropped at `window` comes to stand: flush with the edges of the screen
/// that it is near and not beyond. One dropped partly off the screen stays partly off it.
TwipsPlace snapToEdges(TwipsPlace window, TwipsSize size, TwipsSize screen);

}  // namespace kalvora
