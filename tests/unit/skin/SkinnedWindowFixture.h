#pragma once

#include "skin/SkinnedWindow.h"

#include <gtest/gtest.h>

namespace kalvora {

inline constexpr Pixel kGround = 0x112233;
inline constexpr Pixel kPressed = 0x445566;
inline constexpr Pixel kBare = 0xF0F0F0;

/// A font strip in which every pixel of glyph k is k + 1.
inline Image fontStrip(Size cell, int glyphs = kGlyphCount) {
  Image image(cell.width * glyphs, cell.height);
  for (int k = 0; k < glyphs; ++k) {
    image.fill({k * cell.width, 0, cell.width, cell.height}, static_cast<Pixel>(k + 1));
  }
  return image;
}

/// A window of 100 × 60, 20 high when rolled up, without a shape; the buttons stand in a line of
/// 10 × 10 squares at y = 0, the rows below each other with cells of 4 × 5.
inline Skin plainSkin() {
  Skin skin;
  skin.Temp_Main[0].image = Image(101, 60, kGround);
  skin.Temp_Main[1].image = Image(101, 60, kPressed);
  skin.Temp_Text.image = fontStrip({4, 5});
  skin.Temp_ShapeP[0].image = Image(101, 60);
  skin.Temp_ShapeP[1].image = Image(101, 20);
  skin.description.cellWidth = 4;
  skin.description.cellHeight = 5;
  for (std::size_t i = 0; i < kButtonCount; ++i) {
    skin.description.buttons[i] = {static_cast<std::int16_t>(10 * i), 0, 10, 10};
  }
  skin.description.rows = {{{2, 12, 20}, {2, 20, 10}, {2, 28, 10}, {2, 36, 10}}};
  return skin;
}

class SkinnedWindowTest : public testing::Test {
 protected:
  SkinnedWindowTest() {
    window_.wear(plainSkin());
    window_.takeDirty();
  }

  Image painted() { return window_.paint({100, 60}); }
  std::vector<int> glyphsOf(RowId row) {
    std::vector<int> glyphs;
    for (int i = 0; i < window_.rowLength(row); ++i) glyphs.push_back(window_.glyphAt(row, i));
    return glyphs;
  }

  SkinnedWindow window_;
};

}  // namespace kalvora
