#include "WindowMotionFixture.h"

namespace kalvora {
namespace {

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
  set(L"Always Save win pos", L"True");
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
    EXPECT_EQ(storedPlace(), drop.standsAt);
  }
}

TEST_F(Dragging, aWindowDroppedPartlyOffTheScreenStaysThere) {
  set(L"Always Save win pos", L"True");
  bringOut();
  for (const Point at : {Point{825, 300}, Point{-5, 300}, Point{400, 608}, Point{400, -1}}) {
    dropAt(at);
    EXPECT_EQ((Point{view.rect.x, view.rect.y}), at);
    EXPECT_EQ(storedPlace(), at);
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
