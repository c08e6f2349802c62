// The days of the calendar.

#include "WhatComesFixture.h"

namespace kalvora {
namespace {

using namespace std::chrono;

TEST_F(WhatComesTest, aDaySelectsItsFirstRow) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}, {L"Bread.tx1", "7|00|x"}};
  form_.Form_Load();
  form_.chooseDay(kMondayOfNow + days(2));
  EXPECT_EQ(selectedText(), L"2026-11-25|7:00|Bread|Daily|");
  EXPECT_EQ(view_.scrolledTo, view_.selected);
  EXPECT_EQ(view_.span, ComingSpan::Week);
}

TEST_F(WhatComesTest, aDayBeyondTheSpanMakesItLonger) {
  folder_.notes = {{L"Rent.tx3", "20|||x"}};
  form_.Form_Load();
  EXPECT_EQ(view_.notice, L"Nothing is due in this time.");
  form_.chooseDay(local_days{2026y / December / 20});
  EXPECT_EQ(view_.span, ComingSpan::Month);
  EXPECT_EQ(selectedText(), L"2026-12-20||Rent|Monthly|");
  form_.chooseDay(local_days{2027y / October / 20});
  EXPECT_EQ(view_.span, ComingSpan::Year);
  EXPECT_EQ(selectedText(), L"2027-10-20||Rent|Monthly|");
}

TEST_F(WhatComesTest, aDayWithoutRowsIsToldAndChangesNothing) {
  folder_.notes = {{L"Rent.tx3", "24|||x"}};
  form_.Form_Load();
  view_.selected = 0;
  form_.chooseDay(local_days{2026y / December / 20});
  EXPECT_EQ(view_.notice, L"Nothing is due on that day.");
  EXPECT_EQ(view_.span, ComingSpan::Week);
  EXPECT_EQ(view_.selected, 0U);
  form_.chooseDay(kMondayOfNow + days(1));
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(WhatComesTest, aDayThatIsOverOrMoreThanAYearAwayIsToldAsThat) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}};
  form_.Form_Load();
  form_.chooseDay(kMondayOfNow - days(1));
  EXPECT_EQ(view_.notice, L"That day is over.");
  form_.chooseDay(kMondayOfNow + days(365));
  EXPECT_EQ(view_.notice, L"What comes is listed for a year, and no further.");
  form_.chooseDay(kMondayOfNow + days(364));
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(WhatComesTest, aDayThatHasARowSinceIsNoLongerSaidToHaveNone) {
  folder_.notes = {{L"Rent.tx3", "24|||x"}};
  form_.Form_Load();
  form_.chooseDay(kMondayOfNow + days(2));
  EXPECT_EQ(view_.notice, L"Nothing is due on that day.");
  folder_.notes[L"Bread.tx1"] = "7|0|x";
  form_.activated();
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(WhatComesTest, aDayThatIsChosenBeforeAnythingIsReadIsNotSaidToBeEmpty) {
  manyNotes();
  form_.Form_Load();
  ASSERT_TRUE(view_.notice.starts_with(L"Reading notes"));
  form_.chooseDay(kMondayOfNow);
  for (int i = 0; i < 100 && view_.notice.starts_with(L"Reading notes"); ++i) form_.tick();
  EXPECT_EQ(view_.notice, L"");
}

TEST_F(WhatComesTest, daysBecomeBoldWhenNotesAreReadAndWhenMarksChange) {
  folder_.notes = {{L"Gym.tx1", "18|30|x"}};
  form_.Form_Load();
  EXPECT_EQ(view_.timesBold, 1);
  host_.marks.snoozed = {{LocalMinute(kMondayOfNow + days(3)), L"Gym.tx1"}};
  form_.tick();
  EXPECT_EQ(view_.timesBold, 2);
  form_.tick();
  EXPECT_EQ(view_.timesBold, 2);
}

TEST_F(WhatComesTest, boldDaysAreThoseOfTheYear) {
  folder_.notes = {{L"Rent.tx3", "20|||x"}, {L"Trip.tx5", "2026|12|31|7|0|x"}};
  form_.Form_Load();
  EXPECT_EQ(form_.boldDays(2026y / November), 0U);
  EXPECT_EQ(form_.boldDays(2026y / December), (1U << 19U) | (1U << 30U));
  EXPECT_EQ(form_.boldDays(2027y / November), 1U << 19U);
  EXPECT_EQ(form_.boldDays(2027y / December), 0U);
  EXPECT_EQ(form_.boldDays(2026y / October), 0U);
}

}  // namespace
}  // namespace kalvora
