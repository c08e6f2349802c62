#include "base/Numbers.h"

#include <gtest/gtest.h>

#include "base/Errors.h"

namespace kalvora {
namespace {

TEST(Numbers, roundHalvesToTheEvenNeighbour) {
  EXPECT_EQ(toInt16(0.5), 0);
  EXPECT_EQ(toInt16(1.5), 2);
  EXPECT_EQ(toInt16(2.5), 2);
  EXPECT_EQ(toInt16(-0.5), 0);
  EXPECT_EQ(toInt16(-1.5), -2);
  EXPECT_EQ(toInt16(303.5), 304);
}

TEST(Numbers, sixteenBitsHaveTwoEnds) {
  EXPECT_EQ(toInt16(32767), 32767);
  EXPECT_EQ(toInt16(-32768), -32768);
  EXPECT_THROW(toInt16(32768), OverflowError);
  EXPECT_THROW(toInt16(-32769), OverflowError);
  EXPECT_THROW(add16(32767, 1), OverflowError);
}

TEST(Numbers, textToInt16TakesDecimalTexts) {
  EXPECT_EQ(textToInt16(L"10"), 10);
  EXPECT_EQ(textToInt16(L" +7 "), 7);
  EXPECT_EQ(textToInt16(L"-12"), -12);
  EXPECT_EQ(textToInt16(L"2.5"), 2);
  EXPECT_EQ(textToInt16(L"1e3"), 1000);
}

TEST(Numbers, textThatIsNoNumberIsAConversionErrorWithTheText) {
  for (const wchar_t* text : {L"", L" ", L"ten", L"1 0", L"--1", L"+-1", L"++1", L"-+1", L"inf",
                              L"nan", L"0x10", L"1,5", L"9\u0663", L"5px"}) {
    EXPECT_THROW(textToInt16(text), ConversionError) << std::wstring(text).size();
  }
  try {
    textToInt16(L"ten");
  } catch (const ConversionError& error) {
    EXPECT_EQ(error.text(), L"ten");
  }
}

TEST(Numbers, textTooLargeForItsPlaceOverflows) {
  EXPECT_THROW(textToInt16(L"40000"), OverflowError);
  EXPECT_THROW(textToInt32(L"2147483648"), OverflowError);
  EXPECT_EQ(textToInt32(L"2147483647"), 2147483647);
  EXPECT_THROW(textToInt16(L"1e999"), OverflowError);
  EXPECT_EQ(textToInt16(L"1e-999"), 0);
  EXPECT_THROW(textToSingle(L"1e39"), OverflowError);
  EXPECT_FLOAT_EQ(textToSingle(L"12.25"), 12.25F);
}

TEST(Numbers, fractionJustBelowAHalfGoesDown) {
  EXPECT_EQ(toInt16(0.49999999999999994), 0);
  EXPECT_EQ(toInt16(-0.49999999999999994), 0);
  EXPECT_EQ(toInt16(32767.4999), 32767);
  EXPECT_THROW(toInt16(32767.5), OverflowError);
  EXPECT_EQ(toInt16(-32768.5), -32768);
}

TEST(Numbers, numberOfManyDigitsIsJudgedByItsSizeNotItsForm) {
  const std::wstring zeros(400, L'0');
  EXPECT_EQ(textToInt16(L"0." + zeros + L"1"), 0);
  EXPECT_THROW(textToInt16(L"1" + zeros + L"e-5"), OverflowError);
  EXPECT_THROW(textToInt16(L"-1" + zeros), OverflowError);
  EXPECT_EQ(textToInt16(zeros + L"7"), 7);
}

TEST(Numbers, pointsAndExponentsNeedDigits) {
  EXPECT_EQ(textToInt16(L".6"), 1);
  EXPECT_EQ(textToInt16(L"6."), 6);
  for (const wchar_t* text : {L".", L"-", L"+", L"e5", L"1e", L"1e+", L"1-2", L"1.2.3", L"- 1"}) {
    EXPECT_THROW(textToInt16(text), ConversionError) << std::wstring(text).size();
  }
}

TEST(Numbers, booleansAreWordsInAnyCaseOrNumbers) {
  EXPECT_TRUE(textToBoolean(L"TRUE"));
  EXPECT_TRUE(textToBoolean(L"True"));
  EXPECT_FALSE(textToBoolean(L"fAlSe"));
  EXPECT_FALSE(textToBoolean(L"0"));
  EXPECT_TRUE(textToBoolean(L"-1"));
  EXPECT_TRUE(textToBoolean(L"0.25"));
  EXPECT_THROW(textToBoolean(L""), ConversionError);
  EXPECT_THROW(textToBoolean(L"yes"), ConversionError);
  EXPECT_EQ(booleanToText(true), L"True");
  EXPECT_EQ(booleanToText(false), L"False");
}

TEST(Numbers, twipsAreCheckedIn16Bits) {
  EXPECT_EQ(toTwips(200), 3000);
  EXPECT_EQ(toTwips(2184), 32760);
  EXPECT_THROW(toTwips(2185), OverflowError);
  EXPECT_EQ(toTwips(-2184), -32760);
  EXPECT_THROW(toTwips(-2185), OverflowError);
  EXPECT_EQ(toPixels(3000), 200);
}

TEST(Numbers, textsAreShort) {
  EXPECT_EQ(numberToText(0), L"0");
  EXPECT_EQ(numberToText(-32768), L"-32768");
  EXPECT_EQ(singleToText(12.0F), L"12");
  EXPECT_EQ(singleToText(12.5F), L"12.5");
  EXPECT_EQ(singleToText(0.1F), L"0.1");
  EXPECT_EQ(singleToText(-16777216.0F), L"-16777216");
  EXPECT_EQ(doubleToText(40000), L"40000");
  EXPECT_EQ(doubleToText(123456), L"123456");
  EXPECT_EQ(doubleToText(100000), L"100000");
  EXPECT_EQ(doubleToText(0.0001), L"0.0001");
  EXPECT_EQ(doubleToText(-32768.5), L"-32768.5");
  EXPECT_EQ(doubleToText(0.1 + 0.2), L"0.30000000000000004");
  EXPECT_EQ(doubleToText(1e300), L"1e+300");
}

}  // namespace
}  // namespace kalvora
