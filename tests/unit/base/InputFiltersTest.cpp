#include "base/InputFilters.h"

#include <gtest/gtest.h>

#include <string>

namespace kalvora {
namespace {

std::wstring nameLeftOf(std::wstring_view text) {
  return Zabezpieczenie_plik(text, 0).text;
}

std::wstring numberLeftOf(std::wstring_view text) {
  return Zabezpieczenie_Cyfry(text, 0, DigitBox::Number).text;
}

std::wstring timeLeftOf(std::wstring_view text) {
  return Zabezpieczenie_Cyfry(text, 0, DigitBox::Time).text;
}

TEST(InputFilters, aNameLosesWhatNoFileNameMayHold) {
  EXPECT_EQ(nameLeftOf(L"my/note?"), L"mynote");
  EXPECT_EQ(nameLeftOf(L"\\/:*?\"<>|!"), L"");
}

TEST(InputFilters, aNameKeepsLettersDigitsBlanksAndTheAllowedPunctuation) {
  const std::wstring allowed =
      L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 ~`@#$%^&()-_=+[]{},.;'";
  EXPECT_EQ(nameLeftOf(allowed), allowed);
}

TEST(InputFilters, exactlyTheAllowedCharactersOfAllOfThemAreKeptInAName) {
  std::wstring all;
  for (int c = 0; c < 0xFFFF; ++c) all += static_cast<wchar_t>(c);
  EXPECT_EQ(nameLeftOf(all).size(), 26U + 26U + 10U + 23U);
}

TEST(InputFilters, aNameLosesAccentedLettersAndLineEnds) {
  EXPECT_EQ(nameLeftOf(L"caf\u00E9\r\n\u0105\t"), L"caf");
}

TEST(InputFilters, aNumberKeepsItsDigits) {
  EXPECT_EQ(numberLeftOf(L"12a"), L"12");
  EXPECT_EQ(numberLeftOf(L"1:2"), L"12");
  EXPECT_EQ(numberLeftOf(L"-1.5e3"), L"153");
  EXPECT_EQ(numberLeftOf(L"1\u0663\uFF11"), L"1");
}

TEST(InputFilters, aSingleLetterLeavesANumberBoxEmpty) {
  EXPECT_EQ(numberLeftOf(L"a"), L"");
  EXPECT_EQ(timeLeftOf(L"a"), L"");
}

TEST(InputFilters, aTimeKeepsItsColon) {
  EXPECT_EQ(timeLeftOf(L"7:30"), L"7:30");
  EXPECT_EQ(timeLeftOf(L" 7h:30 pm"), L"7:30");
  EXPECT_EQ(timeLeftOf(L"7|30"), L"730");
}

TEST(InputFilters, anEmptyBoxStaysEmpty) {
  EXPECT_EQ(Zabezpieczenie_Cyfry(L"", 0, DigitBox::Number), FilteredInput{});
  EXPECT_EQ(Zabezpieczenie_plik(L"", 0), FilteredInput{});
}

TEST(InputFilters, theCaretStandsBehindTheKeptCharactersBeforeIt) {
  EXPECT_EQ(Zabezpieczenie_plik(L"my/note?", 0).caret, 0U);
  EXPECT_EQ(Zabezpieczenie_plik(L"my/note?", 2).caret, 2U);
  EXPECT_EQ(Zabezpieczenie_plik(L"my/note?", 3).caret, 2U);  // "/" was just typed
  EXPECT_EQ(Zabezpieczenie_plik(L"my/note?", 8).caret, 6U);
  EXPECT_EQ(Zabezpieczenie_Cyfry(L"1x2", 2, DigitBox::Number), (FilteredInput{L"12", 1}));
}

TEST(InputFilters, theCaretOfACleanTextStaysWhereItIs) {
  for (std::size_t caret = 0; caret <= 4; ++caret) {
    EXPECT_EQ(Zabezpieczenie_Cyfry(L"7:30", caret, DigitBox::Time),
              (FilteredInput{L"7:30", caret}));
  }
}

TEST(InputFilters, aCaretBeyondTheTextStandsAtItsEnd) {
  EXPECT_EQ(Zabezpieczenie_Cyfry(L"12a", 99, DigitBox::Number).caret, 2U);
}

TEST(InputFilters, aLoneLineFeedBecomesALineEnd) {
  EXPECT_EQ(fullLineEnds(L"a\nb", 0).text, L"a\r\nb");
  EXPECT_EQ(fullLineEnds(L"\n\n", 0).text, L"\r\n\r\n");
  EXPECT_EQ(fullLineEnds(L"a\r\n\nb\n", 0).text, L"a\r\n\r\nb\r\n");
}

TEST(InputFilters, wholeLineEndsAndLoneCarriageReturnsStay) {
  for (const std::wstring_view text : {L"", L"a", L"a\r\nb\r\n", L"a\rb", L"a\r\r\nb"}) {
    for (std::size_t caret = 0; caret <= text.size(); ++caret) {
      EXPECT_EQ(fullLineEnds(text, caret), (FilteredInput{std::wstring(text), caret}));
    }
  }
}

TEST(InputFilters, theCaretStaysBeforeItsCharacterWhereLineEndsGrow) {
  EXPECT_EQ(fullLineEnds(L"a\nb\nc", 1).caret, 1U);
  EXPECT_EQ(fullLineEnds(L"a\nb\nc", 2).caret, 3U);  // the pasted line feed stands before it
  EXPECT_EQ(fullLineEnds(L"a\nb\nc", 3).caret, 4U);
  EXPECT_EQ(fullLineEnds(L"a\nb\nc", 5).caret, 7U);
  EXPECT_EQ(fullLineEnds(L"a\nb", 99).caret, 4U);
}

TEST(InputFilters, aBoxOfASignedNumberKeepsAMinusInFrontOnly) {
  const auto filtered = [](std::wstring_view text, std::size_t caret) {
    return Zabezpieczenie_Cyfry(text, caret, DigitBox::SignedNumber);
  };
  EXPECT_EQ(filtered(L"-12-3:", 5), (FilteredInput{L"-123", 4}));
  EXPECT_EQ(filtered(L"-", 1), (FilteredInput{L"-", 1}));
  EXPECT_EQ(filtered(L" -1", 3), (FilteredInput{L"1", 1}));
  EXPECT_EQ(filtered(L"", 0), (FilteredInput{L"", 0}));
}

}  // namespace
}  // namespace kalvora
