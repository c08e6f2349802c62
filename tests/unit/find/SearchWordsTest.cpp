#include "find/SearchWords.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "base/Utf8.h"

namespace kalvora {
namespace {

bool finds(const std::wstring& typed, const std::wstring& text) {
  return SearchWords(typed).occurIn(toUtf8(folded(text)));
}

std::wstring placeOf(const std::wstring& typed, const std::wstring& text) {
  const std::optional<TextPiece> place = SearchWords(typed).placeIn(text);
  return place ? text.substr(place->begin, place->length) : L"none";
}

TEST(SearchWords, allOfThemInAnyOrder) {
  EXPECT_TRUE(finds(L"towel mat", L"Mat and towel"));
  EXPECT_TRUE(finds(L"  MAT  ", L"Mat and towel"));
  EXPECT_TRUE(finds(L"owe", L"Mat and towel")) << "within a word";
  EXPECT_FALSE(finds(L"mat shoes", L"Mat and towel"));
}

TEST(SearchWords, aPhraseInQuotes) {
  EXPECT_TRUE(finds(L"\"mat and\"", L"Mat and towel"));
  EXPECT_FALSE(finds(L"\"and mat\"", L"Mat and towel"));
  EXPECT_TRUE(finds(L"towel \"mat and\"", L"Mat\r\nand towel")) << "over the end of a line";
  EXPECT_TRUE(finds(L"\"mat an", L"Mat and towel")) << "not closed yet";
  EXPECT_FALSE(finds(L"\"mat to", L"Mat and towel"));
  EXPECT_TRUE(finds(L"towel\"mat and\"mat", L"Mat and towel"));
  EXPECT_FALSE(finds(L"\"and mat\"mat", L"Mat and towel"));
  EXPECT_TRUE(finds(L"\"\" \" \"", L"anything"));
}

TEST(SearchWords, whereNothingIsTypedAllIsFound) {
  EXPECT_TRUE(finds(L"", L""));
  EXPECT_TRUE(finds(L"  ", L"anything"));
  EXPECT_TRUE(finds(L"\x0301", L"anything")) << "a mark without a letter is no word";
  EXPECT_EQ(placeOf(L"", L"anything"), L"none");
}

TEST(SearchWords, moreOfThemFindLess) {
  const auto narrow = [](const std::wstring& typed, const std::wstring& before) {
    return SearchWords(typed).narrow(SearchWords(before));
  };
  EXPECT_TRUE(narrow(L"mat", L""));
  EXPECT_TRUE(narrow(L"mate", L"mat"));
  EXPECT_TRUE(narrow(L"mat to", L"mat"));
  EXPECT_TRUE(narrow(L"\"mat an\"", L"\"mat a"));
  EXPECT_TRUE(narrow(L"\"mat an\"", L"mat an"));
  EXPECT_TRUE(narrow(L"stra\x00DF\x65", L"STRAS"));
  EXPECT_FALSE(narrow(L"ma", L"mat"));
  EXPECT_FALSE(narrow(L"m at", L"mat"));
  EXPECT_FALSE(narrow(L"", L"mat"));
}

TEST(SearchWords, aLetterOfKanaIsNotFoundInTheOneThatItsMarkMakes) {
  const std::wstring plain = L"\x304B";
  const std::wstring voiced = L"\x304C";
  for (const auto& [typed, text, place] :
       std::vector<std::array<std::wstring, 3>>{{plain, plain, plain},
                                                {voiced, voiced, voiced},
                                                {plain, voiced + plain, plain},
                                                {plain, voiced, L"none"},
                                                {voiced, plain, L"none"}}) {
    EXPECT_EQ(placeOf(typed, text), place);
    EXPECT_EQ(finds(typed, text), place != L"none");
  }
  EXPECT_FALSE(SearchWords(voiced).narrow(SearchWords(plain)));
}

TEST(SearchWords, halfACharacterIsNotLookedForYet) {
  const std::wstring half = {static_cast<wchar_t>(0xD83C)};
  EXPECT_TRUE(SearchWords(half).occurIn(""));
  EXPECT_TRUE(SearchWords(L"mat" + half).occurIn("MAT"));
  EXPECT_TRUE(
      SearchWords(L"mat" + half + static_cast<wchar_t>(0xDF88)).narrow(SearchWords(L"mat" + half)));
}

TEST(SearchWords, thePlaceIsThatOfTheLongestThatIsThere) {
  EXPECT_EQ(placeOf(L"a towel", L"A mat, a towel"), L"towel");
  EXPECT_EQ(placeOf(L"gymnastics mat", L"A mat"), L"mat");
  EXPECT_EQ(placeOf(L"mat tea", L"Tea on a mat"), L"mat") << "of two the one that was typed first";
  EXPECT_EQ(placeOf(L"cafe", L"Caf\x00E9, caf\x00E9"), L"Caf\x00E9");
  EXPECT_EQ(placeOf(L"shoes", L"A mat"), L"none");
}

}  // namespace
}  // namespace kalvora
