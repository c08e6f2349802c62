#include "app/WindowMotion.h"

#include <algorithm>

#include "Form1Fixture.h"

namespace kalvora {
namespace {

constexpr int kMany = 10000;

/// A window of 200 × 161 pixels, 25 when rolled up, at home at (600, 300).
class WindowMotions : public Form1Test {
 protected:
  WindowMotions() {
    folder.write("skins/One/shapem.bmp", shape(161, 3).bytes());
    folder.write("skins/One/shapet.bmp", shape(25, 7).bytes());
    set(L"Window_X", L"600");
    set(L"Window_Y", L"300");
  }

  /// A shape picture with a corner of this many pixels cut away: the full outline begins at (3, 0),
  /// the rolled-up one at (7, 0).
  static BmpBuilder shape(int height, int corner) {
    BmpBuilder picture(201, height, 24, kInk);
    for (int x = 0; x < corner; ++x) picture.set(x, 0, kWhite);
    return picture;
  }

  void set(const std::wstring& key, const std::wstring& value) {
    store.values[L"Graph/" + key] = value;
  }

  int ticksUntilStopped(TimerId timer) {
    int ticks = 0;
    for (; view.runs(timer) && ticks < kMany; ++ticks) tick(timer);
    return ticks;
  }

  void bringOut() {
    form().Form_Load();
    form().Nastepny_Load_Formy();
    ticksUntilStopped(TimerId::Timer1);
  }

  bool fieldsShown() const {
    return std::ranges::all_of(
        kAllFields, [&](FieldId field) { return view.at(field).visibility == Visibility::Shown; });
  }

  enum class Outline { Full, Rolled, None };
  Outline outline() const {
    if (!view.shape) return Outline::None;
    return view.shape->front().left == 3 ? Outline::Full : Outline::Rolled;
  }
};

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
  EXPECT_EQ(form().settings().Window_X, 123);
  EXPECT_EQ(form().settings().Window_Y, 45);
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
  EXPECT_EQ(form().settings().Window_X, 600);
  tick(TimerId::Timer1, 3);
  form().Koniec_Kalvora();
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"600");
  EXPECT_EQ(store.values[L"Graph/Window_Y"], L"300");
}

class Dragging : public WindowMotions {
 protected:
  static constexpr Point kBody{150, 60};

  /// Presses the mouse on the body and drops the window with its top left corner at `place`.
  void dropAt(Point place, MouseButton button = MouseButton::Left) {
    view.onDrag = [place](FakeForm1View& dragged) {
      dragged.rect.x = place.x;
      dragged.rect.y = place.y;
    };
    form().Form_MouseDown(button, kBody);
  }
};

TEST_F(Dragging, aWindowDroppedWithin20PixelsOfAnEdgeSnapsToIt) {
  // The screen is 1024 × 768.
  struct Drop {
    Point at;
    Point standsAt;
  };
  bringOut();
  for (const Drop& drop :
       {Drop{{814, 300}, {824, 300}}, Drop{{805, 300}, {824, 300}}, Drop{{804, 300}, {804, 300}},
        Drop{{400, 597}, {400, 607}}, Drop{{19, 300}, {0, 300}}, Drop{{20, 300}, {20, 300}},
        Drop{{400, 1}, {400, 0}}, Drop{{10, 10}, {0, 0}}, Drop{{820, 600}, {824, 607}}}) {
    dropAt(drop.at);
    EXPECT_EQ(view.rect, (Rect{drop.standsAt.x, drop.standsAt.y, 200, 161}));
    EXPECT_EQ(form().settings().Window_X, drop.standsAt.x);
    EXPECT_EQ(form().settings().Window_Y, drop.standsAt.y);
  }
}

TEST_F(Dragging, aWindowDroppedPartlyOffTheScreenStaysThere) {
  bringOut();
  for (const Point at : {Point{825, 300}, Point{-5, 300}, Point{400, 608}, Point{400, -1}}) {
    dropAt(at);
    EXPECT_EQ((Point{view.rect.x, view.rect.y}), at);
    EXPECT_EQ(form().settings().Window_X, at.x);
    EXPECT_EQ(form().settings().Window_Y, at.y);
  }
}

TEST_F(Dragging, anyMouseButtonDragsAndAPressOnAButtonDoesNot) {
  bringOut();
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
    const Point at{300 + static_cast<int>(button), 200};
    dropAt(at, button);
    EXPECT_EQ((Point{view.rect.x, view.rect.y}), at);
  }
  bool dragged = false;
  view.onDrag = [&](FakeForm1View&) { dragged = true; };
  form().Form_MouseDown(MouseButton::Left, middleOf(ButtonId::Buttons_main_01));
  EXPECT_FALSE(dragged);
}

TEST_F(Dragging, aRolledUpWindowSnapsByItsOwnHeight) {
  set(L"WysRZF1", L"False");
  bringOut();
  dropAt({400, 733});
  EXPECT_EQ(view.rect, (Rect{400, 743, 200, 25}));
}

TEST_F(Dragging, thePlaceIsSavedAtOnceOnlyForAUserWhoWantsThat) {
  bringOut();
  dropAt({300, 200});
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"600");
  set(L"Always Save win pos", L"True");
  Form1 saving(ports());
  saving.Form_Load();
  saving.Nastepny_Load_Formy();
  while (view.runs(TimerId::Timer1)) saving.timerTick(TimerId::Timer1);
  store.calls.clear();
  saving.Form_MouseDown(MouseButton::Left, kBody);
  EXPECT_EQ(store.calls,
            (std::vector<std::wstring>{L"save Graph/Window_X=300", L"save Graph/Window_Y=200"}));
}

TEST_F(Dragging, theDroppedPlaceIsSavedAtTheEnd) {
  bringOut();
  dropAt({814, 5});
  form().Koniec_Kalvora();
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"824");
  EXPECT_EQ(store.values[L"Graph/Window_Y"], L"0");
}

class TrayToggling : public WindowMotions {};

TEST_F(TrayToggling, aDoubleClickBringsTheWindowOutAndTheNextSendsItAway) {
  store.values[L"Sounds/Use_Sounds"] = L"True";
  store.values[L"Sounds/Snd_Show"] = L"show.wav";
  store.values[L"Sounds/Snd_Hide"] = L"hide.wav";
  form().Form_Load();
  for (int round = 0; round < 3; ++round) {
    sounds.played.clear();
    form().pichook_MouseMove(515);
    EXPECT_EQ(sounds.played, std::vector<std::wstring>{L"show.wav"});
    EXPECT_EQ(ticksUntilStopped(TimerId::Timer1), 20);
    EXPECT_TRUE(view.visible);
    form().pichook_MouseMove(515);
    EXPECT_EQ(sounds.played.back(), L"hide.wav");
    EXPECT_EQ(ticksUntilStopped(TimerId::Timer1), 20);
    EXPECT_FALSE(view.visible);
  }
}

TEST_F(TrayToggling, aDoubleClickInTheMiddleOfTheWayInStartsTheWayInAnew) {
  form().Form_Load();
  form().pichook_MouseMove(515);
  tick(TimerId::Timer1, 10);
  form().pichook_MouseMove(515);
  EXPECT_EQ(view.rect.x, 800);
  EXPECT_EQ(ticksUntilStopped(TimerId::Timer1), 20);
  EXPECT_EQ(view.rect.x, 600);
}

TEST_F(TrayToggling, aLeftClickShowsTheWindowWhereItIs) {
  bringOut();
  view.calls.clear();
  form().pichook_MouseMove(513);
  EXPECT_EQ(view.calls, std::vector<std::string>{"show"});
  EXPECT_FALSE(view.runs(TimerId::Timer1));
}

TEST_F(TrayToggling, otherMouseMessagesDoNothing) {
  bringOut();
  view.calls.clear();
  for (const int message : {0, 512, 514, 517, 518, 519, 520, 1024}) {
    form().pichook_MouseMove(message);
  }
  EXPECT_TRUE(view.calls.empty());
  EXPECT_FALSE(view.runs(TimerId::Timer1));
}

TEST_F(TrayToggling, aMessageThatComesWhileAnotherIsHandledIsIgnored) {
  bringOut();
  int inner = 0;
  view.onShow = [&] {
    if (++inner < 10) form().pichook_MouseMove(513);
  };
  form().pichook_MouseMove(513);
  EXPECT_EQ(inner, 1) << "the one inside did not show the window again";
  view.onShow = nullptr;
  form().pichook_MouseMove(515);
  EXPECT_TRUE(view.runs(TimerId::Timer1)) << "the flag is down again";
}

TEST_F(TrayToggling, aMessageWhoseHandlingFailedDoesNotBlockTheNext) {
  bringOut();
  view.onShow = [] { throw Failure(L"no"); };
  EXPECT_THROW(form().pichook_MouseMove(513), Failure);
  view.onShow = nullptr;
  form().pichook_MouseMove(515);
  EXPECT_TRUE(view.runs(TimerId::Timer1));
}

}  // namespace
}  // namespace kalvora
