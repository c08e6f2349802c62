#include "base/Errors.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(Failures, tellTheirSentenceAndAnAsciiFormOfIt) {
  const Failure failure(L"Caf\u00E9 closed");
  EXPECT_EQ(failure.message(), L"Caf\u00E9 closed");
  EXPECT_STREQ(failure.what(), "Caf? closed");
}

TEST(ConversionErrors, holdTheTextWholeAndShowIt) {
  const ConversionError error(L"ten");
  EXPECT_EQ(error.text(), L"ten");
  EXPECT_NE(error.message().find(L"\"ten\""), std::wstring::npos);
}

TEST(ConversionErrors, showTheBeginningOfALongTextOnly) {
  const std::wstring text(32000, L'x');
  const ConversionError error(text);
  EXPECT_EQ(error.text(), text);
  EXPECT_LT(error.message().size(), 200U);
  EXPECT_NE(error.message().find(L"xxx...\""), std::wstring::npos);
}

TEST(ConversionErrors, showNoControlCharacters) {
  const std::wstring text(L"a\0\r\n\tb", 6);
  const ConversionError error(text);
  EXPECT_EQ(error.text(), text);
  EXPECT_NE(error.message().find(L"\"a    b\""), std::wstring::npos);
}

TEST(OverflowErrors, holdAndShowTheNumber) {
  const OverflowError error(40000);
  EXPECT_EQ(error.value(), 40000);
  EXPECT_NE(error.message().find(L"40000"), std::wstring::npos);
}

TEST(FileErrors, holdAndShowTheFile) {
  const std::filesystem::path file = std::filesystem::path("notes") / "a.txt";
  const FileError error(L"This file cannot be read: ", file);
  EXPECT_EQ(error.file(), file);
  EXPECT_EQ(error.message(), L"This file cannot be read: " + file.wstring());
}

TEST(Failures, areCaughtAsFailures) {
  EXPECT_THROW(throw ConversionError(L"a"), Failure);
  EXPECT_THROW(throw OverflowError(1), Failure);
  EXPECT_THROW(throw FileError(L"", "a"), Failure);
}

}  // namespace
}  // namespace kalvora
