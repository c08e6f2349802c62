#include "skin/BitmapFont.h"

#include <string_view>

namespace kalvora {

namespace {

/// The characters of a font strip from left to right, letters in upper case.
constexpr std::wstring_view kStrip = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789:()-'!_+\\/[]^&%.,=$# ";
static_assert(kStrip.size() == kGlyphCount);
static_assert(kStrip[kSpaceGlyph] == L' ');

}  // namespace

std::optional<int> glyphOf(wchar_t character) {
  const bool lowerCase = character >= L'a' && character <= L'z';
  const wchar_t wanted = lowerCase ? static_cast<wchar_t>(character - L'a' + L'A') : character;
  const std::size_t index = kStrip.find(wanted);
  if (index == std::wstring_view::npos) return std::nullopt;
  return static_cast<int>(index);
}

void BitmapFont::cut(const PictureClip& clip, Size cell) {
  for (int k = 0; k < kGlyphCount; ++k) {
    Wytnij(clip, glyphs_[static_cast<std::size_t>(k)], k * cell.width, 0, cell.width, cell.height);
  }
}

const PicturePiece& BitmapFont::glyph(int index) const {
  const bool known = index >= 0 && index < kGlyphCount;
  // cppcheck-suppress returnTempReference ; both are members
  return known ? glyphs_[static_cast<std::size_t>(index)] : blank_;
}

}  // namespace kalvora
