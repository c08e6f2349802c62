#include "find/LetterFolding.h"

#include <algorithm>

#include "base/Text.h"
#include "find/LetterBases.h"

namespace kalvora {

namespace {

struct CharacterRun {
  // cppcheck-suppress unusedStructMember; isAmong() reads it
  int first;
  int last;
};

// In order. The marks are those that stand above or below a letter: accents, the points of Hebrew,
// the vowels of Arabic and its stretching line; the others are hyphens and joints that nobody sees.
constexpr std::array kLeftOut = std::to_array<CharacterRun>(
    {{0x00AD, 0x00AD}, {0x0300, 0x036F}, {0x0591, 0x05BD}, {0x05BF, 0x05BF}, {0x05C1, 0x05C2},
     {0x05C4, 0x05C5}, {0x05C7, 0x05C7}, {0x0610, 0x061A}, {0x0640, 0x0640}, {0x064B, 0x065F},
     {0x0670, 0x0670}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x202A, 0x202E},
     {0x2060, 0x2064}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}});

constexpr std::array kBlanks = std::to_array<CharacterRun>({{0x0000, 0x0020},
                                                            {0x0085, 0x0085},
                                                            {0x00A0, 0x00A0},
                                                            {0x1680, 0x1680},
                                                            {0x2000, 0x200A},
                                                            {0x2028, 0x2029},
                                                            {0x202F, 0x202F},
                                                            {0x205F, 0x205F},
                                                            {0x3000, 0x3000}});

bool isAmong(const auto& runs, int code) {
  const auto run = std::ranges::lower_bound(runs, code, {}, &CharacterRun::last);
  return run != runs.end() && code >= run->first;
}

/// Calls `append` with each letter that a letter is compared as.
void foldLetter(wchar_t letter, const auto& append) {
  const wchar_t capital = ordinalUpper(letter);
  const auto code = static_cast<char16_t>(capital);
  const auto base = std::ranges::lower_bound(kLetterBases, code, {}, &LetterBase::letter);
  if (base == kLetterBases.end() || base->letter != code) return append(capital);
  for (const char16_t one : base->base) {
    if (one != 0) append(static_cast<wchar_t>(one));
  }
}

/// Calls `append` with each letter of the folded text, and where it comes from.
void fold(std::wstring_view text, const auto& append) {
  bool behindBlank = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wide character, which is never negative here
    const int code = static_cast<int>(text[i]);
    if (isAmong(kBlanks, code)) {
      if (!behindBlank) append(L' ', i);
      behindBlank = true;
    } else if (code < 0x80 || !isAmong(kLeftOut, code)) {
      foldLetter(text[i], [&](wchar_t letter) { append(letter, i); });
      behindBlank = false;
    }
  }
}

}  // namespace

std::wstring folded(std::wstring_view text) {
  std::wstring letters;
  letters.reserve(text.size());
  fold(text, [&](wchar_t letter, std::size_t) { letters += letter; });
  return letters;
}

FoldedText::FoldedText(std::wstring_view text) {
  fold(text, [this](wchar_t letter, std::size_t origin) {
    letters_ += letter;
    origins_.push_back(origin);
  });
  origins_.push_back(text.size());
}

TextPiece FoldedText::original(TextPiece piece) const {
  const std::size_t begin = origins_[piece.begin];
  const std::size_t last = piece.begin + piece.length - 1;
  // The two letters of "ß" come from one place.
  const auto behind = std::ranges::upper_bound(origins_, origins_[last]);
  return {begin, *behind - begin};
}

}  // namespace kalvora
