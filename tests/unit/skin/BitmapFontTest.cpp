#include "skin/BitmapFont.h"

#include <gtest/gtest.h>

#include <string_view>

#include "skin/FontCells.h"

namespace kalvora {
namespace {

TEST(BitmapFont, bothCasesOfALetterHaveOneGlyph) {
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    const auto lower = static_cast<wchar_t>(letter - L'A' + L'a');
    EXPECT_EQ(glyphOf(letter), letter - L'A');
    EXPECT_EQ(glyphOf(lower), letter - L'A');
  }
}

TEST(BitmapFont, digitsFollowTheLetters) {
  for (wchar_t digit = L'0'; digit <= L'9'; ++digit) EXPECT_EQ(glyphOf(digit), 26 + digit - L'0');
}

TEST(BitmapFont, signsFollowTheDigitsAndTheSpaceIsLast) {
  const std::wstring_view signs = L":()-'!_+\\/[]^&%.,=$# ";
  for (std::size_t i = 0; i < signs.size(); ++i) {
    EXPECT_EQ(glyphOf(signs[i]), 36 + static_cast<int>(i));
  }
  EXPECT_EQ(glyphOf(L' '), kSpaceGlyph);
}

TEST(BitmapFont, accentedLettersAndOtherSignsHaveNoGlyph) {
  for (const wchar_t c : std::wstring_view(L"?;*\u0105\u00E9\u0130\u212A@~`\"<>|{}\t\n\u00A0")) {
    EXPECT_EQ(glyphOf(c), std::nullopt) << static_cast<unsigned>(c);
  }
  EXPECT_EQ(glyphOf(L'\0'), std::nullopt);
}

TEST(BitmapFont, allOtherCharactersHaveNoGlyph) {
  int known = 0;
  for (int c = 0; c < 0x10000; ++c) known += glyphOf(static_cast<wchar_t>(c)).has_value() ? 1 : 0;
  EXPECT_EQ(known, 57 + 26);
}

Image strip(int width, int height) {
  Image image(width, height);
  for (int x = 0; x < width; ++x) image.fill({x, 0, 1, height}, static_cast<Pixel>(x));
  return image;
}

TEST(BitmapFont, glyphsLieSideBySide) {
  const Image image = strip(57 * 7, 9);
  PictureClip clip;
  clip.setSource(image);
  BitmapFont font;
  font.cut(clip, {7, 9});
  for (int k = 0; k < kGlyphCount; ++k) {
    EXPECT_EQ(font.glyph(k).image.size(), (Size{7, 9}));
    EXPECT_EQ(font.glyph(k).image.at(0, 0), static_cast<Pixel>(7 * k));
  }
}

TEST(BitmapFont, aNarrowStripCutsItsLastGlyphsOff) {
  const Image image = strip(55 * 5 + 2, 4);
  PictureClip clip;
  clip.setSource(image);
  BitmapFont font;
  font.cut(clip, {5, 6});
  EXPECT_EQ(font.glyph(54).image.size(), (Size{5, 4}));
  EXPECT_EQ(font.glyph(55).image.size(), (Size{2, 4}));
  EXPECT_TRUE(font.glyph(56).image.empty());
}

TEST(BitmapFont, theBlankCellIsEmpty) {
  const Image image = strip(57 * 5, 6);
  PictureClip clip;
  clip.setSource(image);
  BitmapFont font;
  font.cut(clip, {5, 6});
  EXPECT_TRUE(font.glyph(kBlankGlyph).image.empty());
  EXPECT_TRUE(font.glyph(-1).image.empty());
}

TEST(BitmapFont, cellsOfNoSizeOrANegativeOneGiveEmptyGlyphs) {
  const Image image = strip(57 * 5, 6);
  PictureClip clip;
  clip.setSource(image);
  for (const Size cell : {Size{0, 6}, Size{5, 0}, Size{-5, 6}, Size{5, -6}, Size{-32768, -32768}}) {
    BitmapFont font;
    font.cut(clip, cell);
    for (int k = 0; k < kGlyphCount; ++k) EXPECT_TRUE(font.glyph(k).image.empty());
  }
}

TEST(FontCells, standSideBySide) {
  FontCells cells(41);
  cells.layOut({20, 8, 10}, {7, 9});
  EXPECT_EQ(cells.cellRect(3), (Rect{41, 8, 7, 9}));
  EXPECT_EQ(cells.area(), (Rect{20, 8, 70, 9}));
}

TEST(FontCells, aSkinThatAsksForMoreGetsTheCapacity) {
  FontCells title(41);
  title.layOut({0, 0, 42}, {5, 6});
  EXPECT_EQ(title.length(), 41);
  title.layOut({0, 0, 32767}, {32767, 6});
  EXPECT_EQ(title.length(), 41);
  title.layOut({0, 0, 41}, {5, 6});
  EXPECT_EQ(title.length(), 41);
}

TEST(FontCells, aNegativeLengthIsNone) {
  FontCells cells(21);
  cells.layOut({0, 0, -1}, {5, 6});
  EXPECT_EQ(cells.length(), 0);
  EXPECT_TRUE(cells.area().empty());
  cells.layOut({0, 0, -32768}, {5, 6});
  EXPECT_EQ(cells.length(), 0);
}

TEST(FontCells, laidOutAnewTheyAreBlank) {
  FontCells cells(21);
  cells.layOut({0, 0, 5}, {5, 6});
  EXPECT_TRUE(cells.show(2, 30));
  EXPECT_FALSE(cells.show(2, 30));
  EXPECT_EQ(cells.glyphAt(2), 30);
  cells.layOut({0, 0, 5}, {5, 6});
  EXPECT_EQ(cells.glyphAt(2), kBlankGlyph);
}

TEST(FontCells, aCellThatIsNotLaidOutIsLeftAlone) {
  FontCells cells(21);
  cells.layOut({0, 0, 5}, {5, 6});
  EXPECT_FALSE(cells.show(5, 1));
  EXPECT_FALSE(cells.show(-1, 1));
  EXPECT_FALSE(cells.show(21, 1));
  cells.layOut({0, 0, 21}, {5, 6});
  for (int i = 0; i < 21; ++i) EXPECT_EQ(cells.glyphAt(i), kBlankGlyph);
}

}  // namespace
}  // namespace kalvora
