#include "alarms/TimeTableScanner.h"

#include <gtest/gtest.h>

#include <string>

namespace kalvora {
namespace {

using namespace std::string_view_literals;

std::int16_t firstNumber(std::wstring_view table) {
  return TimeTableScanner().Czytaj_zmienna_na_kolejke(table);
}

TEST(TimeTableScanner, readsAnEntryWithTwoNumberScansAndOneNameScan) {
  const std::wstring_view table = L"7:30-Gym.tx2|8:5-Rent.txt|";
  TimeTableScanner scanner;
  EXPECT_EQ(scanner.position(), 0U);
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke(table), 7);
  EXPECT_EQ(scanner.position(), 2U);
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke(table), 30);
  EXPECT_EQ(scanner.position(), 5U);
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke_plik(table), L"Gym.tx2");
  EXPECT_EQ(scanner.position(), 13U);
  EXPECT_FALSE(scanner.atEnd());
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke(table), 8);
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke(table), 5);
  EXPECT_FALSE(scanner.atEnd());
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke_plik(table), L"Rent.txt");
  EXPECT_TRUE(scanner.atEnd());
  EXPECT_EQ(scanner.position(), table.size());
}

TEST(TimeTableScanner, anEmptyTableHasNoNumberAndNoNameAndIsAtItsEnd) {
  TimeTableScanner scanner;
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke(L""), -1);
  EXPECT_TRUE(scanner.atEnd());
  EXPECT_EQ(scanner.position(), 1U);
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke_plik(L""), L"-1");
  EXPECT_TRUE(scanner.atEnd());
  EXPECT_EQ(scanner.position(), 2U);
}

TEST(TimeTableScanner, aNumberEndsAtAColonABarOrADash) {
  EXPECT_EQ(firstNumber(L"12:3"), 12);
  EXPECT_EQ(firstNumber(L"12|3"), 12);
  EXPECT_EQ(firstNumber(L"12-3"), 12);
}

TEST(TimeTableScanner, noDigitsAreNoNumber) {
  EXPECT_EQ(firstNumber(L":30-a|"), -1);
  EXPECT_EQ(firstNumber(L"-30"), -1);
  EXPECT_EQ(firstNumber(L"\0:"sv), -1);
}

TEST(TimeTableScanner, anotherCharacterThrowsAwayTheDigitsBeforeIt) {
  EXPECT_EQ(firstNumber(L"12a34:"), 34);
  EXPECT_EQ(firstNumber(L" 7:"), 7);
  EXPECT_EQ(firstNumber(L"7 :"), -1);
  EXPECT_EQ(firstNumber(L"7\0:"sv), -1);
}

TEST(TimeTableScanner, leadingZerosDoNotMatter) {
  EXPECT_EQ(firstNumber(L"007:"), 7);
  EXPECT_EQ(firstNumber(L"0:"), 0);
  EXPECT_EQ(firstNumber(L"0000000000000000000009:"), 9);
}

TEST(TimeTableScanner, aNumberAtTheVeryEndIsReadAndSetsTheFlag) {
  TimeTableScanner scanner;
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke(L"73"), 73);
  EXPECT_TRUE(scanner.atEnd());
}

TEST(TimeTableScanner, digitsBeyond16BitsAreNoNumberAndNoFailure) {
  EXPECT_EQ(firstNumber(L"32767:"), 32767);
  EXPECT_EQ(firstNumber(L"32768:"), -1);
  EXPECT_EQ(firstNumber(std::wstring(5000, L'9') + L":"), -1);
  // As 16 bits overflow these would be 7 and 0.
  EXPECT_EQ(firstNumber(L"65543:"), -1);
  EXPECT_EQ(firstNumber(L"4294967296:"), -1);
}

TEST(TimeTableScanner, digitsAfterATooLongNumberThatWasThrownAwayCountAgain) {
  EXPECT_EQ(firstNumber(L"99999x7:"), 7);
}

TEST(TimeTableScanner, anEmptyNameIsMinusOne) {
  EXPECT_EQ(TimeTableScanner().Czytaj_zmienna_na_kolejke_plik(L"|a|"), L"-1");
}

TEST(TimeTableScanner, aNameWithoutItsBarKeepsItsLastCharacterAndSetsTheFlag) {
  TimeTableScanner scanner;
  EXPECT_EQ(scanner.Czytaj_zmienna_na_kolejke_plik(L"Gym.tx2"), L"Gym.tx2");
  EXPECT_TRUE(scanner.atEnd());
  EXPECT_EQ(scanner.position(), 7U);
}

TEST(TimeTableScanner, everyScanClearsTheFlagOfTheOneBefore) {
  const std::wstring_view table = L"1:";
  TimeTableScanner scanner;
  scanner.Czytaj_zmienna_na_kolejke(table);
  ASSERT_TRUE(scanner.atEnd());
  // A longer table in the same place: what is not at its end is not flagged.
  scanner.Czytaj_zmienna_na_kolejke(L"1:2:3:");
  EXPECT_FALSE(scanner.atEnd());
}

}  // namespace
}  // namespace kalvora
