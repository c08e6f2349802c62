#include "base/Errors.h"

#include <gtest/gtest.h>

#include <limits>

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
  EXPECT_EQ(error.message(), L"The number 40000 is too large.");
}

TEST(OverflowErrors, sayWhichWayTheNumberIsOut) {
  EXPECT_EQ(OverflowError(-40000).message(), L"The number -40000 is too small.");
  EXPECT_EQ(OverflowError(32767.5).message(), L"The number 32767.5 is too large.");
}

TEST(OverflowErrors, showNoNumberThatNobodyCouldWriteOut) {
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  EXPECT_EQ(OverflowError(kEndless).message(), L"The number is too large.");
  EXPECT_EQ(OverflowError(-kEndless).message(), L"The number is too small.");
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
