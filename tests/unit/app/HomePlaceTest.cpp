#include "app/HomePlace.h"

#include <gmock/gmock.h>

#include "ReminderFixture.h"
#include "fakes/FakeOptionsView.h"

namespace kalvora {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr Rect kLeftMonitor{-1280, -200, 1280, 1024};
constexpr Rect kRightMonitor{1920, 0, 2560, 1440};

/// A window of 60 × 40 pixels on a desktop of three monitors.
class HomePlaces : public Form1Reminders {
 protected:
  HomePlaces() {
    view.screen = {1920, 1080};
    view.otherMonitors = {kLeftMonitor, kRightMonitor};
  }

  void setPlace(int x, int y) {
    store.values[L"Graph/Window_X"] = numberToText(x);
    store.values[L"Graph/Window_Y"] = numberToText(y);
  }
  void dropAt(int x, int y) {
    view.onDrag = [x, y](FakeForm1View& dragged) {
      dragged.rect.x = x;
      dragged.rect.y = y;
    };
    form().Form_MouseDown(MouseButton::Left, {59, 39});
    view.onDrag = nullptr;
  }
  void goAwayAndComeBack() {
    click(ButtonId::Buttons_Close);
    settle();
    EXPECT_FALSE(view.visible);
    openWindow();
    EXPECT_TRUE(view.visible);
  }
};

TEST_F(HomePlaces, theWindowComesOutAndGoesAwayAnywhereOnTheDesktop) {
  form().Form_Load();
  openWindow();
  for (const auto& [x, y] : {std::pair{2300, 700}, std::pair{4400, 1300}, std::pair{-1200, -150},
                             std::pair{-700, 700}, std::pair{1890, 500}}) {
    dropAt(x, y);
    goAwayAndComeBack();
    EXPECT_EQ(view.rect, (Rect{x, y, 60, 40}));
  }
  EXPECT_THAT(view.errors, IsEmpty());
  EXPECT_THAT(reporter.messages, IsEmpty());
}

TEST_F(HomePlaces, whereAWindowWentAwayUnderTheHandIsNotItsHome) {
  form().Form_Load();
  openWindow();
  dropAt(500, 300);
  doubleClickTray();
  tick(TimerId::Timer1, 3);
  view.onDrag = [this](FakeForm1View& dragged) {
    settle();
    dragged.rect.x = 560;
  };
  form().Form_MouseDown(MouseButton::Left, {59, 39});
  EXPECT_FALSE(view.visible);
  openWindow();
  EXPECT_EQ(view.rect, (Rect{500, 300, 60, 40}));
}

TEST_F(HomePlaces, whereTheHandHadAWindowThatGoesAwayIsItsHome) {
  form().Form_Load();
  openWindow();
  dropAt(500, 300);
  view.onDrag = [this](FakeForm1View& dragged) {
    dragged.rect = {560, 320, 60, 40};
    doubleClickTray();
    tick(TimerId::Timer1, 2);
  };
  form().Form_MouseDown(MouseButton::Left, {59, 39});
  settle();
  EXPECT_FALSE(view.visible);
  openWindow();
  EXPECT_EQ(view.rect, (Rect{560, 320, 60, 40}));
}

TEST_F(HomePlaces, aPlaceFarOutIsThereAgainAtTheNextStart) {
  setPlace(4200, 1200);
  form().Form_Load();
  openWindow();
  EXPECT_EQ(view.rect, (Rect{4200, 1200, 60, 40}));
  form().Koniec_Kalvora();
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"4200");
}

TEST_F(HomePlaces, aDroppedWindowSnapsToTheEdgesOfItsOwnMonitor) {
  store.values[L"Graph/Always Save win pos"] = L"True";
  form().Form_Load();
  openWindow();
  struct SnappingDrop {
    Point at;
    Point standsAt;
  };
  for (const SnappingDrop& drop :
       {SnappingDrop{{1925, 500}, {1920, 500}}, SnappingDrop{{4410, 1395}, {4420, 1400}},
        SnappingDrop{{-1270, -190}, {-1280, -200}}, SnappingDrop{{-70, 780}, {-60, 784}},
        SnappingDrop{{1850, 500}, {1860, 500}}, SnappingDrop{{1900, 500}, {1900, 500}},
        SnappingDrop{{-50, 500}, {-50, 500}}}) {
    dropAt(drop.at.x, drop.at.y);
    EXPECT_EQ((Point{view.rect.x, view.rect.y}), drop.standsAt);
    EXPECT_EQ(storedPlace(), drop.standsAt);
  }
}

TEST_F(HomePlaces, aNewSkinDoesNotPullTheWindowBackFromAnotherMonitor) {
  setPlace(2000, 100);
  EXPECT_EQ(homeAfterStart(), (Point{2000, 100}));
  setPlace(4290, 100);
  EXPECT_EQ(homeAfterStart(), (Point{4480 - 60, 100})) << "flush with its own monitor";
  setPlace(-205, 100);
  EXPECT_EQ(homeAfterStart(), (Point{-60, 100}));
}

TEST_F(HomePlaces, aPlaceOnNoMonitorIsToldOnceAndTheWindowComesOutAtItsComputedHome) {
  for (const auto& [x, y] : {std::pair{4480, 100}, std::pair{5000, 100}, std::pair{-1340, 0},
                             std::pair{100, 1080}, std::pair{-30000, 30000}}) {
    view.errors.clear();
    setPlace(x, y);
    Form1 form(ports());
    form.Form_Load();
    form.Nastepny_Load_Formy();
    EXPECT_THAT(view.errors, IsEmpty()) << "first the window comes out";
    while (view.runs(TimerId::Timer1)) form.timerTick(TimerId::Timer1);
    EXPECT_EQ(view.rect, (Rect{1860, 520, 60, 40})) << x << ", " << y;
    ASSERT_THAT(view.errors, SizeIs(1));
    EXPECT_THAT(view.errors[0].text, HasSubstr(numberToText(x) + L" pixels from the left and " +
                                               numberToText(y) + L" from the top"));
    EXPECT_THAT(view.errors[0].text, HasSubstr(L"\"Set Window Position\""));
    form.Nastepny_Load_Formy();
    while (view.runs(TimerId::Timer1)) form.timerTick(TimerId::Timer1);
    EXPECT_THAT(view.errors, SizeIs(1));
  }
}

TEST_F(HomePlaces, aMonitorThatWentIsFoundWhenTheWindowComesOut) {
  form().Form_Load();
  openWindow();
  dropAt(2500, 300);
  click(ButtonId::Buttons_Close);
  settle();
  view.otherMonitors.clear();
  openWindow();
  EXPECT_EQ(view.rect, (Rect{1860, 520, 60, 40}));
  EXPECT_THAT(view.errors, SizeIs(1));
  goAwayAndComeBack();
  EXPECT_THAT(view.errors, SizeIs(1)) << "one message for one place";
}

/// The monitor that the window is on goes.
class MonitorsThatGo : public HomePlaces {
 protected:
  static constexpr Rect kComputed{1860, 520, 60, 40};

  void dropOnTheRight() {
    form().Form_Load();
    openWindow();
    dropAt(2500, 300);
  }
  void unplug() {
    view.otherMonitors.clear();
    form().desktopChanged();
  }
};

TEST_F(MonitorsThatGo, aWindowThatIsOutGoesHomeAtOnceAndThatIsToldOnce) {
  dropOnTheRight();
  unplug();
  EXPECT_EQ(view.rect, kComputed);
  EXPECT_TRUE(view.visible);
  ASSERT_THAT(view.errors, SizeIs(1));
  EXPECT_THAT(view.errors[0].text, HasSubstr(L"2500 pixels from the left and 300 from the top"));
  unplug();
  goAwayAndComeBack();
  EXPECT_EQ(view.rect, kComputed);
  EXPECT_THAT(view.errors, SizeIs(1));
}

TEST_F(MonitorsThatGo, aReminderThatIsOutIsSeenAgainAndTheNextOnesGoOnComing) {
  note("Gym.txt", "6|5|Run");
  note("Pills.txt", "6|6|Two");
  setPlace(2500, 300);
  form().Form_Load();
  minuteCheckAt(6, 5);
  settle();
  unplug();
  EXPECT_EQ(view.rect, kComputed);
  expectReminder(L"Gym", L"Run");
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(6, 6);
  settle();
  expectReminder(L"Pills", L"Two");
  EXPECT_EQ(view.rect, kComputed);
}

TEST_F(MonitorsThatGo, aSlideInGoesOnToTheNewHome) {
  for (const wchar_t* resizes : {L"True", L"False"}) {
    store.values[L"Graph/ZRF1"] = resizes;
    setPlace(2500, 300);
    view.otherMonitors = {kRightMonitor};
    view.errors.clear();
    Form1 sliding(ports());
    sliding.Form_Load();
    sliding.Nastepny_Load_Formy();
    for (int i = 0; i < 3; ++i) sliding.timerTick(TimerId::Timer1);
    view.otherMonitors.clear();
    sliding.desktopChanged();
    EXPECT_EQ(view.rect.x, 1860 + 30) << "half of it is to be seen, as before";
    EXPECT_THAT(view.errors, IsEmpty()) << "nothing interrupts a slide";
    while (view.runs(TimerId::Timer1)) sliding.timerTick(TimerId::Timer1);
    EXPECT_EQ(view.rect, kComputed);
    EXPECT_THAT(view.errors, SizeIs(1));
  }
}

TEST_F(MonitorsThatGo, aSlideOutEndsAndTheWindowComesBackToTheNewHome) {
  dropOnTheRight();
  click(ButtonId::Buttons_Close);
  tick(TimerId::Timer1, 2);
  unplug();
  EXPECT_EQ(view.rect.x, 1860 + 20);
  settle();
  EXPECT_FALSE(view.visible);
  openWindow();
  EXPECT_EQ(view.rect, kComputed);
  EXPECT_THAT(view.errors, SizeIs(1));
}

TEST_F(MonitorsThatGo, aRollGoesOnAtTheNewHome) {
  store.values[L"Graph/Win2_Jump"] = L"4";
  dropOnTheRight();
  click(ButtonId::Buttons_Down);
  tick(TimerId::Timer2, 2);
  unplug();
  EXPECT_EQ(view.rect, (Rect{1860, 520, 60, 32}));
  settle();
  EXPECT_EQ(view.rect, (Rect{1860, 520, 60, 20}));
}

TEST_F(MonitorsThatGo, aWindowThatIsAwayOrStillToBeSeenStaysWhereItIs) {
  dropOnTheRight();
  view.rect = {100, 100, 60, 40};  // the platform brings windows over by itself
  view.calls.clear();
  unplug();
  EXPECT_THAT(view.calls, IsEmpty());
  click(ButtonId::Buttons_Down);
  settle();
  EXPECT_EQ(view.rect, (Rect{100, 100, 60, 20})) << "a roll does not take it back";
  doubleClickTray();
  settle();
  view.calls.clear();
  unplug();
  EXPECT_THAT(view.calls, IsEmpty());
  openWindow();
  EXPECT_EQ(view.rect, (Rect{100, 100, 60, 40}));
  EXPECT_THAT(view.errors, IsEmpty());
}

TEST_F(HomePlaces, aReminderWaitsForNoMessage) {
  note("Gym.txt", "6|5|Run");
  setPlace(9000, 9000);
  form().Form_Load();
  view.onError = [this] {
    expectReminder(L"Gym", L"Run");
    EXPECT_EQ(view.rect, (Rect{1860, 520, 60, 40}));
  };
  minuteCheckAt(6, 5);
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(sounds.played.back(), L"ring.wav");
  settle();
  EXPECT_THAT(view.errors, SizeIs(1));
}

TEST_F(HomePlaces, theWindowGoesAwayFromAPlaceThatIsStoredAndNotUsed) {
  form().Form_Load();
  openWindow();
  EXPECT_EQ(view.rect.x, 1860);
  FakeOptionsView dialog;
  for (const wchar_t* left : {L"9999", L"30000"}) {
    form().optionsHost().Options_to_form(dialog);
    dialog.setText({TextBox::WinPos, 0}, left);
    form().optionsHost().Save_options_KV(dialog);
    EXPECT_EQ(store.values[L"Graph/Window_X"], left);
    doubleClickTray();
    settle();
    EXPECT_FALSE(view.visible);
    openWindow();
    EXPECT_EQ(view.rect.x, 1860);
  }
  EXPECT_THAT(view.errors, IsEmpty());
}

}  // namespace
}  // namespace kalvora
