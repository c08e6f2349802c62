#include "find/Excerpt.h"

#include <gtest/gtest.h>

#include <string>

#include "find/SearchWords.h"

namespace kalvora {
namespace {

std::wstring around(const std::wstring& text, const std::wstring& typed) {
  return excerptOf(text, SearchWords(typed).placeIn(text));
}

const std::wstring kLetter = L"\xD83D\xDE00";

TEST(Excerpt, aShortTextIsShownWhole) {
  EXPECT_EQ(around(L"Mat and towel", L"towel"), L"Mat and towel");
  EXPECT_EQ(around(L"", L"towel"), L"");
}

TEST(Excerpt, lineEndsAreBlanks) {
  EXPECT_EQ(around(L"\r\n Mat\r\n\r\n\tand\ntowel", L"towel"), L"Mat and towel");
}

TEST(Excerpt, someWordsStandBeforeThePlace) {
  const std::wstring text = L"Bring the mat, the water, the shoes and the towel. Then home.";
  EXPECT_EQ(around(text, L"towel"), L"\x2026the shoes and the towel. Then home.");
  EXPECT_EQ(around(text, L"bring"), text) << "at the beginning";
  EXPECT_EQ(around(text, L"home."), L"\x2026the towel. Then home.") << "at the end";
}

TEST(Excerpt, withoutAPlaceItIsTheBeginning) {
  EXPECT_EQ(around(L"Mat and towel", L"gym"), L"Mat and towel");
}

TEST(Excerpt, aLongTextIsCut) {
  const std::wstring text(1000, L'x');
  EXPECT_EQ(around(text, L"gym"), std::wstring(250, L'x') + L"\x2026");
  EXPECT_EQ(around(text + L"gym" + text, L"gym"),
            L"\x2026" + std::wstring(20, L'x') + L"gym" + std::wstring(227, L'x') + L"\x2026")
      << "within a word that has no end";
}

TEST(Excerpt, aCharacterOfTwoHalvesIsNotCut) {
  std::wstring text;
  for (int i = 0; i < 100; ++i) text += kLetter;
  const std::wstring found = around(L"x" + text + L"xgym" + text, L"gym");
  EXPECT_EQ(found.substr(0, 3), L"\x2026" + kLetter);
  const std::wstring begun = around(L"x" + text + text, L"none");
  EXPECT_EQ(begun.size(), 250U);
  EXPECT_EQ(begun.substr(247), kLetter + L"\x2026");
}

}  // namespace
}  // namespace kalvora
