#include "skin/FontCells.h"

#include <algorithm>
#include <utility>

namespace kalvora {

FontCells::FontCells(int capacity) : glyphs_(static_cast<std::size_t>(capacity), kBlankGlyph) {}

void FontCells::layOut(const RowPlace& place, Size cell) {
  // The window's design has only so many cells, whatever a skin asks for.
  length_ = std::clamp<int>(place.length, 0, static_cast<int>(glyphs_.size()));
  origin_ = {place.x, place.y};
  cell_ = cell;
  std::ranges::fill(glyphs_, kBlankGlyph);
}

Rect FontCells::cellRect(int cell) const {
  return {origin_.x + cell * cell_.width, origin_.y, cell_.width, cell_.height};
}

Rect FontCells::area() const {
  return {origin_.x, origin_.y, length_ * cell_.width, cell_.height};
}

int FontCells::glyphAt(int cell) const {
  return isLaidOut(cell) ? glyphs_[static_cast<std::size_t>(cell)] : kBlankGlyph;
}

bool FontCells::show(int cell, int glyph) {
  if (!isLaidOut(cell)) return false;
  return std::exchange(glyphs_[static_cast<std::size_t>(cell)], glyph) != glyph;
}

}  // namespace kalvora
