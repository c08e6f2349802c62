#include "app/MainWindowOptions.h"

#include <gmock/gmock.h>

#include "Form1Fixture.h"
#include "app/SkinPreview.h"
#include "fakes/FakeOptionsView.h"
#include "fakes/SilentScrollTimers.h"
#include "options/OptionsInputError.h"
#include "skin/SkinError.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

/// The main window's side of the options, with the window out on the screen at (100, 200).
class MainWindowOptionsTest : public Form1Test {
 protected:
  MainWindowOptionsTest() {
    settings.Window_X = 100;
    settings.Window_Y = 200;
    window.wear(loadSkin(files, skinValues, folder.path() / "skins/One"));
    motion.setSizes({60, 40, 20});
    motion.slideIn(Activation::TakeKeyboard);
    slide();
    host.Options_to_form(dialog);
    view.calls.clear();
  }

  void slide() {
    while (view.runs(TimerId::Timer1)) motion.Timer1_Timer();
  }
  void goAway() {
    motion.slideOut();
    slide();
    view.calls.clear();
  }
  Point standsAt() const { return {view.rect.x, view.rect.y}; }
  bool moved() const { return std::ranges::count(view.calls, "setPlace") != 0; }
  void enterPosition(std::wstring_view left, std::wstring_view top) {
    dialog.setText({TextBox::WinPos, 0}, left);
    dialog.setText({TextBox::WinPos, 1}, top);
    host.Save_options_KV(dialog);
  }

  Settings settings;
  SkinnedWindow window;
  SilentScrollTimers scrollTimers;
  TitleScroller scroller{scrollTimers};
  WindowMotion motion{view, store, guard, settings, window, scroller};
  AlarmLine alarmLine{view, settings};
  FakeOptionsView dialog;
  std::vector<std::int16_t> worn;
  MainWindowOptions host{
      {store, view, tray, sounds, files, skinValues, ProgramFolders(folder.path())},
      settings,
      motion,
      [this] { alarmLine.followOptions(); },
      [this] { worn.push_back(settings.Last_skin); }};
};

TEST_F(MainWindowOptionsTest, aShownWindowGoesToThePositionThatWasEntered) {
  enterPosition(L"30", L"40");
  EXPECT_EQ(standsAt(), (Point{30, 40}));
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"30");
}

TEST_F(MainWindowOptionsTest, aShownWindowGoesToAPositionThatCannotBeStoredToo) {
  store.refuses = true;
  EXPECT_THROW(enterPosition(L"30", L"40"), Failure);
  EXPECT_EQ(standsAt(), (Point{30, 40}));
}

TEST_F(MainWindowOptionsTest, aPositionOffTheScreenIsStoredAndTheWindowKeepsItsHome) {
  enterPosition(L"5000", L"40");
  EXPECT_FALSE(moved());
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"5000");
  EXPECT_EQ(settings.Window_X, 100);
  EXPECT_EQ(settings.Window_Y, 200);
}

TEST_F(MainWindowOptionsTest, aPositionOf9999IsStoredAndTheComputedOneIsUsedAtOnce) {
  enterPosition(L"9999", L"9999");
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"9999");
  EXPECT_EQ(store.values[L"Graph/Window_Y"], L"9999");
  EXPECT_EQ(standsAt(), (Point{1024 - 60, 364}));
  EXPECT_EQ(settings.Window_X, 1024 - 60);
  EXPECT_EQ(settings.Window_Y, 364);
}

TEST_F(MainWindowOptionsTest, oneNumberOf9999LeavesTheOtherAsItWasEntered) {
  enterPosition(L"30", L"9999");
  EXPECT_EQ(standsAt(), (Point{30, 364}));
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"30");
}

TEST_F(MainWindowOptionsTest, aPositionOnAnyMonitorIsGoneTo) {
  view.otherMonitors = {{-800, 0, 800, 600}, {1024, -200, 2560, 1440}};
  enterPosition(L"-500", L"10");
  EXPECT_EQ(standsAt(), (Point{-500, 10}));
  enterPosition(L"3500", L"-100");
  EXPECT_EQ(standsAt(), (Point{3500, -100}));
}

TEST_F(MainWindowOptionsTest, aWindowThatStandsThereAlreadyIsNotMoved) {
  enterPosition(L"100", L"200");
  EXPECT_FALSE(moved());
}

TEST_F(MainWindowOptionsTest, thePositionMustShowOnePixelOfTheWindowAtLeast) {
  for (const auto& [left, top] : {std::pair{L"1024", L"0"}, std::pair{L"0", L"768"},
                                  std::pair{L"-60", L"0"}, std::pair{L"0", L"-40"}}) {
    enterPosition(left, top);
    EXPECT_FALSE(moved());
  }
  enterPosition(L"1023", L"767");
  EXPECT_EQ(standsAt(), (Point{1023, 767}));
  enterPosition(L"-59", L"-39");
  EXPECT_EQ(standsAt(), (Point{-59, -39}));
}

TEST_F(MainWindowOptionsTest, aHiddenWindowIsNotMoved) {
  goAway();
  enterPosition(L"30", L"40");
  EXPECT_FALSE(moved());
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"100");
}

TEST_F(MainWindowOptionsTest, aRefusedValueStoresAndMovesNothing) {
  EXPECT_THROW(enterPosition(L"30", L"far down"), OptionsInputError);
  EXPECT_FALSE(moved());
  EXPECT_TRUE(store.calls.empty());
  EXPECT_EQ(settings.Window_X, 100);
}

TEST_F(MainWindowOptionsTest, applyingReachesTheMainWindow) {
  view.setText(FieldId::AmPmLabel, L"PM");
  dialog.setChecked({CheckBox::AlwOnTop}, false);
  host.Save_options_KV(dialog);
  EXPECT_EQ(text(FieldId::AmPmLabel), L"") << "until the clock writes it again";
  EXPECT_EQ(view.stackOrder, StackOrder::Ordinary);
  dialog.setChecked({CheckBox::AlwOnTop}, true);
  host.Save_options_KV(dialog);
  EXPECT_EQ(view.stackOrder, StackOrder::Topmost);
}

TEST_F(MainWindowOptionsTest, theWindowIsFollowedEvery10Milliseconds) {
  host.startOpt_win_pos_tim();
  EXPECT_EQ(view.timers.at(TimerId::Opt_win_pos_tim), 10);
  host.stopOpt_win_pos_tim();
  EXPECT_FALSE(view.runs(TimerId::Opt_win_pos_tim));
  EXPECT_EQ(host.windowPosition(), (Point{100, 200}));
}

TEST_F(MainWindowOptionsTest, anIconIsInTheTrayAndStoredAtOnce) {
  host.takeIcon(L"cat.ico");
  EXPECT_EQ(tray.picture, folder.path() / "icons" / "cat.ico");
  EXPECT_EQ(settings.iconFilename, L"cat.ico");
  EXPECT_TRUE(tray.present);
  EXPECT_EQ(tray.adds, 1);
  EXPECT_THAT(store.calls, testing::ElementsAre(L"save Graph/Icon filename=cat.ico"));
}

TEST_F(MainWindowOptionsTest, aSkinIsWornAtOnce) {
  host.wearSkin(2);
  EXPECT_EQ(settings.Last_skin, 2);
  EXPECT_EQ(host.currentSkin(), 2);
  EXPECT_THAT(worn, ElementsAre(2));
}

TEST_F(MainWindowOptionsTest, setPositionModeBringsAShownWindowToTheFront) {
  host.beginSetPosition();
  EXPECT_TRUE(host.settingPosition());
  EXPECT_THAT(view.calls, ElementsAre("show"));
  host.endSetPosition();
  EXPECT_FALSE(host.settingPosition());
}

TEST_F(MainWindowOptionsTest, setPositionModeDoesNotBringAHiddenWindow) {
  goAway();
  host.beginSetPosition();
  EXPECT_FALSE(view.visible);
}

TEST_F(MainWindowOptionsTest, thePositionIsShownWithTheSizesOfWindowAndScreen) {
  view.screen = {1280, 1024};
  EXPECT_EQ(host.fullSize(), (Size{60, 40}));
  EXPECT_EQ(host.desktop().primary().size(), (Size{1280, 1024}));
}

TEST_F(MainWindowOptionsTest, aSoundIsPlayedWithSoundsSwitchedOff) {
  settings.Use_Sounds = false;
  host.playSound(L"ring.wav");
  EXPECT_EQ(sounds.played, (std::vector<std::wstring>{L"ring.wav"}));
}

TEST_F(MainWindowOptionsTest, aSkinsPictureFitsTheRoom) {
  const std::optional<Image> picture = host.skinPicture(L"One", {30, 30}, 0xFFFFFF);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size(), (Size{30, 20}));
}

TEST_F(MainWindowOptionsTest, aSkinThatIsNotWholeHasNoPicture) {
  folder.write("skins/Two/main1.bmp", "no picture");
  EXPECT_FALSE(host.skinPicture(L"Two", {30, 30}, 0xFFFFFF));
  EXPECT_FALSE(host.skinPicture(L"Three", {30, 30}, 0xFFFFFF));
}

TEST_F(MainWindowOptionsTest, theGroundShowsWhereASkinIsTransparent) {
  BmpBuilder shape(61, 40, 24, kInk);
  for (int x = 0; x < 61; ++x) shape.set(x, 0, kWhite);
  folder.write("skins/One/shapem.bmp", shape.bytes());
  skinValues.set(L"Note Text", L"X", L"0");
  skinValues.set(L"Note Text", L"Y", L"10");
  skinValues.set(L"Note Text", L"W", L"5");
  skinValues.set(L"Note Text", L"H", L"5");
  skinValues.set(L"Note Text", L"Background color, R", L"255");
  const Image picture =
      skinPreview(files, skinValues, folder.path() / "skins" / "One", {100, 100}, 0xABCDEF);
  EXPECT_EQ(picture.at(30, 0), 0xABCDEFU);
  EXPECT_EQ(picture.at(50, 5), 0x112233U);
  EXPECT_EQ(picture.at(2, 12), 0xFF0000U);  // the note's own ground
}

}  // namespace
}  // namespace kalvora
