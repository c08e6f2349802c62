#include "Form1Fixture.h"

namespace kalvora {
namespace {

class DateRow : public Form1Test {};

TEST_F(DateRow, isDrawnAnewEveryFiveSeconds) {
  skinValues.set(L"Graphic Text", L"Current Date, Length", L"12");
  form().Form_Load();
  EXPECT_EQ(view.timers[TimerId::Date_Update], 5000);
  clock.time = {2026, 12, 9, 3, 0, 0, 1};
  tick(TimerId::Date_Update);
  // 2026-12-9: the glyphs of the digits start at 26, the hyphen is 39.
  const std::vector<int> expected{28, 26, 28, 32, 39, 27, 28, 39, 35, 56, 56, 56};
  for (int cell = 0; cell < 12; ++cell) {
    EXPECT_EQ(form().window().glyphAt(RowId::lit_czas2, cell),
              expected[static_cast<std::size_t>(cell)]);
  }
}

TEST_F(DateRow, aDateTooLongForItsRowIsCutAtTheRightEnd) {
  skinValues.set(L"Graphic Text", L"Current Date, Length", L"4");
  form().Form_Load();
  tick(TimerId::Date_Update);
  EXPECT_EQ(form().window().rowLength(RowId::lit_czas2), 4);
  EXPECT_EQ(form().window().glyphAt(RowId::lit_czas2, 3), 32);
}

class Timers : public Form1Test {};

TEST_F(Timers, haveTheirIntervals) {
  store.values[L"Graph/Window1_interval"] = L"17";
  store.values[L"Graph/Window2_interval"] = L"23";
  form().Form_Load();
  EXPECT_EQ(view.timers[TimerId::Spr1m], 900);
  form().Nastepny_Load_Formy();
  EXPECT_EQ(view.timers[TimerId::Timer1], 17);
  EXPECT_EQ(view.timers[TimerId::Poczekaj], 1);
  tick(TimerId::Poczekaj);
  EXPECT_EQ(view.timers[TimerId::scrool], 200);
  EXPECT_FALSE(view.runs(TimerId::Poczekaj));
  click(ButtonId::Buttons_Down);
  EXPECT_EQ(view.timers[TimerId::Timer2], 23);
}

}  // namespace
}  // namespace kalvora
