#include "base/DeviceName.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(DeviceName, isKnownWithEveryExtensionAndInAllLetters) {
  for (const wchar_t* name :
       {L"con", L"PRN", L"aux.tx2", L"Nul.txt", L"com1.txt", L"COM9", L"lpt1.a.b", L"LPT9.tx1",
        L"com\u00B9.txt", L"lpt\u00B2", L"COM\u00B3.txt", L"aux .txt", L"aux:stream", L"conin$",
        L"CONOUT$.txt"}) {
    EXPECT_TRUE(namesDevice(name)) << testing::PrintToString(name);
  }
}

TEST(DeviceName, isNoNameThatOnlyLooksLikeIt) {
  for (const wchar_t* name :
       {L"", L"a.txt", L"auxiliary.txt", L"com.txt", L"com0.txt", L"com10.txt", L"lpt.tx1",
        L"my aux.txt", L" aux.txt", L".aux", L"console", L"com1a.txt", L"1"}) {
    EXPECT_FALSE(namesDevice(name)) << testing::PrintToString(name);
  }
}

}  // namespace
}  // namespace kalvora
