#include <gmock/gmock.h>

#include "unit/notes/Menu_NFixture.h"

namespace kalvora {
namespace {

class MenuKeys : public Menu_NTest {
 protected:
  static std::vector<int> only(std::wstring_view caption) {
    std::vector<int> numbers;
    for (const MenuItem& item : kMenuItems) {
      if (item.caption == caption) numbers.push_back(item.number);
    }
    return numbers;
  }
};

TEST_F(MenuKeys, theKeyboardFindsItsFirstItemHighlightedAtThePlaceThatItAsksFor) {
  menu.openAt({40, 50});
  EXPECT_EQ(view.corner, (Point{40, 50}));
  EXPECT_EQ(view.highlighted(), only(L"Edit All Notes"));
  menu.keyDown(MenuKey::Enter);
  EXPECT_THAT(host.actions, testing::ElementsAre("editor"));
}

TEST_F(MenuKeys, aPointerElsewhereDoesNotCloseWhatTheKeyboardOpened) {
  view.mouse = {900, 700};
  menu.openAt({40, 50});
  menu.Timer1_Timer();
  EXPECT_TRUE(view.isOpen);
  view.mouse = {60, 70};
  menu.Timer1_Timer();
  EXPECT_TRUE(view.isOpen);
  view.mouse = {900, 700};
  menu.Timer1_Timer();
  EXPECT_FALSE(view.isOpen);
}

TEST_F(MenuKeys, afterTheKeyboardTheMouseClosesItAsEver) {
  menu.openAt({40, 50});
  menu.keyDown(MenuKey::Escape);
  view.mouse = {300, 200};
  menu.open();
  view.mouse = {900, 700};
  menu.Timer1_Timer();
  EXPECT_FALSE(view.isOpen);
}

TEST_F(MenuKeys, theFirstLetterClicksTheOnlyItemThatHasIt) {
  menu.open();
  menu.letterTyped(L'o');
  EXPECT_THAT(host.actions, testing::ElementsAre("options"));
  EXPECT_FALSE(view.isOpen);
  menu.open();
  menu.letterTyped(L'A');
  EXPECT_THAT(host.actions, testing::ElementsAre("options", "about"));
}

TEST_F(MenuKeys, aLetterOfSeveralItemsGoesRoundThem) {
  menu.open();
  menu.letterTyped(L'E');
  EXPECT_EQ(view.highlighted(), only(L"Edit All Notes"));
  menu.letterTyped(L'e');
  EXPECT_EQ(view.highlighted(), only(L"Exit"));
  menu.letterTyped(L'e');
  EXPECT_EQ(view.highlighted(), only(L"Edit All Notes"));
  EXPECT_TRUE(host.actions.empty());
}

TEST_F(MenuKeys, otherLettersDoNothing) {
  menu.open();
  for (const wchar_t letter : {L'x', L'\r', L'\x1B', L' '}) menu.letterTyped(letter);
  EXPECT_TRUE(view.isOpen);
  EXPECT_TRUE(host.actions.empty());
  EXPECT_TRUE(view.highlighted().empty());
}

TEST_F(MenuKeys, whatTheKeyboardOpenedBeginsWithTheFirstItemOfALetter) {
  menu.openAt({40, 50});
  menu.letterTyped(L'e');
  EXPECT_EQ(view.highlighted(), only(L"Edit All Notes"));
  menu.letterTyped(L'e');
  EXPECT_EQ(view.highlighted(), only(L"Exit"));
}

TEST_F(MenuKeys, aPointerThatRestsUnderTheMenuHighlightsNothing) {
  view.mouse = {60, 130};
  menu.openAt({40, 50});
  menu.Zamien_kolor(1);
  EXPECT_EQ(view.highlighted(), only(L"Edit All Notes"));
  view.mouse = {61, 130};
  menu.Zamien_kolor(1);
  EXPECT_EQ(view.highlighted(), only(L"About"));
}

TEST_F(MenuKeys, theMenuGoesWithTheKeyboardThatOpenedIt) {
  menu.openAt({40, 50});
  menu.keyboardLeft();
  EXPECT_FALSE(view.isOpen);
  menu.open();
  menu.keyboardLeft();
  EXPECT_TRUE(view.isOpen) << "the pointer's stays while the pointer is there";
}

TEST_F(MenuKeys, whatAnItemOpensTakesTheKeyboardAndTheItemIsDone) {
  host.during = [this] { menu.keyboardLeft(); };
  menu.openAt({40, 50});
  menu.letterTyped(L'o');
  EXPECT_THAT(host.actions, testing::ElementsAre("options"));
  EXPECT_FALSE(view.isOpen);
  EXPECT_EQ(view.unloads, 1);
}

TEST_F(MenuKeys, theMenuIsWhollyOnTheMonitor) {
  menu.openAt({500, 900});
  EXPECT_EQ(view.corner, (Point{500, 768 - 104}));
  menu.openAt({-300, -90});
  EXPECT_EQ(view.corner, (Point{0, 0}));
}

}  // namespace
}  // namespace kalvora
