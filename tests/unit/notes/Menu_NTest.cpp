#include <gmock/gmock.h>

#include "base/Errors.h"
#include "unit/notes/Menu_NFixture.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

constexpr int kExit = 0;
constexpr int kAbout = 1;
constexpr int kEditAllNotes = 2;
constexpr int kOptions = 4;

TEST_F(Menu_NTest, theItemsStandInTheirOrder) {
  std::vector<std::pair<int, std::wstring>> items;
  for (const MenuItem& item : kMenuItems) items.emplace_back(item.number, item.caption);
  EXPECT_THAT(items, ElementsAre(std::pair(2, std::wstring(L"Edit All Notes")),
                                 std::pair(4, std::wstring(L"Options")),
                                 std::pair(1, std::wstring(L"About")),
                                 std::pair(0, std::wstring(L"Exit"))));
}

TEST_F(Menu_NTest, theHighlightIsDarkBlueOnBlack) {
  EXPECT_EQ(kMenuRestColor, 0U);
  EXPECT_EQ(kMenuHighlightColor, 0x000080U);
  EXPECT_EQ(kMenuTextColor, 0xFFFFFFU);
}

TEST_F(Menu_NTest, opensWithItsCornerAtThePointerAndAllItemsAtRest) {
  openAt({300, 200});
  EXPECT_EQ(view.corner, (Point{300, 200}));
  EXPECT_EQ(view.colors.size(), 4U);
  EXPECT_THAT(view.highlighted(), ElementsAre());
  EXPECT_EQ(view.interval, 100);
}

TEST_F(Menu_NTest, nearTheBottomRightCornerItOpensAboveAndToTheLeft) {
  openAt({1020, 760});
  EXPECT_EQ(view.corner, (Point{1020 - 170, 760 - 104}));
}

TEST_F(Menu_NTest, eachOtherCornerOfTheScreenTurnsItInwards) {
  openAt({0, 0});
  EXPECT_EQ(view.corner, (Point{0, 0}));
  openAt({1023, 0});
  EXPECT_EQ(view.corner, (Point{1023 - 170, 0}));
  openAt({0, 767});
  EXPECT_EQ(view.corner, (Point{0, 767 - 104}));
}

TEST_F(Menu_NTest, aMenuThatJustFitsIsNotTurned) {
  openAt({1024 - 170, 768 - 104});
  EXPECT_EQ(view.corner, (Point{1024 - 170, 768 - 104}));
  openAt({1024 - 169, 768 - 103});
  EXPECT_EQ(view.corner, (Point{1024 - 169 - 170, 768 - 103 - 104}));
}

TEST_F(Menu_NTest, turnsAtTheEdgesOfTheMonitorThatThePointerIsOn) {
  openAt({1030, 390});
  EXPECT_EQ(view.corner, (Point{1030, 390 - 104}));
  openAt({1800, -100});
  EXPECT_EQ(view.corner, (Point{1800 - 170, -100}));
}

TEST_F(Menu_NTest, eachCornerOfTheRightMonitorTurnsItInwards) {
  openAt({300, 200});
  openAt({1024, -200});
  EXPECT_EQ(view.corner, (Point{1024, -200}));
  openAt({1823, -200});
  EXPECT_EQ(view.corner, (Point{1823 - 170, -200}));
  openAt({1024, 399});
  EXPECT_EQ(view.corner, (Point{1024, 399 - 104}));
  openAt({1823, 399});
  EXPECT_EQ(view.corner, (Point{1823 - 170, 399 - 104}));
}

TEST_F(Menu_NTest, pointingFromItemToItemHighlightsExactlyOne) {
  menu.open();
  for (const int item : {kEditAllNotes, kOptions, kAbout, kExit, kOptions}) {
    menu.Zamien_kolor(item);
    EXPECT_THAT(view.highlighted(), ElementsAre(item));
  }
}

TEST_F(Menu_NTest, pointingAtTheHighlightedItemAgainChangesNothing) {
  menu.open();
  menu.Zamien_kolor(kAbout);
  view.colors.clear();
  menu.Zamien_kolor(kAbout);
  EXPECT_TRUE(view.colors.empty());
}

TEST_F(Menu_NTest, beforeTheFirstHighlightItemZeroCountsAsHighlighted) {
  menu.open();
  menu.Zamien_kolor(kExit);
  EXPECT_THAT(view.highlighted(), ElementsAre());
  menu.Zamien_kolor(kAbout);
  menu.Zamien_kolor(kExit);
  EXPECT_THAT(view.highlighted(), ElementsAre(kExit));
}

TEST_F(Menu_NTest, eachItemDoesItsWorkAndCloses) {
  const std::vector<std::pair<int, std::string>> works = {
      {kEditAllNotes, "editor"}, {kOptions, "options"}, {kAbout, "about"}, {kExit, "exit"}};
  for (const auto& [item, work] : works) {
    host.actions.clear();
    menu.open();
    menu.Click_pl(item);
    EXPECT_THAT(host.actions, ElementsAre(work));
    EXPECT_FALSE(view.isOpen);
  }
}

TEST_F(Menu_NTest, aPressAndItsReleaseOnOneItemAreAClick) {
  menu.open();
  menu.mouseDown(kAbout);
  EXPECT_TRUE(host.actions.empty());
  menu.mouseUp(kAbout);
  EXPECT_THAT(host.actions, ElementsAre("about"));
  EXPECT_FALSE(view.isOpen);
}

TEST_F(Menu_NTest, aReleaseWhosePressWasElsewhereDoesNothing) {
  menu.open();
  menu.mouseUp(kExit);
  menu.mouseDown(kAbout);
  menu.mouseUp(kExit);
  menu.mouseUp(kAbout);
  menu.mouseDown(std::nullopt);
  menu.mouseUp(kAbout);
  menu.mouseDown(kAbout);
  menu.mouseUp(std::nullopt);
  EXPECT_TRUE(host.actions.empty());
  EXPECT_TRUE(view.isOpen);
}

TEST_F(Menu_NTest, aPressFromBeforeItWasOpenedIsForgotten) {
  menu.open();
  menu.mouseDown(kAbout);
  menu.open();
  menu.mouseUp(kAbout);
  EXPECT_TRUE(host.actions.empty());
}

TEST_F(Menu_NTest, theUnusedNumberOnlyCloses) {
  menu.open();
  menu.Click_pl(3);
  EXPECT_TRUE(host.actions.empty());
  EXPECT_FALSE(view.isOpen);
}

TEST_F(Menu_NTest, closesEvenWhenItsActionFails) {
  menu.open();
  host.during = [] { throw Failure(L"no"); };
  EXPECT_THROW(menu.Click_pl(kOptions), Failure);
  EXPECT_FALSE(view.isOpen);
}

TEST_F(Menu_NTest, staysUntilItsActionIsDone) {
  menu.open();
  bool openDuring = false;
  host.during = [&] {
    openDuring = view.isOpen;
    EXPECT_EQ(view.interval, 0) << "the pointer that leaves must not close it meanwhile";
  };
  menu.Click_pl(kAbout);
  EXPECT_TRUE(openDuring);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(Menu_NTest, thePointerWithinKeepsItOpen) {
  openAt({300, 200});
  for (const Point corner : {Point{300, 200}, Point{470, 200}, Point{300, 304}, Point{470, 304}}) {
    pointAt(corner);
    EXPECT_TRUE(view.isOpen);
  }
}

TEST_F(Menu_NTest, onePixelOutsideClosesItWithoutAnyAction) {
  for (const Point outside : {Point{299, 250}, Point{471, 250}, Point{400, 199}, Point{400, 305}}) {
    openAt({300, 200});
    pointAt(outside);
    EXPECT_FALSE(view.isOpen);
    EXPECT_EQ(view.interval, 0);
  }
  EXPECT_TRUE(host.actions.empty());
}

TEST_F(Menu_NTest, aTurnedMenuStaysWhileThePointerHasNotMoved) {
  openAt({1023, 767});
  menu.Timer1_Timer();
  EXPECT_TRUE(view.isOpen);
}

TEST_F(Menu_NTest, openedAgainItComesToThePointerAtRest) {
  openAt({300, 200});
  menu.Zamien_kolor(kAbout);
  openAt({20, 30});
  EXPECT_EQ(view.corner, (Point{20, 30}));
  EXPECT_THAT(view.highlighted(), ElementsAre());
  menu.Zamien_kolor(kAbout);
  EXPECT_THAT(view.highlighted(), ElementsAre(kAbout));
}

TEST_F(Menu_NTest, closingAClosedMenuIsHarmless) {
  menu.unload();
  EXPECT_EQ(view.unloads, 0);
}

TEST_F(Menu_NTest, theArrowsGoRoundThroughTheItems) {
  menu.open();
  std::vector<int> way;
  for (int i = 0; i < 5; ++i) {
    menu.keyDown(MenuKey::Down);
    ASSERT_EQ(view.highlighted().size(), 1U);
    way.push_back(view.highlighted().front());
  }
  EXPECT_THAT(way, ElementsAre(kEditAllNotes, kOptions, kAbout, kExit, kEditAllNotes));
  menu.keyDown(MenuKey::Up);
  EXPECT_THAT(view.highlighted(), ElementsAre(kExit));
}

TEST_F(Menu_NTest, theArrowUpBeginsWithTheLastItem) {
  menu.open();
  menu.keyDown(MenuKey::Up);
  EXPECT_THAT(view.highlighted(), ElementsAre(kExit));
}

TEST_F(Menu_NTest, enterDoesWhatIsHighlighted) {
  menu.open();
  menu.keyDown(MenuKey::Enter);
  EXPECT_TRUE(host.actions.empty());
  menu.keyDown(MenuKey::Down);
  menu.keyDown(MenuKey::Enter);
  EXPECT_THAT(host.actions, ElementsAre("editor"));
  EXPECT_FALSE(view.isOpen);
}

TEST_F(Menu_NTest, escapeClosesWithoutAnyAction) {
  menu.open();
  menu.keyDown(MenuKey::Down);
  menu.keyDown(MenuKey::Escape);
  EXPECT_FALSE(view.isOpen);
  EXPECT_TRUE(host.actions.empty());
}

}  // namespace
}  // namespace kalvora
