#include "options/PositionPreview.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(PositionPreviewTest, aScreenOfTheSameShapeFillsTheArea) {
  const PositionPreview preview = previewOf({160, 120}, Desktop({800, 600}), {80, 60, 200, 150});
  EXPECT_EQ(preview.screens[0], (Rect{0, 0, 160, 120}));
  EXPECT_EQ(preview.window, (Rect{16, 12, 40, 30}));
}

TEST(PositionPreviewTest, aWideScreenLeavesRoomAboveAndBelow) {
  const PositionPreview preview = previewOf({160, 120}, Desktop({1600, 800}), {0, 0, 160, 160});
  EXPECT_EQ(preview.screens[0], (Rect{0, 20, 160, 80}));
  EXPECT_EQ(preview.window, (Rect{0, 20, 16, 16}));
}

TEST(PositionPreviewTest, aTallScreenLeavesRoomAtBothSides) {
  const PositionPreview preview = previewOf({160, 120}, Desktop({600, 1200}), {100, 200, 100, 50});
  EXPECT_EQ(preview.screens[0], (Rect{50, 0, 60, 120}));
  EXPECT_EQ(preview.window, (Rect{60, 20, 10, 5}));
}

TEST(PositionPreviewTest, theWindowIsAtLeast3By3) {
  const Rect window = previewOf({100, 100}, Desktop({10000, 10000}), {5000, 5000, 20, 20}).window;
  EXPECT_EQ(window, (Rect{50, 50, 3, 3}));
}

TEST(PositionPreviewTest, aWindowFlushWithTheRightEdgeStandsThere) {
  const PositionPreview preview = previewOf({200, 150}, Desktop({1000, 750}), {800, 650, 200, 100});
  EXPECT_EQ(preview.window.right(), preview.screens[0].right());
  EXPECT_EQ(preview.window.bottom(), preview.screens[0].bottom());
}

TEST(PositionPreviewTest, aWindowOffTheScreenLiesOutside) {
  const PositionPreview preview = previewOf({100, 75}, Desktop({800, 600}), {-160, 9999, 80, 40});
  EXPECT_EQ(preview.window.x, -20);
  EXPECT_GT(preview.window.y, preview.screens[0].bottom());
}

TEST(PositionPreviewTest, noScreenOrNoRoomGivesNoPicture) {
  EXPECT_TRUE(previewOf({100, 75}, Desktop({0, 0}), {1, 1, 1, 1}).screens[0].empty());
  EXPECT_TRUE(previewOf({0, 0}, Desktop({800, 600}), {1, 1, 1, 1}).screens[0].empty());
}

TEST(PositionPreviewTest, monitorsStandInThePictureAsTheyStandOnTheDesk) {
  const Desktop desktop({800, 600}, {{-400, 100, 400, 300}, {800, -200, 800, 600}});
  const PositionPreview preview = previewOf({200, 150}, desktop, {-400, 100, 160, 80});
  EXPECT_EQ(preview.screens,
            (std::vector<Rect>{{40, 55, 80, 60}, {0, 65, 40, 30}, {120, 35, 80, 60}}));
  EXPECT_EQ(preview.window, (Rect{0, 65, 16, 8}));
}

// A third of 100 pixels each: rounded for itself, each of them would leave a gap.
TEST(PositionPreviewTest, monitorsThatTouchDoSoInThePicture) {
  const Size size{1000, 750};
  const Desktop inARow(size, {{1000, 0, 1000, 750}, {-1000, 0, 1000, 750}});
  const PositionPreview wide = previewOf({100, 97}, inARow, {0, 0, 200, 100});
  EXPECT_EQ(wide.screens[0].right(), wide.screens[1].x);
  EXPECT_EQ(wide.screens[2].right(), wide.screens[0].x);
  const Desktop stacked(size, {{0, 750, 1000, 750}, {0, -750, 1000, 750}});
  const PositionPreview high = previewOf({97, 100}, stacked, {0, 0, 200, 100});
  EXPECT_EQ(high.screens[0].bottom(), high.screens[1].y);
  EXPECT_EQ(high.screens[2].bottom(), high.screens[0].y);
}

}  // namespace
}  // namespace kalvora
