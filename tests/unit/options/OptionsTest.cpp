#include "OptionsFixture.h"
#include "options/ComfortTable.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

TEST_F(OptionsTest, opensFilledFromTheSettings) {
  options.open();
  EXPECT_TRUE(view.loaded);
  EXPECT_EQ(host.fills, 1);
  EXPECT_EQ(winPos(0), L"400");
  EXPECT_EQ(view.broughtToFront, 1);
}

TEST_F(OptionsTest, openedAgainComesToTheFrontWithWhatWasEntered) {
  options.open();
  typePosition(0, L"12");
  options.open();
  EXPECT_EQ(view.loads, 1);
  EXPECT_EQ(view.broughtToFront, 2);
  EXPECT_EQ(winPos(0), L"12");
}

TEST_F(OptionsTest, opensAgainAfterItWasClosed) {
  options.open();
  options.unload();
  options.open();
  EXPECT_EQ(view.loads, 2);
  EXPECT_TRUE(host.follows);
}

TEST_F(OptionsTest, aFailureWhileItOpensLeavesItClosed) {
  class Failing : public FakeOptionsHost {
    void Options_to_form(OptionsView&) const override { throw ConversionError(L"x"); }
  } failing;
  Options other(files, ProgramFolders(folder.path()), failing, view);
  EXPECT_THROW(other.open(), ConversionError);
  EXPECT_FALSE(view.loaded);
  EXPECT_FALSE(failing.follows);
  EXPECT_THROW(other.open(), ConversionError) << "it is not open already";
}

TEST_F(OptionsTest, closingTwiceIsHarmless) {
  options.unload();
  options.open();
  options.unload();
  host.follows = true;
  options.unload();
  EXPECT_TRUE(host.follows);
}

TEST_F(OptionsTest, addsTheTreesNodesInTheirOrder) {
  options.open();
  std::vector<std::wstring> told;
  for (const OptionsNode& node : view.nodes) {
    told.push_back(std::wstring(node.key) + L" < " + std::wstring(node.parent) + L": " +
                   std::wstring(node.text));
  }
  EXPECT_THAT(
      told,
      ElementsAre(L"sys < : Systems", L"gr < : Graphics", L"sys_ch01 < gr: Window Display",
                  L"sys_ch02 < gr: Set Window Position", L"sys_ch03 < gr: Skins",
                  L"sys_ch04 < gr: Icons", L"sys_ch05 < sys: Sounds", L"comfort < : Comfort"));
  EXPECT_EQ(view.nodes[0].state, NodeState::Expanded);
  EXPECT_EQ(view.nodes[1].state, NodeState::Expanded);
}

TEST_F(OptionsTest, showsTheFirstNodesPageBeforeTheChildrenCome) {
  options.open();
  EXPECT_EQ(view.pagesWhenAdded[1], std::nullopt);
  EXPECT_EQ(view.pagesWhenAdded[2], OptionsPage::Systems);
  EXPECT_EQ(view.page, OptionsPage::Systems);
  EXPECT_EQ(view.selectedNode, L"Systems");
}

TEST_F(OptionsTest, eachNodeShowsItsPage) {
  const std::vector<std::pair<std::wstring, int>> pages = {
      {L"Graphics", 1}, {L"Window Display", 2}, {L"Set Window Position", 3},
      {L"Sounds", 4},   {L"Systems", 5},        {L"Skins", 6},
      {L"Icons", 7}};
  for (const auto& [text, item] : pages) {
    options.Pokaz_opcje(text);
    EXPECT_EQ(static_cast<int>(*view.page), item) << std::string(text.begin(), text.end());
  }
}

TEST_F(OptionsTest, aNodeOfAnyOtherTextShowsPageZero) {
  for (const wchar_t* text : {L"", L"skins", L"Graphics ", L"Something else"}) {
    options.Pokaz_opcje(L"Icons");
    options.Pokaz_opcje(text);
    EXPECT_EQ(view.page, OptionsPage::Comfort);
  }
}

TEST_F(OptionsTest, theLastNodeShowsPageZero) {
  options.open();
  options.Pokaz_opcje(view.nodes.back().text);
  EXPECT_EQ(static_cast<int>(*view.page), 0);
}

TEST_F(OptionsTest, allOfThemTicksEachComfort) {
  options.open();
  options.allComfort_Click();
  for (std::size_t item = 0; item < comfortTicks().size(); ++item) {
    EXPECT_TRUE(view.checked({CheckBox::Comfort, static_cast<int>(item)})) << item;
  }
  EXPECT_THAT(host.calls, testing::IsEmpty());
}

TEST_F(OptionsTest, rollDownAndRollInExcludeEachOther) {
  view.setChecked(display(2), true);
  view.setChecked(display(1), true);
  options.Display_chk_Click(1);
  EXPECT_TRUE(view.checked(display(1)));
  EXPECT_FALSE(view.checked(display(2)));
  view.setChecked(display(2), true);
  options.Display_chk_Click(2);
  EXPECT_FALSE(view.checked(display(1)));
  EXPECT_TRUE(view.checked(display(2)));
}

TEST_F(OptionsTest, bothRollSwitchesCanBeOff) {
  view.setChecked(display(2), true);
  view.setChecked(display(2), false);
  options.Display_chk_Click(2);
  options.Display_chk_Click(1);
  EXPECT_FALSE(view.checked(display(1)));
  EXPECT_FALSE(view.checked(display(2)));
}

TEST_F(OptionsTest, uncheckingOneRollSwitchLeavesTheOther) {
  view.setChecked(display(1), true);
  view.setChecked(display(2), false);
  options.Display_chk_Click(2);
  EXPECT_TRUE(view.checked(display(1)));
}

TEST_F(OptionsTest, theOtherDisplaySwitchesChangeNothingElse) {
  for (int item = 0; item < kDisplayCheckCount; ++item) view.setChecked(display(item), true);
  for (const int item : {0, 3, 4}) options.Display_chk_Click(item);
  for (int item = 0; item < kDisplayCheckCount; ++item) EXPECT_TRUE(view.checked(display(item)));
}

TEST_F(OptionsTest, lettersTypedIntoAPositionBoxAreDropped) {
  options.open();
  typePosition(0, L"1a2b");
  EXPECT_EQ(winPos(0), L"12");
  EXPECT_EQ(view.caret({TextBox::WinPos, 0}), 2U);
  typePosition(1, L"xyz");
  EXPECT_EQ(winPos(1), L"");
}

TEST_F(OptionsTest, aColonIsNoDigitOfAPosition) {
  options.open();
  typePosition(0, L"1:2");
  EXPECT_EQ(winPos(0), L"12");
}

TEST_F(OptionsTest, aPositionOfDigitsIsNotWrittenAgainAsItIsTyped) {
  options.open();
  view.setText({TextBox::WinPos, 0}, L"120");
  view.setCaret({TextBox::WinPos, 0}, 1);
  const int before = view.textsSet;
  options.WinPos_Change(0);
  EXPECT_EQ(view.textsSet, before);
  EXPECT_EQ(view.caret({TextBox::WinPos, 0}), 1U);
}

TEST_F(OptionsTest, aMinusCanBeTypedOnlyWhereMonitorsLieLeftOfOrAboveTheFirst) {
  options.open();
  const auto typed = [this](int item) {
    view.setText({TextBox::WinPos, item}, L"-12-3");
    options.WinPos_Change(item);
    return view.text({TextBox::WinPos, item});
  };
  EXPECT_EQ(typed(0), L"123");
  EXPECT_EQ(typed(1), L"123");
  host.otherMonitors = {{-800, 0, 800, 600}};
  EXPECT_EQ(typed(0), L"-123");
  EXPECT_EQ(typed(1), L"123");
  host.otherMonitors = {{0, -600, 800, 600}};
  EXPECT_EQ(typed(0), L"123");
  EXPECT_EQ(typed(1), L"-123");
}

TEST_F(OptionsTest, thePreviewShowsAllMonitors) {
  host.otherMonitors = {{-800, 0, 800, 600}};
  options.open();
  view.setText({TextBox::WinPos, 0}, L"-400");
  options.WinPos_Change(0);
  EXPECT_EQ(view.previewScreens, (std::vector<Rect>{{50, 18, 50, 38}, {0, 18, 50, 38}}));
  EXPECT_EQ(view.previewWindow.x, 25);
}

TEST_F(OptionsTest, thePreviewShowsTheWindowToScale) {
  options.open();
  EXPECT_EQ(view.previewScreens, (std::vector<Rect>{{0, 0, 100, 75}}));
  EXPECT_EQ(view.previewWindow, (Rect{50, 38, 10, 5}));
}

TEST_F(OptionsTest, thePreviewShowsWhereTheWindowStandsUntilTheBoxesAreFilled) {
  host.position = {80, 160};
  options.Form_Load();
  EXPECT_EQ(view.previewWindow, (Rect{10, 20, 10, 5}));
}

TEST_F(OptionsTest, thePreviewShowsThePositionInTheBoxesOnceTheyAreFilled) {
  host.position = {80, 160};
  options.open();
  EXPECT_EQ(view.previewWindow, (Rect{50, 38, 10, 5}));
}

TEST_F(OptionsTest, thePreviewFollowsWhatIsTyped) {
  options.open();
  typePosition(0, L"80");
  typePosition(1, L"160");
  EXPECT_EQ(view.previewWindow, (Rect{10, 20, 10, 5}));
}

TEST_F(OptionsTest, anEmptyOrTooLargePositionLeavesThePreviewWhereItIs) {
  options.open();
  const Rect before = view.previewWindow;
  typePosition(0, L"");
  EXPECT_EQ(view.previewWindow, before);
  typePosition(0, L"99999");
  EXPECT_EQ(view.previewWindow, before);
}

TEST_F(OptionsTest, numbersAndPreviewFollowTheMainWindow) {
  options.open();
  options.Opt_win_pos_tim_Timer({160, 240});
  EXPECT_EQ(winPos(0), L"160");
  EXPECT_EQ(winPos(1), L"240");
  EXPECT_EQ(view.previewWindow, (Rect{20, 30, 10, 5}));
}

TEST_F(OptionsTest, aWindowPartlyOffTheScreenIsToldWithItsSign) {
  options.open();
  options.Opt_win_pos_tim_Timer({-20, -8});
  EXPECT_EQ(winPos(0), L"-20");
  EXPECT_EQ(winPos(1), L"-8");
}

TEST_F(OptionsTest, aPositionCanBeTypedInWhileTheMainWindowStandsStill) {
  options.open();
  options.Opt_win_pos_tim_Timer({400, 300});
  typePosition(0, L"7");
  options.Opt_win_pos_tim_Timer({400, 300});
  EXPECT_EQ(winPos(0), L"7");
  options.Opt_win_pos_tim_Timer({401, 300});
  EXPECT_EQ(winPos(0), L"401");
}

TEST_F(OptionsTest, aHiddenWindowsPlaceIsNotTold) {
  host.isShown = false;
  host.position = {800, 300};
  options.open();
  options.Opt_win_pos_tim_Timer({800, 300});
  EXPECT_EQ(winPos(0), L"400");
  options.Opt_win_pos_tim_Timer({700, 300});
  EXPECT_EQ(winPos(0), L"700");
}

TEST_F(OptionsTest, aWindowThatStandsElsewhereThanItsHomeIsToldAtOnce) {
  options.open();
  options.Opt_win_pos_tim_Timer({5, 6});
  EXPECT_EQ(winPos(0), L"5");
}

TEST_F(OptionsTest, aShownWindowIsToldAtOnceWhereverItStands) {
  host.position = {5, 6};
  options.open();
  options.Opt_win_pos_tim_Timer({5, 6});
  EXPECT_EQ(winPos(0), L"5");
}

TEST_F(OptionsTest, eachTimeTheDialogOpensTheWindowIsToldAnew) {
  options.open();
  options.Opt_win_pos_tim_Timer({5, 6});
  options.unload();
  options.open();
  EXPECT_EQ(winPos(0), L"400");
  options.Opt_win_pos_tim_Timer({5, 6});
  EXPECT_EQ(winPos(0), L"5");
}

TEST_F(OptionsTest, aTickAfterClosingIsHarmless) {
  options.open();
  options.unload();
  const int before = view.textsSet;
  options.Opt_win_pos_tim_Timer({1, 2});
  options.windowDropped({1, 2});
  EXPECT_EQ(view.textsSet, before);
}

TEST_F(OptionsTest, settingThePositionByMouseEndsWithTheDialog) {
  options.open();
  options.cmdSetWinPos_Click();
  EXPECT_TRUE(host.setsPosition);
  options.windowDropped({30, 40});
  EXPECT_EQ(winPos(0), L"30");
  EXPECT_EQ(winPos(1), L"40");
  options.unload();
  EXPECT_FALSE(host.setsPosition);
}

TEST_F(OptionsTest, theMainWindowIsFollowedWhileTheDialogIsOpen) {
  EXPECT_FALSE(host.follows);
  options.open();
  EXPECT_TRUE(host.follows);
  options.unload();
  EXPECT_FALSE(host.follows);
}

}  // namespace
}  // namespace kalvora
