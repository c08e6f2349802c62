#include "win32/platform/SystemCodePage.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace kalvora {
namespace {

std::string everyByte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST(SystemCodePage, emptyStaysEmpty) {
  EXPECT_EQ(SystemCodePage().toText(""), L"");
  EXPECT_EQ(SystemCodePage().toBytes(L""), "");
}

TEST(SystemCodePage, asciiAndNulStandForThemselves) {
  const std::string bytes("a|\r\n\0z", 6);
  const std::wstring text(L"a|\r\n\0z", 6);
  EXPECT_EQ(SystemCodePage().toText(bytes), text);
  EXPECT_EQ(SystemCodePage().toBytes(text), bytes);
}

TEST(SystemCodePage, everyByteComesBackInASingleByteCodePage) {
  CPINFO info{};
  ASSERT_TRUE(GetCPInfo(CP_ACP, &info));
  ASSERT_EQ(info.MaxCharSize, 1U) << "run these tests in a system with a single-byte code page";
  EXPECT_EQ(SystemCodePage().toBytes(SystemCodePage().toText(everyByte())), everyByte());
}

TEST(SystemCodePage, fixedWesternTableIsTheSystemsOwn) {
  ASSERT_EQ(GetACP(), 1252U) << "run these tests in a Western system";
  EXPECT_EQ(Windows1252().toText(everyByte()), SystemCodePage().toText(everyByte()));
  for (wchar_t c = 0; c < 0xD800; ++c) {
    const std::wstring text(1, c);
    ASSERT_EQ(Windows1252().toBytes(text), SystemCodePage().toBytes(text)) << unsigned{c};
  }
}

TEST(SystemCodePage, characterThatItCannotHoldIsReplacedNotImitated) {
  ASSERT_EQ(GetACP(), 1252U) << "run these tests in a Western system";
  EXPECT_EQ(SystemCodePage().toBytes(L"\u0141\u221E\u4E2Dx"), "???x");
}

TEST(SystemCodePage, convertsLongTextsWhole) {
  const std::string bytes(1U << 20U, 'x');
  EXPECT_EQ(SystemCodePage().toBytes(SystemCodePage().toText(bytes)), bytes);
}

}  // namespace
}  // namespace kalvora
