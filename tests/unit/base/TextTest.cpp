#include "base/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace kalvora {
namespace {

TEST(OrdinalUpper, knowsAsciiAndLeavesTheRestOfIt) {
  EXPECT_EQ(ordinalUpper(L'a'), L'A');
  EXPECT_EQ(ordinalUpper(L'z'), L'Z');
  for (const wchar_t c : std::wstring(L"AZ@[`{09_ |.\0", 13)) EXPECT_EQ(ordinalUpper(c), c);
}

TEST(OrdinalUpper, knowsTheLettersOfOtherScriptsWithoutALocale) {
  EXPECT_EQ(ordinalUpper(L'\u00E9'), L'\u00C9');
  EXPECT_EQ(ordinalUpper(L'\u00FF'), L'\u0178');
  EXPECT_EQ(ordinalUpper(L'\u0142'), L'\u0141');
  EXPECT_EQ(ordinalUpper(L'\u017C'), L'\u017B');
  EXPECT_EQ(ordinalUpper(L'\u03C9'), L'\u03A9');
  EXPECT_EQ(ordinalUpper(L'\u0436'), L'\u0416');
  EXPECT_EQ(ordinalUpper(L'\u0451'), L'\u0401');
  EXPECT_EQ(ordinalUpper(L'\u1EBF'), L'\u1EBE');
}

TEST(OrdinalUpper, leavesWhatIsNoSmallLetterOrHasNoSingleCapital) {
  for (const wchar_t c : {L'\u00D7', L'\u00F7', L'\u00DF', L'\u00B5', L'\u0141', L'\u0130',
                          L'\u0131', L'\u4E2D', L'\u05D0', L'\uFFFD'}) {
    EXPECT_EQ(ordinalUpper(c), c) << static_cast<unsigned>(c);
  }
}

TEST(OrdinalUpper, capitalOfACapitalIsItself) {
  for (wchar_t c = 0; c < 0xFFFF; ++c) {
    ASSERT_EQ(ordinalUpper(ordinalUpper(c)), ordinalUpper(c)) << static_cast<unsigned>(c);
  }
}

TEST(EqualIgnoringCase, comparesWholeTexts) {
  EXPECT_TRUE(equalIgnoringCase(L"", L""));
  EXPECT_TRUE(equalIgnoringCase(L"\u017B\u00F3\u0142w.TXT", L"\u017C\u00D3\u0141W.txt"));
  EXPECT_FALSE(equalIgnoringCase(L"a", L"ab"));
  EXPECT_FALSE(equalIgnoringCase(L"ab", L"a"));
  EXPECT_FALSE(equalIgnoringCase(L"a", L"b"));
}

TEST(NameOrder, ignoresCaseAndIsOrdinal) {
  std::vector<std::wstring> names = {L"b",  L"B1", L"a b", L"_",      L"10",    L"9",
                                     L"ab", L"a",  L"C",   L"\u00E4", L"A.txt", L""};
  std::ranges::sort(names, nameComesBefore);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"", L"10", L"9", L"a", L"a b", L"A.txt", L"ab", L"b",
                                              L"B1", L"C", L"_", L"\u00E4"}));
}

TEST(NameOrder, namesThatDifferInCaseOnlyStandInPlainOrder) {
  EXPECT_TRUE(nameComesBefore(L"A", L"a"));
  EXPECT_FALSE(nameComesBefore(L"a", L"A"));
  EXPECT_FALSE(nameComesBefore(L"a", L"a"));
}

TEST(NameOrder, isAnOrderForEveryThreeNames) {
  const std::vector<std::wstring> names = {L"",   L"a", L"A", L"aB",    L"Ab",
                                           L"ab", L"b", L"_", L"\u00E9"};
  for (const auto& a : names) {
    for (const auto& b : names) {
      EXPECT_FALSE(nameComesBefore(a, b) && nameComesBefore(b, a));
      EXPECT_TRUE(a == b || nameComesBefore(a, b) || nameComesBefore(b, a));
      for (const auto& c : names) {
        if (nameComesBefore(a, b) && nameComesBefore(b, c)) {
          EXPECT_TRUE(nameComesBefore(a, c));
        }
      }
    }
  }
}

TEST(Trimmed, takesBlanksAndLineEndsOffBothEnds) {
  EXPECT_EQ(trimmed(L" \t\r\n\v\fa b\r\n"), L"a b");
  EXPECT_EQ(trimmed(L"a"), L"a");
  EXPECT_EQ(trimmed(L" \r\n"), L"");
  EXPECT_EQ(trimmed(L""), L"");
  EXPECT_EQ(trimmed(L"\u00A0a"), L"\u00A0a");
}

}  // namespace
}  // namespace kalvora
