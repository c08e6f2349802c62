#include "find/Excerpt.h"

#include <algorithm>

namespace kalvora {

namespace {

// Of what stands before the place so little that the place is seen in a narrow column, and of the
// rest as much as a wide one shows.
constexpr std::size_t kMostBefore = 20;
constexpr std::size_t kMostInAll = 250;
constexpr wchar_t kEllipsis = 0x2026;
constexpr std::wstring_view kBreaks = L" \t\r\n\v\f";

bool isBreak(wchar_t character) {
  return kBreaks.find(character) != std::wstring_view::npos;
}

/// Not between the two halves of a character.
std::size_t wholeCharacter(std::wstring_view text, std::size_t place) {
  const bool low = place < text.size() && text[place] >= 0xDC00 && text[place] <= 0xDFFF;
  const bool high = place > 0 && text[place - 1] >= 0xD800 && text[place - 1] <= 0xDBFF;
  return low && high ? place - 1 : place;
}

/// The beginning of a word before the place, or of the text; within a long word as much as is
/// allowed.
std::size_t beginBefore(std::wstring_view text, std::size_t place) {
  if (place <= kMostBefore) return 0;
  const std::size_t earliest = place - kMostBefore;
  const std::size_t blank = text.substr(0, place).find_first_of(kBreaks, earliest);
  return blank == std::wstring_view::npos ? wholeCharacter(text, earliest) : blank + 1;
}

std::wstring onOneLine(std::wstring_view text) {
  std::wstring line;
  for (const wchar_t character : text) {
    if (!isBreak(character)) {
      line += character;
    } else if (!line.empty() && line.back() != L' ') {
      line += L' ';
    }
  }
  return line;
}

}  // namespace

std::wstring excerptOf(std::wstring_view text, const std::optional<TextPiece>& place) {
  const std::size_t begin = place ? beginBefore(text, place->begin) : 0;
  const std::size_t end = wholeCharacter(text, std::min(text.size(), begin + kMostInAll));
  std::wstring line = onOneLine(text.substr(begin, end - begin));
  if (begin > 0) line.insert(line.begin(), kEllipsis);
  if (end < text.size()) line += kEllipsis;
  return line;
}

}  // namespace kalvora
