#include "app/Module1.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

constexpr Size kSize{20, 10};
constexpr ButtonRelease kRunsAction{ButtonLook::Normal, true};
constexpr ButtonRelease kRunsNothing{ButtonLook::Normal, false};

TEST(Module1, onlyTheLeftMouseButtonPressesAButton) {
  EXPECT_EQ(Przycisk_wcisniety(MouseButton::Left), ButtonLook::Pressed);
  EXPECT_EQ(Przycisk_wcisniety(MouseButton::Right), std::nullopt);
  EXPECT_EQ(Przycisk_wcisniety(MouseButton::Middle), std::nullopt);
  EXPECT_EQ(Przycisk_wcisniety(MouseButton::None), std::nullopt);
}

TEST(Module1, aMoveWithoutTheLeftMouseButtonChangesNothing) {
  for (const MouseButton held :
       {MouseButton::None, MouseButton::Right, MouseButton::Right | MouseButton::Middle}) {
    EXPECT_EQ(Przycisk_ruch(held, {5, 5}, kSize), std::nullopt);
    EXPECT_EQ(Przycisk_ruch(held, {-5, 5}, kSize), std::nullopt);
  }
}

TEST(Module1, aHeldButtonLooksNormalWhileThePointerIsOutside) {
  for (const Point outside : {Point{-1, 5}, {5, -1}, {21, 5}, {5, 11}, {-100, -100}}) {
    EXPECT_EQ(Przycisk_ruch(MouseButton::Left, outside, kSize), ButtonLook::Normal)
        << outside.x << ',' << outside.y;
  }
}

TEST(Module1, aHeldButtonLooksPressedInsideAndOnAllFourEdges) {
  for (const Point inside : {Point{5, 5}, {0, 5}, {5, 0}, {20, 5}, {5, 10}, {0, 0}, {20, 10}}) {
    EXPECT_EQ(Przycisk_ruch(MouseButton::Left, inside, kSize), ButtonLook::Pressed)
        << inside.x << ',' << inside.y;
  }
}

TEST(Module1, anotherMouseButtonHeldTooDoesNotHideTheLeftOne) {
  EXPECT_EQ(Przycisk_ruch(MouseButton::Left | MouseButton::Right, {5, 5}, kSize),
            ButtonLook::Pressed);
}

TEST(Module1, aReleaseInsideRunsTheActionAndOneOnAnEdgeDoesNot) {
  for (const Point inside : {Point{1, 1}, {19, 9}, {10, 5}}) {
    EXPECT_EQ(Przycisk_puszczony(MouseButton::Left, inside, kSize), kRunsAction);
  }
  for (const Point edge : {Point{0, 5}, {5, 0}, {20, 5}, {5, 10}, {0, 0}, {20, 10}}) {
    EXPECT_EQ(Przycisk_puszczony(MouseButton::Left, edge, kSize), kRunsNothing)
        << edge.x << ',' << edge.y;
  }
}

TEST(Module1, pressingMovingOffAndReleasingOutsideLooksNormalAgainAndRunsNothing) {
  EXPECT_EQ(Przycisk_wcisniety(MouseButton::Left), ButtonLook::Pressed);
  EXPECT_EQ(Przycisk_ruch(MouseButton::Left, {30, 5}, kSize), ButtonLook::Normal);
  EXPECT_EQ(Przycisk_puszczony(MouseButton::Left, {30, 5}, kSize), kRunsNothing);
}

TEST(Module1, movingOffAndBackRunsTheAction) {
  Przycisk_wcisniety(MouseButton::Left);
  EXPECT_EQ(Przycisk_ruch(MouseButton::Left, {5, 30}, kSize), ButtonLook::Normal);
  EXPECT_EQ(Przycisk_ruch(MouseButton::Left, {5, 5}, kSize), ButtonLook::Pressed);
  EXPECT_EQ(Przycisk_puszczony(MouseButton::Left, {5, 5}, kSize), kRunsAction);
}

TEST(Module1, aButtonWithoutAPictureNeverRuns) {
  EXPECT_EQ(Przycisk_puszczony(MouseButton::Left, {0, 0}, {0, 0}), kRunsNothing);
}

}  // namespace
}  // namespace kalvora
