#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(Utf8, charactersTakeOneToFourBytes) {
  EXPECT_EQ(toUtf8(L"a"), "a");
  EXPECT_EQ(toUtf8(L"\u017C"), "\xC5\xBC");
  EXPECT_EQ(toUtf8(L"\u65E5"), "\xE6\x97\xA5");
  EXPECT_EQ(toUtf8(std::wstring{L'\xD83D', L'\xDE00'}), "\xF0\x9F\x98\x80");
}

TEST(Utf8, everyTextOf16BitCharactersComesBack) {
  std::wstring text;
  for (int code = 0; code <= 0xFFFF; ++code) text += static_cast<wchar_t>(code);
  EXPECT_EQ(fromUtf8(toUtf8(text)), text);
  const std::wstring pairs = {L'\xD83D', L'\xDE00', L'a', L'\xDE00', L'\xD83D'};
  EXPECT_EQ(fromUtf8(toUtf8(pairs)), pairs);
}

TEST(Utf8, aCharacterBeyond16BitsIsReadAsAPair) {
  EXPECT_EQ(fromUtf8("\xF0\x9F\x98\x80"), (std::wstring{L'\xD83D', L'\xDE00'}));
}

TEST(Utf8, whatIsNoUtf8IsReplacedAndTheRestIsRead) {
  EXPECT_EQ(fromUtf8("a\xFF"
                     "b"),
            L"a\uFFFDb");
  EXPECT_EQ(fromUtf8("a\xE6\x97"), L"a\uFFFD");
}

}  // namespace
}  // namespace kalvora
