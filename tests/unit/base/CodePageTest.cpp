#include "base/CodePage.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

const Windows1252 kCodePage;

TEST(Windows1252, asciiAndNulStandForThemselves) {
  const std::string bytes("a|\r\n\0z", 6);
  EXPECT_EQ(kCodePage.toText(bytes), std::wstring(L"a|\r\n\0z", 6));
  EXPECT_EQ(kCodePage.toBytes(std::wstring(L"a|\r\n\0z", 6)), bytes);
}

TEST(Windows1252, upperBytesHaveTheirWesternCharacters) {
  EXPECT_EQ(kCodePage.toText("\x80\x8A\x99\x9F\xA0\xE9\xFF"),
            L"\u20AC\u0160\u2122\u0178\u00A0\u00E9\u00FF");
}

TEST(Windows1252, everyByteComesBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    EXPECT_EQ(kCodePage.toText(byte).size(), 1U);
    EXPECT_EQ(kCodePage.toBytes(kCodePage.toText(byte)), byte) << code;
  }
}

TEST(Windows1252, characterThatItCannotHoldIsAQuestionMark) {
  EXPECT_EQ(kCodePage.toBytes(L"\u0142\u4E2D\u0080x"), "???x");
}

TEST(Windows1252, emptyStaysEmpty) {
  EXPECT_EQ(kCodePage.toText(""), L"");
  EXPECT_EQ(kCodePage.toBytes(L""), "");
}

}  // namespace
}  // namespace kalvora
