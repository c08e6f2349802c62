#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/Geometry.h"

namespace kalvora {

/// One pixel as 0x00RRGGBB.
using Pixel = std::uint32_t;

/// `red`, `green`, `blue` each 0 to 255.
constexpr Pixel pixelOf(unsigned red, unsigned green, unsigned blue) {
  return (red << 16U) | (green << 8U) | blue;
}

/// A picture in memory: rows from top to bottom without padding, `width` × `height` pixels.
class Image {
 public:
  Image() = default;
  Image(int width, int height, Pixel fill = 0);

  int width() const { return width_; }
  int height() const { return height_; }
  Size size() const { return {width_, height_}; }
  Rect bounds() const { return {0, 0, width_, height_}; }
  bool empty() const { return width_ == 0 || height_ == 0; }

  Pixel at(int x, int y) const { return pixels_[index(x, y)]; }
  void set(int x, int y, Pixel pixel) { pixels_[index(x, y)] = pixel; }
  /// The pixels of a row, from left to right.
  std::span<Pixel> row(int y) {
    return std::span(pixels_).subspan(index(0, y), static_cast<std::size_t>(width_));
  }
  /// All pixels, row by row.
  std::span<const Pixel> pixels() const { return pixels_; }

  /// The piece of this picture that lies inside `area`: smaller than it, or empty, where `area`
  /// reaches beyond the picture.
  Image crop(const Rect& area) const;
  /// Draws `piece` with its top left corner at `at`; what falls outside is left out.
  void draw(const Image& piece, Point at) { draw(piece, at, bounds()); }
  /// The same, but only inside `clip`.
  void draw(const Image& piece, Point at, const Rect& clip);
  /// Fills the part of `area` that lies inside.
  void fill(const Rect& area, Pixel pixel);

  friend bool operator==(const Image&, const Image&) = default;

 private:
  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  int width_ = 0;
  int height_ = 0;
  std::vector<Pixel> pixels_;
};

}  // namespace kalvora
