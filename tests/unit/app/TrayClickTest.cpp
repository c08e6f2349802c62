#include <gmock/gmock.h>

#include "ReminderFixture.h"

namespace kalvora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPress = 513;
constexpr int kDoubleClick = 515;

/// A click on the tray icon: one that stays single, and one that a second follows.
class TrayClicks : public Form1Reminders {
 protected:
  TrayClicks() {
    store.values[L"Sounds/Snd_Show"] = L"show.wav";
    note("a.txt", "||A");
    note("b.txt", "6|5|B");
  }

  void clickOnce() {
    form().pichook_MouseMove(kPress);
    if (view.runs(TimerId::TrayClick)) tick(TimerId::TrayClick);
  }
};

TEST_F(TrayClicks, aSingleClickBringsTheWindowOutAsADoubleClickDoes) {
  form().Form_Load();
  clickOnce();
  settle();
  EXPECT_TRUE(view.visible);
  EXPECT_TRUE(form().optionsHost().shown());
  EXPECT_EQ(view.lastActivation, Activation::TakeKeyboard);
  EXPECT_THAT(sounds.played, ElementsAre(L"show.wav"));
  EXPECT_FALSE(view.runs(TimerId::TrayClick)) << "it ticks once";
}

TEST_F(TrayClicks, theFirstClickOfADoubleClickShowsAndStartsNothing) {
  form().Form_Load();
  view.calls.clear();
  form().pichook_MouseMove(kPress);
  EXPECT_THAT(view.calls, IsEmpty());
  EXPECT_THAT(sounds.played, IsEmpty());
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  EXPECT_EQ(view.timers[TimerId::TrayClick], 500);
}

TEST_F(TrayClicks, aDoubleClickLeavesNothingForItsFirstClickToDo) {
  form().Form_Load();
  for (const bool out : {true, false}) {
    form().pichook_MouseMove(kPress);
    form().pichook_MouseMove(kDoubleClick);
    EXPECT_FALSE(view.runs(TimerId::TrayClick));
    settle();
    EXPECT_EQ(view.visible, out);
  }
}

TEST_F(TrayClicks, aSingleClickBringsAWindowThatIsOutToTheFrontAndMovesNothing) {
  form().Form_Load();
  openWindow();
  const Rect place = view.rect;
  sounds.played.clear();
  view.calls.clear();
  clickOnce();
  EXPECT_THAT(view.calls, ElementsAre("show"));
  EXPECT_EQ(view.lastActivation, Activation::TakeKeyboard);
  EXPECT_EQ(view.rect, place);
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  EXPECT_THAT(sounds.played, IsEmpty());
}

TEST_F(TrayClicks, aSingleClickWhileTheWindowComesOutDoesNotStartItsWayAnew) {
  form().Form_Load();
  doubleClickTray();
  tick(TimerId::Timer1, 3);
  const Rect place = view.rect;
  clickOnce();
  EXPECT_EQ(view.rect, place);
  EXPECT_THAT(sounds.played, ElementsAre(L"show.wav"));
  settle();
  EXPECT_TRUE(form().optionsHost().shown());
}

TEST_F(TrayClicks, aClickWhileTheWindowGoesBringsItBackOnceItIsGone) {
  form().Form_Load();
  openWindow();
  doubleClickTray();
  tick(TimerId::Timer1);
  form().pichook_MouseMove(kPress);
  settle();
  EXPECT_FALSE(view.visible);
  tick(TimerId::TrayClick);
  settle();
  EXPECT_TRUE(form().optionsHost().shown());
}

TEST_F(TrayClicks, aClickWhileTheWindowGoesWaitsForTheEndOfALongSlide) {
  form().Form_Load();
  openWindow();
  doubleClickTray();
  tick(TimerId::Timer1);
  form().pichook_MouseMove(kPress);
  tick(TimerId::TrayClick, 3);
  EXPECT_TRUE(view.visible) << "the slide is longer than a double click";
  settle();
  EXPECT_FALSE(view.visible);
  ASSERT_TRUE(view.runs(TimerId::TrayClick));
  tick(TimerId::TrayClick);
  settle();
  EXPECT_TRUE(form().optionsHost().shown());
  EXPECT_FALSE(view.runs(TimerId::TrayClick));
}

TEST_F(TrayClicks, aClickOnAWindowThatIsOutBringsNothingBackThatGoesAfterwards) {
  form().Form_Load();
  openWindow();
  form().pichook_MouseMove(kPress);
  click(ButtonId::Buttons_Close);
  settle();
  if (view.runs(TimerId::TrayClick)) tick(TimerId::TrayClick);
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(TrayClicks, aDoubleClickWhileAReminderComesOutLetsItComeOut) {
  note("c.txt", "6|5|C");
  form().Form_Load();
  minuteCheckAt(6, 5);
  tick(TimerId::Timer1, 3);
  const Rect place = view.rect;
  form().pichook_MouseMove(kPress);
  form().pichook_MouseMove(kDoubleClick);
  EXPECT_EQ(view.rect, place);
  EXPECT_EQ(view.lastActivation, Activation::TakeKeyboard);
  settle();
  expectReminder(L"b", L"B");
  EXPECT_THAT(sounds.played, ElementsAre(L"ring.wav"));
  doubleClickTray();
  settle();
  expectReminder(L"c", L"C");
  EXPECT_EQ(putAwayAll(), Titles{L"c"});
}

TEST_F(TrayClicks, aReminderThatWaitsComesWithTheWindow) {
  form().Form_Load();
  setTime(6, 5, 30);
  form().Update_All_Al();
  EXPECT_FALSE(view.visible);
  clickOnce();
  settle();
  expectReminder(L"b", L"B");
}

TEST_F(TrayClicks, nothingComesOutOfAProgramThatEnded) {
  form().Form_Load();
  form().pichook_MouseMove(kPress);
  form().Koniec_Kalvora();
  view.calls.clear();
  tick(TimerId::TrayClick);
  EXPECT_THAT(view.calls, IsEmpty());
}

}  // namespace
}  // namespace kalvora
