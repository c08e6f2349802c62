#include "Form1Fixture.h"
#include "base/Errors.h"
#include "skin/SkinError.h"

namespace kalvora {
namespace {

class Form1Start : public Form1Test {};

TEST_F(Form1Start, isATrayIconAndNothingElseByDefault) {
  form().Form_Load();
  EXPECT_TRUE(tray.present);
  EXPECT_EQ(tray.comes, IconComes::AtOnce) << "it is all that is seen of the start";
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(view.rect, (Rect{0, 0, 0, 0}));
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  EXPECT_FALSE(view.unloaded);
}

TEST_F(Form1Start, aDoubleClickOnTheTrayIconBringsTheWindowOut) {
  form().Form_Load();
  form().pichook_MouseMove(515);
  EXPECT_TRUE(view.visible);
  EXPECT_TRUE(view.runs(TimerId::Timer1));
}

TEST_F(Form1Start, aLeftClickOnTheTrayIconThatStaysSingleBringsTheWindowOut) {
  form().Form_Load();
  form().pichook_MouseMove(513);
  EXPECT_FALSE(view.visible) << "a second click may follow";
  tick(TimerId::TrayClick);
  EXPECT_TRUE(view.visible);
  EXPECT_TRUE(view.runs(TimerId::Timer1));
}

TEST_F(Form1Start, bringsTheWindowOutWhereTheUserWantsItAtStart) {
  store.values[L"Graph/ShWatS"] = L"True";
  form().Form_Load();
  EXPECT_EQ(tray.comes, IconComes::OnceIdle) << "the window does not wait for it";
  EXPECT_TRUE(view.visible);
  EXPECT_TRUE(view.runs(TimerId::Timer1));
}

TEST_F(Form1Start, withoutSettingsTheHomeIsAtTheRightEdgeAndTheSlideStartsOneWidthFurtherRight) {
  for (const Size screen : {Size{640, 480}, Size{1024, 768}, Size{1366, 768}, Size{1920, 1080},
                            Size{2560, 1440}, Size{3840, 2160}}) {
    Form1Start::view.screen = screen;
    Form1 start(ports());
    start.Form_Load();
    start.Nastepny_Load_Formy();
    // 200 × 161 are the sizes the home is computed with; the skin's window is 60 wide and its
    // right edge is then flush with the screen's.
    const int home = screen.width - 60;
    EXPECT_EQ(view.rect.x, home + 60);
    EXPECT_EQ(view.rect.y, toInt16(screen.height / 2.0 - 161 / 2.0));
    while (view.runs(TimerId::Timer1)) start.timerTick(TimerId::Timer1);
    EXPECT_EQ(view.rect.x, home);
    EXPECT_EQ(view.rect.right(), screen.width);
  }
}

TEST_F(Form1Start, isOnTopByDefaultAndNotWhereTheUserDoesNotWantIt) {
  form().Form_Load();
  EXPECT_EQ(view.stackOrder, StackOrder::Topmost);
  store.values[L"Sys/AlwOnTop"] = L"False";
  Form1 again(ports());
  again.Form_Load();
  EXPECT_EQ(view.stackOrder, StackOrder::Ordinary);
}

TEST_F(Form1Start, theHalfOfTheDayIsAmInTwelveHourTimeAndEmptyIn24HourTime) {
  form().Form_Load();
  EXPECT_EQ(text(FieldId::AmPmLabel), L"AM");
  store.values[L"Sys/AmPm"] = L"False";
  Form1 again(ports());
  again.Form_Load();
  EXPECT_EQ(text(FieldId::AmPmLabel), L"");
}

TEST_F(Form1Start, aSettingThatCannotBeReadIsToldWhenEverythingElseIsThere) {
  store.values[L"Graph/Win1_Jump"] = L"ten";
  store.values[L"Sys/AlwOnTop"] = L"False";
  note("Today.tx3", "21|0|0|Rent");
  form().Form_Load();
  EXPECT_TRUE(form().started());
  EXPECT_TRUE(tray.present);
  EXPECT_EQ(text(FieldId::Text2), L"Rent") << "a reminder does not wait for the answer";
  EXPECT_TRUE(view.errors.empty());
  const int before = view.rect.x;
  tick(TimerId::Timer1);
  EXPECT_EQ(view.rect.x, before - 10) << "the step of a user who has stored none";
  EXPECT_EQ(view.stackOrder, StackOrder::Ordinary);
  EXPECT_FALSE(guard.run([this] { form().tellUnreadableSettings(); }));
  ASSERT_EQ(reporter.messages.size(), 1U);
  EXPECT_NE(reporter.messages[0].find(L"\"Win1_Jump\" in \"Graph\""), std::wstring::npos);
}

TEST_F(Form1Start, nothingIsToldOfSettingsThatCanBeRead) {
  form().Form_Load();
  EXPECT_NO_THROW(form().tellUnreadableSettings());
}

TEST_F(Form1Start, aFirstNoteThatCannotBeReadIsNamedAndTheMinuteCheckRuns) {
  note("a.txt", "||A");
  files.unreadable = L"a.txt";
  form().Form_Load();
  EXPECT_TRUE(reporter.messages.empty());
  EXPECT_EQ(text(FieldId::Text1), L"a");
  EXPECT_TRUE(text(FieldId::Text2).starts_with(L"This note cannot be read."));
  EXPECT_TRUE(form().started());
  EXPECT_TRUE(view.runs(TimerId::Spr1m));
}

TEST_F(Form1Start, loadsTheTrayIconThatTheUserChoseWhereItExists) {
  store.values[L"Graph/Icon filename"] = L"bell.ico";
  form().Form_Load();
  EXPECT_TRUE(tray.picture.empty());
  folder.write("icons/bell.ico", "x");
  Form1 again(ports());
  again.Form_Load();
  EXPECT_EQ(tray.picture, folder.path() / "icons" / "bell.ico");
}

TEST_F(Form1Start, withThreeSkinsAnIndexOfSevenLoadsTheThirdAndKeepsTwo) {
  writeSmallSkin(folder, "skins/Two");
  writeSmallSkin(folder, "skins/Three");
  folder.write("skins/Two/shapem.bmp", BmpBuilder(51, 30, 24, kInk).bytes());
  store.values[L"Sys/Last_skin"] = L"7";
  store.values[L"Graph/Window_X"] = L"100";
  store.values[L"Graph/Window_Y"] = L"100";
  form().Form_Load();
  // By name the third is "Two".
  form().Nastepny_Load_Formy();
  EXPECT_EQ(view.rect.width, 50);
  EXPECT_EQ(form().optionsHost().currentSkin(), 2);
}

TEST_F(Form1Start, withoutAnySkinTheProgramSaysSoAndEnds) {
  std::filesystem::remove_all(folder.path() / "skins");
  form().Form_Load();
  ASSERT_EQ(view.errors.size(), 1U);
  EXPECT_EQ(view.errors[0].title, L"Skin Error");
  EXPECT_EQ(view.errors[0].text, L"Ther's no skin. Download some and run program again.");
  EXPECT_TRUE(view.unloaded);
  EXPECT_FALSE(tray.present);
}

TEST_F(Form1Start, withoutATitlebarPictureTheProgramNamesTheBmpAndEnds) {
  std::filesystem::remove(folder.path() / "skins/One/titlebar.bmp");
  form().Form_Load();
  ASSERT_EQ(view.errors.size(), 1U);
  EXPECT_EQ(view.errors[0].title, L"Skin Error");
  const std::wstring& message = view.errors[0].text;
  EXPECT_TRUE(message.starts_with(L"Ther's no Skin in this Directory \r\n")) << "line break";
  EXPECT_TRUE(message.ends_with(L"titlebar.bmp"));
  EXPECT_TRUE(view.unloaded);
  EXPECT_FALSE(tray.present);
}

TEST_F(Form1Start, aWindowWithin20PixelsOfTheRightEdgeIsMovedFlushAfterTheSkinLoads) {
  // 1024 wide; 200 is the width before a skin is loaded, 60 after.
  store.values[L"Graph/Window_X"] = L"805";
  store.values[L"Graph/Window_Y"] = L"10";
  EXPECT_EQ(homeAfterStart(), (Point{1024 - 60, 10}));
}

TEST_F(Form1Start, aWindowExactly20PixelsFromTheRightEdgeStaysWhereItIs) {
  store.values[L"Graph/Window_X"] = L"804";
  store.values[L"Graph/Window_Y"] = L"10";
  EXPECT_EQ(homeAfterStart(), (Point{804, 10}));
}

TEST_F(Form1Start, aPlaceAtWhichOnePixelOfTheWindowIsSeenIsUsedAsItStands) {
  store.values[L"Graph/Window_X"] = L"-59";
  store.values[L"Graph/Window_Y"] = L"-39";
  form().Form_Load();
  form().Nastepny_Load_Formy();
  EXPECT_EQ(view.rect.x, 1);
  EXPECT_EQ(view.rect.y, -39);
  settle();
  EXPECT_TRUE(view.errors.empty());
}

class Form1End : public Form1Test {};

TEST_F(Form1End, alwaysWritesThePlaceAndNothingElse) {
  store.values[L"Graph/Window_X"] = L"300";
  store.values[L"Graph/Window_Y"] = L"200";
  form().Form_Load();
  store.calls.clear();
  form().Koniec_Kalvora();
  EXPECT_EQ(store.calls,
            (std::vector<std::wstring>{L"save Graph/Window_X=300", L"save Graph/Window_Y=200"}));
  EXPECT_FALSE(tray.present);
  EXPECT_TRUE(view.unloaded);
}

TEST_F(Form1End, takesThePlaceWhereTheWindowStandsWhileItIsOut) {
  form().Form_Load();
  form().Nastepny_Load_Formy();
  while (view.runs(TimerId::Timer1)) tick(TimerId::Timer1);
  view.rect.x = 123;
  view.rect.y = 45;
  form().Koniec_Kalvora();
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"123");
  EXPECT_EQ(store.values[L"Graph/Window_Y"], L"45");
}

TEST_F(Form1End, aPlaceOf9999IsComputedAnewAtTheNextStart) {
  store.values[L"Graph/Window_X"] = L"9999";
  EXPECT_EQ(homeAfterStart().x, 1024 - 60);
}

TEST_F(Form1End, comesAlsoWhereTheSettingsCannotBeSaved) {
  form().Form_Load();
  store.refuses = true;
  form().Koniec_Kalvora();
  EXPECT_EQ(reporter.messages.size(), 1U);
  EXPECT_FALSE(tray.present);
  EXPECT_TRUE(view.unloaded);
}

TEST_F(Form1End, closesTheOtherWindowsFirst) {
  form().Form_Load();
  form().Koniec_Kalvora();
  EXPECT_EQ(others.unloads, 1);
}

TEST_F(Form1End, isNotWhatARightClickOnTheTrayIconDoesWhichOpensTheMenu) {
  form().Form_Load();
  form().pichook_MouseMove(516);
  EXPECT_EQ(others.menus, 1);
  EXPECT_FALSE(view.unloaded);
  form().pichook_MouseMove(512);
  form().pichook_MouseMove(514);
  EXPECT_EQ(others.menus, 1) << "other messages are ignored";
}

TEST_F(Form1End, happensOnce) {
  form().Form_Load();
  form().Koniec_Kalvora();
  store.calls.clear();
  form().Koniec_Kalvora();
  EXPECT_TRUE(store.calls.empty());
}

}  // namespace
}  // namespace kalvora
