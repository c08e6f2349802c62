#pragma once

#include <array>
#include <optional>

#include "base/Geometry.h"
#include "skin/PictureClip.h"

namespace kalvora {

inline constexpr int kGlyphCount = 57;
inline constexpr int kSpaceGlyph = 56;
/// Stands for a cell that shows nothing.
inline constexpr int kBlankGlyph = 60;

/// The glyph of a character, 0 to 56; nothing where the font has none. One glyph serves both cases
/// of a letter.
std::optional<int> glyphOf(wchar_t character);

/// The glyphs of a skin, cut from its font strip.
class BitmapFont {
 public:
  /// Cuts all glyphs from the clip's source, glyph k at k × the cell's width. A strip too narrow
  /// leaves the last ones cut off or empty.
  void cut(const PictureClip& clip, Size cell);

  /// 0 to 56, or kBlankGlyph for an empty piece.
  const PicturePiece& glyph(int index) const;

 private:
  std::array<PicturePiece, kGlyphCount> glyphs_;
  PicturePiece blank_;
};

}  // namespace kalvora
