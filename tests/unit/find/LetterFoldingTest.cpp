#include "find/LetterFolding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "find/LetterBases.h"

namespace kalvora {
namespace {

/// What of `text` is the first place of `letters` in its folded form.
std::wstring originalOf(const std::wstring& text, const std::wstring& letters) {
  const FoldedText foldedText(text);
  const std::size_t place = foldedText.letters().find(letters);
  if (place == std::wstring_view::npos) return L"not there";
  const TextPiece piece = foldedText.original({place, letters.size()});
  return text.substr(piece.begin, piece.length);
}

TEST(LetterFolding, caseMakesNoDifference) {
  EXPECT_EQ(folded(L"Gym 7:30"), L"GYM 7:30");
  EXPECT_EQ(folded(L"\x043F\x0440\x0438"), folded(L"\x041F\x0420\x0418"));  // Cyrillic
  EXPECT_EQ(folded(L"\x03C3\x03B1\x03C2"), folded(L"\x03A3\x0391\x03A3"));  // Greek
  EXPECT_EQ(folded(L"\x0561\x0562"), folded(L"\x0531\x0532"));              // Armenian
  EXPECT_EQ(folded(L"\x0131\x0130i"), L"III") << "the letters of Turkish";
}

TEST(LetterFolding, accentsMakeNoDifference) {
  EXPECT_EQ(folded(L"caf\x00E9 na\x00EFve \x00C5ngstr\x00F6m"), L"CAFE NAIVE ANGSTROM");
  EXPECT_EQ(folded(L"\x017B\x00F3\x0142w \x010D\x0161\x0159\x016F\x0151"), L"ZOLW CSRUO");
  EXPECT_EQ(folded(L"Vi\x1EC7t \x0110\x00E0 N\x1EB5ng"), L"VIET DA NANG");
  EXPECT_EQ(folded(L"\x03AC\x03CD\x1F04"), L"\x0391\x03A5\x0391");
  EXPECT_EQ(folded(L"\x0451\x0439\x0457"), L"\x0415\x0418\x0406");
}

TEST(LetterFolding, marksBehindALetterAreLeftOut) {
  EXPECT_EQ(folded(L"e\x0301t\x00E9"), L"ETE");
  EXPECT_EQ(folded(L"\x05E9\x05B8\x05DC\x05D5\x05B9\x05DD"), L"\x05E9\x05DC\x05D5\x05DD");
  EXPECT_EQ(folded(L"\x0643\x064E\x0640\x062A\x064E\x0628"), L"\x0643\x062A\x0628");
  EXPECT_EQ(folded(L"\x0623\x0622\x0625"), L"\x0627\x0627\x0627");
  EXPECT_EQ(folded(L"re\x00ADmind\x200B"), L"REMIND");
}

TEST(LetterFolding, lettersThatAreTypedAsTwo) {
  EXPECT_EQ(folded(L"Stra\x00DF\x65"), folded(L"STRASSE"));
  EXPECT_EQ(folded(L"\x00C6r\x00F8, \x0153uvre, \x00DEor\x00F0"), L"AERO, OEUVRE, THORD");
  EXPECT_EQ(folded(L"\xFB01n"), L"FIN");
}

TEST(LetterFolding, formsOfAnotherWidth) {
  EXPECT_EQ(folded(L"\xFF27\xFF59\xFF4D\xFF17"), L"GYM7");
  EXPECT_EQ(folded(L"\xFF76\xFF9E"), folded(L"\x30AC")) << "half-width and whole kana";
  EXPECT_NE(folded(L"\x304B"), folded(L"\x304C")) << "another letter, no accent";
}

TEST(LetterFolding, whatIsOfNoAlphabetStays) {
  for (const std::wstring text :
       {L"\x4E2D\x6587", L"\xD55C\xAE00", L"\x0E17\x0E35\x0E48", L"\xD83D\xDE00", L"|@\x20AC"}) {
    EXPECT_EQ(folded(text), text);
  }
}

TEST(LetterFolding, blanksAndLineEndsAreOneBlank) {
  EXPECT_EQ(folded(L"milk\r\n\r\n\tand\x00A0 \x3000tea "), L"MILK AND TEA ");
}

TEST(LetterFolding, foldedTextStaysAsItIs) {
  for (int code = 0; code <= 0xFFFF; ++code) {
    const std::wstring once = folded(std::wstring(1, static_cast<wchar_t>(code)));
    EXPECT_EQ(folded(once), once) << code;
  }
}

TEST(LetterFolding, theTableIsInOrderAndHasNoLetterThatHasACapital) {
  EXPECT_TRUE(std::ranges::is_sorted(kLetterBases, {}, &LetterBase::letter));
  for (const LetterBase& row : kLetterBases) {
    EXPECT_EQ(ordinalUpper(row.letter), static_cast<wchar_t>(row.letter));
    EXPECT_NE(row.base[0], 0);
  }
}

TEST(FoldedText, leadsBackToTheText) {
  EXPECT_EQ(originalOf(L"Un caf\x00E9 noir", L"CAFE"), L"caf\x00E9");
  EXPECT_EQ(originalOf(L"Un cafe\x0301 noir", L"CAFE"), L"cafe\x0301") << "with its mark";
  EXPECT_EQ(originalOf(L"a\x0301\x0302", L"A"), L"a\x0301\x0302") << "at the end, too";
  EXPECT_EQ(originalOf(L"milk\r\n  tea", L"MILK TEA"), L"milk\r\n  tea");
  EXPECT_EQ(originalOf(L"milk\r\n  tea", L"TEA"), L"tea");
  EXPECT_EQ(originalOf(L"\xD83D\xDE00 gym", L"GYM"), L"gym");
}

TEST(FoldedText, aLetterThatIsTwoIsTakenWhole) {
  const std::wstring street = L"Stra\x00DF\x65n";
  EXPECT_EQ(originalOf(street, L"STRAS"), L"Stra\x00DF");
  EXPECT_EQ(originalOf(street, L"SEN"), L"\x00DF\x65n");
  EXPECT_EQ(originalOf(street, L"STRASSE"), L"Stra\x00DF\x65");
  EXPECT_EQ(originalOf(L"\x00DF", L"S"), L"\x00DF");
}

}  // namespace
}  // namespace kalvora
