#pragma once

#include <vector>

#include "base/Geometry.h"
#include "skin/BitmapFont.h"
#include "skin/SkinDescription.h"

namespace kalvora {

/// A row of font cells on the window, each showing one glyph or nothing.
class FontCells {
 public:
  /// `capacity` is the number of cells that the window's design has.
  explicit FontCells(int capacity);

  /// Places the cells side by side and blanks them all. A length beyond the capacity is cut to it,
  /// a negative one is 0.
  void layOut(const RowPlace& place, Size cell);

  /// The number of cells laid out.
  int length() const { return length_; }
  Rect cellRect(int cell) const;
  /// All laid-out cells together.
  Rect area() const;

  int glyphAt(int cell) const;
  /// Gives a cell a glyph or kBlankGlyph; a cell that is not laid out is left alone. Says whether
  /// the row looks different now.
  bool show(int cell, int glyph);

 private:
  bool isLaidOut(int cell) const { return cell >= 0 && cell < length_; }

  std::vector<int> glyphs_;
  int length_ = 0;
  Point origin_;
  Size cell_;
};

}  // namespace kalvora
