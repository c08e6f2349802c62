#include "app/WindowMotion.h"

#include "WindowMotionFixture.h"

namespace kalvora {
namespace {

TEST_F(WindowMotions, theWindowComesOutOneWidthToTheRightAndSlidesHomeInTwentyTicks) {
  form().Form_Load();
  form().Nastepny_Load_Formy();
  EXPECT_EQ(view.rect, (Rect{800, 300, 200, 161}));
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(view.lastActivation, Activation::TakeKeyboard);
  EXPECT_EQ(view.timers[TimerId::Timer1], 10);
  EXPECT_EQ(view.timers[TimerId::Poczekaj], 1);
  EXPECT_FALSE(view.runs(TimerId::scrool));
  EXPECT_EQ(ticksUntilStopped(TimerId::Timer1), 20);
  EXPECT_EQ(view.rect, (Rect{600, 300, 200, 161}));
}

TEST_F(WindowMotions, theIntervalsOfTheSettingsAreUsed) {
  set(L"Window1_interval", L"35");
  set(L"Window2_interval", L"0");
  bringOut();
  form().pichook_MouseMove(515);
  EXPECT_EQ(view.timers[TimerId::Timer1], 35);
  click(ButtonId::Buttons_Down);
  EXPECT_EQ(view.timers[TimerId::Timer2], 1) << "a timer of 0 would never tick";
}

TEST_F(WindowMotions, withResizingOffTheWidthStaysUntilTheLastTick) {
  set(L"ZRF1", L"False");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  for (int i = 1; i < 20; ++i) {
    tick(TimerId::Timer1);
    EXPECT_EQ(view.rect.width, 200) << i;
    EXPECT_EQ(view.rect.x, 800 - 10 * i) << i;
  }
  tick(TimerId::Timer1);
  form().pichook_MouseMove(515);
  for (int i = 1; i < 20; ++i) {
    tick(TimerId::Timer1);
    EXPECT_EQ(view.rect.width, 200) << i;
  }
  EXPECT_TRUE(view.visible);
  tick(TimerId::Timer1);
  EXPECT_EQ(view.rect.width, 0) << "the last one always writes it";
  EXPECT_EQ(view.rect.x, 800);
  EXPECT_FALSE(view.visible);
}

TEST_F(WindowMotions, withResizingOnTheRightEdgeStandsStill) {
  set(L"ZRF1", L"True");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  EXPECT_EQ(view.rect.width, 200) << "as it came out";
  for (int i = 1; i <= 20; ++i) {
    tick(TimerId::Timer1);
    EXPECT_EQ(view.rect.width, 10 * i);
    EXPECT_EQ(view.rect.right(), 800);
  }
  form().pichook_MouseMove(515);
  for (int i = 1; i <= 20; ++i) {
    tick(TimerId::Timer1);
    EXPECT_EQ(view.rect.width, 200 - 10 * i);
    EXPECT_EQ(view.rect.right(), 800);
  }
}

TEST_F(WindowMotions, theRollFollowsTheSlideOnlyWhereTheNotesAreUpAndAreToRollDown) {
  for (const bool rolledDown : {false, true}) {
    for (const bool rolls : {false, true}) {
      set(L"WysRZF1", booleanToText(rolledDown));
      set(L"AShT", booleanToText(rolls));
      Form1 out(ports());
      out.Form_Load();
      out.Nastepny_Load_Formy();
      EXPECT_EQ(view.rect.height, rolledDown ? 161 : 25);
      EXPECT_EQ(outline(), rolledDown ? Outline::Full : Outline::Rolled);
      EXPECT_EQ(fieldsShown(), rolledDown);
      while (view.runs(TimerId::Timer1)) {
        EXPECT_FALSE(view.runs(TimerId::Timer2));
        out.timerTick(TimerId::Timer1);
      }
      EXPECT_EQ(view.runs(TimerId::Timer2), !rolledDown && rolls);
      view.stopTimer(TimerId::Timer2);
    }
  }
}

TEST_F(WindowMotions, theRollDownTakesSevenTicksAndShapesTheWindowBeforeTheFirst) {
  set(L"WysRZF1", L"False");
  bringOut();
  EXPECT_EQ(view.rect.height, 25);
  click(ButtonId::Buttons_Down);
  view.calls.clear();
  tick(TimerId::Timer2);
  EXPECT_EQ(view.calls, (std::vector<std::string>{"setShape", "setPlace"}));
  EXPECT_EQ(outline(), Outline::Full);
  EXPECT_TRUE(fieldsShown());
  EXPECT_TRUE(form().window().rowVisible(RowId::lit_czas));
  EXPECT_EQ(view.rect.height, 45);
  view.calls.clear();
  EXPECT_EQ(ticksUntilStopped(TimerId::Timer2), 6);
  EXPECT_EQ(view.rect.height, 161);
  EXPECT_EQ(std::ranges::count(view.calls, "setShape"), 0) << "once a roll";
}

TEST_F(WindowMotions, theRollUpShowsTheNoteAreaToItsEndAndShapesTheWindowAfterTheLastTick) {
  bringOut();
  click(ButtonId::Buttons_Down);
  view.calls.clear();
  for (int i = 1; i < 7; ++i) {
    tick(TimerId::Timer2);
    EXPECT_EQ(view.rect.height, 161 - 20 * i);
    EXPECT_TRUE(fieldsShown());
    EXPECT_TRUE(form().window().buttonVisible(ButtonId::Buttons_main_01));
    EXPECT_EQ(outline(), Outline::Full);
  }
  EXPECT_EQ(std::ranges::count(view.calls, "setShape"), 0);
  view.calls.clear();
  tick(TimerId::Timer2);
  EXPECT_EQ(view.calls, (std::vector<std::string>{"setPlace", "setShape"}));
  EXPECT_EQ(view.rect.height, 25);
  EXPECT_EQ(outline(), Outline::Rolled);
  EXPECT_FALSE(fieldsShown());
  EXPECT_FALSE(form().window().buttonVisible(ButtonId::Buttons_main_01));
  EXPECT_TRUE(form().window().buttonVisible(ButtonId::Buttons_Down));
  EXPECT_FALSE(view.runs(TimerId::Timer2));
}

TEST_F(WindowMotions, theWindowKeepsItsPlaceWhileItRolls) {
  bringOut();
  click(ButtonId::Buttons_Down);
  while (view.runs(TimerId::Timer2)) {
    tick(TimerId::Timer2);
    EXPECT_EQ((Rect{view.rect.x, view.rect.y, view.rect.width, 0}), (Rect{600, 300, 200, 0}));
  }
}

TEST_F(WindowMotions, slideAndRollRunAtOnceWithoutDisturbingEachOther) {
  set(L"WysRZF1", L"False");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  click(ButtonId::Buttons_Down);
  for (int i = 0; i < 20; ++i) {
    tick(TimerId::Timer1);
    if (view.runs(TimerId::Timer2)) tick(TimerId::Timer2);
  }
  EXPECT_EQ(view.rect, (Rect{600, 300, 200, 161}));
}

TEST_F(WindowMotions, aSlideInEndsARollThatIsUnderWay) {
  bringOut();
  click(ButtonId::Buttons_Down);
  ASSERT_TRUE(view.runs(TimerId::Timer2));
  form().Nastepny_Load_Formy();
  EXPECT_FALSE(view.runs(TimerId::Timer2));
  EXPECT_TRUE(view.runs(TimerId::Timer1));
}

TEST_F(WindowMotions, theWindowComesToTheFrontBeforeItSlidesAway) {
  bringOut();
  view.calls.clear();
  view.lastActivation = Activation::LeaveKeyboard;
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(std::ranges::count(view.calls, "show"), 1);
  EXPECT_EQ(view.lastActivation, Activation::TakeKeyboard);
}

TEST_F(WindowMotions, aStepThatDoesNotFitIsToldOnceBecauseItsTimerStops) {
  set(L"Win1_Jump", L"3000");
  set(L"Win2_Jump", L"3000");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  EXPECT_THROW(tick(TimerId::Timer1), OverflowError);
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  click(ButtonId::Buttons_Down);
  EXPECT_THROW(tick(TimerId::Timer2), OverflowError);
  EXPECT_FALSE(view.runs(TimerId::Timer2));
}

TEST_F(WindowMotions, minimizingRemembersThePlaceAndSlidesTheWindowAway) {
  bringOut();
  view.rect.x = 123;
  view.rect.y = 45;
  click(ButtonId::Buttons_Close);
  EXPECT_EQ(ticksUntilStopped(TimerId::Timer1), 20);
  EXPECT_FALSE(view.visible);
  form().pichook_MouseMove(515);
  EXPECT_EQ(view.rect, (Rect{323, 45, 200, 161})) << "one width to the right of where it was";
}

TEST_F(WindowMotions, inTheMiddleOfASlideNoPlaceIsRemembered) {
  form().Form_Load();
  form().Nastepny_Load_Formy();
  tick(TimerId::Timer1, 5);
  click(ButtonId::Buttons_Close);
  tick(TimerId::Timer1, 3);
  form().Koniec_Kalvora();
  EXPECT_EQ(storedPlace(), (Point{600, 300}));
}
}  // namespace
}  // namespace kalvora
