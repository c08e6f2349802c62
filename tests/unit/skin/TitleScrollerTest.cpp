#include "skin/TitleScroller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kalvora {
namespace {

using testing::ElementsAre;

class RecordedTimers : public ScrollTimers {
 public:
  void startScrool(int milliseconds) override { scrool = milliseconds; }
  void stopScrool() override { scrool = 0; }
  void startPoczekaj(int milliseconds) override { poczekaj = milliseconds; }
  void stopPoczekaj() override { poczekaj = 0; }

  // Their intervals, 0 while stopped.
  int scrool = 200;
  int poczekaj = 0;
};

/// The row as a text: a dot for a blank cell.
std::string shownBy(const TitleScroller& scroller) {
  std::string text;
  for (const auto& cell : scroller.row()) text += cell ? static_cast<char>(*cell) : '.';
  return text;
}

class TitleScrollerTest : public testing::Test {
 protected:
  /// Runs the timer that is due next. Returns the milliseconds that passed.
  int passTurn() {
    if (timers.poczekaj > 0) {
      const int waited = timers.poczekaj;
      scroller.poczekajTick();
      return waited;
    }
    const int waited = timers.scrool;
    if (waited > 0) scroller.scroolTick();
    return waited;
  }

  RecordedTimers timers;
  TitleScroller scroller{timers};
};

struct Turn {
  int position;
  const char* row;
};

constexpr Turn kWholeCycle[] = {
    {0, ".Shopping list......"},   {-1, "Shopping list......."},  {-2, "hopping list........"},
    {-3, "opping list........."},  {-4, "pping list.........."},  {-5, "ping list..........."},
    {-6, "ing list............"},  {-7, "ng list............."},  {-8, "g list.............."},
    {-9, " list..............."},  {-10, "list................"}, {-11, "ist................."},
    {-12, "st.................."}, {-13, "t..................."}, {19, "...................."},
    {18, "...................S"},  {17, "..................Sh"},  {16, ".................Sho"},
    {15, "................Shop"},  {14, "...............Shopp"},  {13, "..............Shoppi"},
    {12, ".............Shoppin"},  {11, "............Shopping"},  {10, "...........Shopping "},
    {9, "..........Shopping l"},   {8, ".........Shopping li"},   {7, "........Shopping lis"},
    {6, ".......Shopping list"},   {5, "......Shopping list."},   {4, ".....Shopping list.."},
    {3, "....Shopping list..."},   {2, "...Shopping list...."},   {1, "..Shopping list....."},
    {0, ".Shopping list......"}};

TEST_F(TitleScrollerTest, aWholeCycleOfThirteenCharactersInTwentyCells) {
  scroller.setLength(20);
  scroller.Aktualizuj_Scrool(L"Shopping list.txt", ScrollText::FileName);
  EXPECT_EQ(passTurn(), 1);
  for (const Turn& turn : kWholeCycle) {
    ASSERT_NE(timers.scrool, 0) << turn.position;
    EXPECT_EQ(passTurn(), 200);
    EXPECT_EQ(scroller.position(), turn.position);
    EXPECT_EQ(shownBy(scroller), turn.row) << turn.position;
    if (turn.position == 0) {
      EXPECT_EQ(timers.scrool, 0);
      EXPECT_EQ(passTurn(), 5000);
    }
    EXPECT_EQ(timers.poczekaj, 0) << turn.position;
  }
}

TEST_F(TitleScrollerTest, aNewTextWaitsOneMillisecondAndThenStandsAtRest) {
  scroller.setLength(8);
  scroller.Aktualizuj_Scrool(L"Milk", ScrollText::Plain);
  EXPECT_EQ(timers.scrool, 0);
  EXPECT_EQ(timers.poczekaj, 1);
  EXPECT_EQ(scroller.position(), 1);
  scroller.poczekajTick();
  EXPECT_EQ(timers.scrool, 200);
  EXPECT_EQ(timers.poczekaj, 0);
  scroller.scroolTick();
  EXPECT_EQ(shownBy(scroller), ".Milk...");
  EXPECT_EQ(timers.scrool, 0);
  EXPECT_EQ(timers.poczekaj, 5000);
}

TEST_F(TitleScrollerTest, anEmptyTextLeavesTheRowBlankAndStillRestsAtPositionZero) {
  scroller.setLength(5);
  scroller.Aktualizuj_Scrool(L"", ScrollText::Plain);
  passTurn();
  std::vector<int> positions;
  std::vector<int> rests;
  for (int i = 0; i < 7; ++i) {
    passTurn();
    positions.push_back(scroller.position());
    EXPECT_EQ(shownBy(scroller), ".....");
    if (timers.poczekaj > 0) rests.push_back(passTurn());
  }
  EXPECT_THAT(positions, ElementsAre(0, 4, 3, 2, 1, 0, 4));
  EXPECT_THAT(rests, ElementsAre(5000, 5000));
}

TEST_F(TitleScrollerTest, aTextAsLongAsTheLastCellsNumberRestsInEveryCellButTheFirst) {
  scroller.setLength(6);
  scroller.Aktualizuj_Scrool(L"abcde", ScrollText::Plain);
  passTurn();
  passTurn();
  EXPECT_EQ(shownBy(scroller), ".abcde");
}

TEST_F(TitleScrollerTest, aLongerTextShowsOneCharacterMoreWhileItLeavesThanAtRest) {
  scroller.setLength(6);
  scroller.Aktualizuj_Scrool(L"abcdefgh", ScrollText::Plain);
  passTurn();
  std::vector<std::string> rows;
  for (int i = 0; i < 16; ++i) {
    if (timers.poczekaj > 0) passTurn();
    passTurn();
    rows.push_back(shownBy(scroller));
  }
  EXPECT_THAT(rows, ElementsAre(".abcde", "abcdef", "bcdefg", "cdefgh", "defgh.", "efgh..",
                                "fgh...", "gh....", "h.....", "......", ".....a", "....ab",
                                "...abc", "..abcd", ".abcde", "abcdef"));
}

TEST_F(TitleScrollerTest, anotherNoteDuringTheRestShowsAtOnce) {
  scroller.setLength(8);
  scroller.Aktualizuj_Scrool(L"Milk.txt", ScrollText::FileName);
  passTurn();
  passTurn();
  ASSERT_EQ(timers.poczekaj, 5000);
  scroller.Aktualizuj_Scrool(L"Rent.tx3", ScrollText::FileName);
  EXPECT_EQ(timers.poczekaj, 1);
  EXPECT_EQ(passTurn(), 1);
  EXPECT_EQ(passTurn(), 200);
  EXPECT_EQ(shownBy(scroller), ".Rent...");
}

TEST_F(TitleScrollerTest, anotherNoteInTheMiddleOfTheWayShowsAtOnce) {
  scroller.setLength(8);
  scroller.Aktualizuj_Scrool(L"Milk", ScrollText::Plain);
  for (int i = 0; i < 8; ++i) passTurn();
  scroller.Aktualizuj_Scrool(L"Rent", ScrollText::Plain);
  EXPECT_EQ(timers.scrool, 0);
  passTurn();
  passTurn();
  EXPECT_EQ(shownBy(scroller), ".Rent...");
}

TEST_F(TitleScrollerTest, onlyAFileNameLosesItsLastFourCharacters) {
  scroller.Aktualizuj_Scrool(L"Shopping.txt", ScrollText::FileName);
  EXPECT_EQ(scroller.text(), L"Shopping");
  scroller.Aktualizuj_Scrool(L"Shopping.txt", ScrollText::Plain);
  EXPECT_EQ(scroller.text(), L"Shopping.txt");
  scroller.Aktualizuj_Scrool(L".txt", ScrollText::FileName);
  EXPECT_EQ(scroller.text(), L"");
}

TEST_F(TitleScrollerTest, aFileNameShorterThanAnExtensionScrollsWhole) {
  for (const wchar_t* name : {L"", L"a", L"ab", L"abc"}) {
    scroller.Aktualizuj_Scrool(name, ScrollText::FileName);
    EXPECT_EQ(scroller.text(), name);
  }
}

TEST_F(TitleScrollerTest, aRowOfOneCellShowsOneCharacterAfterTheOther) {
  scroller.setLength(1);
  scroller.Aktualizuj_Scrool(L"ab", ScrollText::Plain);
  std::vector<std::string> rows;
  for (int i = 0; i < 5; ++i) {
    while (timers.poczekaj > 0) passTurn();
    passTurn();
    rows.push_back(shownBy(scroller));
  }
  EXPECT_THAT(rows, ElementsAre(".", "a", "b", ".", "a"));
}

TEST_F(TitleScrollerTest, aRowOfNoCellsShowsNothing) {
  for (const int cells : {0, -3}) {
    scroller.setLength(cells);
    scroller.Aktualizuj_Scrool(L"abc", ScrollText::Plain);
    for (int i = 0; i < 50; ++i) passTurn();
    EXPECT_TRUE(scroller.row().empty());
  }
}

TEST_F(TitleScrollerTest, aShorterRowInTheMiddleOfTheWayIsBlankAndThenGoesOn) {
  scroller.setLength(12);
  scroller.Aktualizuj_Scrool(L"Milk", ScrollText::Plain);
  for (int i = 0; i < 9; ++i) passTurn();
  ASSERT_EQ(scroller.position(), 10);
  scroller.setLength(4);
  EXPECT_EQ(shownBy(scroller), "....");
  for (int i = 0; i < 8; ++i) passTurn();
  EXPECT_EQ(shownBy(scroller), "...M");
}

TEST_F(TitleScrollerTest, goingOnAtOnceKeepsTheTextWhereItStands) {
  scroller.setLength(8);
  scroller.Aktualizuj_Scrool(L"Milk", ScrollText::Plain);
  passTurn();
  passTurn();
  scroller.goOnAtOnce();
  EXPECT_EQ(timers.scrool, 0);
  EXPECT_EQ(timers.poczekaj, 1);
  passTurn();
  passTurn();
  EXPECT_EQ(shownBy(scroller), "Milk....");
}

}  // namespace
}  // namespace kalvora
