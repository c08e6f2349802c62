#include "options/PositionPreview.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(PositionPreviewTest, aScreenOfTheSameShapeFillsTheArea) {
  const PositionPreview preview = previewOf({160, 120}, {800, 600}, {80, 60, 200, 150});
  EXPECT_EQ(preview.screen, (Rect{0, 0, 160, 120}));
  EXPECT_EQ(preview.window, (Rect{16, 12, 40, 30}));
}

TEST(PositionPreviewTest, aWideScreenLeavesRoomAboveAndBelow) {
  const PositionPreview preview = previewOf({160, 120}, {1600, 800}, {0, 0, 160, 160});
  EXPECT_EQ(preview.screen, (Rect{0, 20, 160, 80}));
  EXPECT_EQ(preview.window, (Rect{0, 20, 16, 16}));
}

TEST(PositionPreviewTest, aTallScreenLeavesRoomAtBothSides) {
  const PositionPreview preview = previewOf({160, 120}, {600, 1200}, {100, 200, 100, 50});
  EXPECT_EQ(preview.screen, (Rect{50, 0, 60, 120}));
  EXPECT_EQ(preview.window, (Rect{60, 20, 10, 5}));
}

TEST(PositionPreviewTest, theWindowIsAtLeast3By3) {
  const Rect window = previewOf({100, 100}, {10000, 10000}, {5000, 5000, 20, 20}).window;
  EXPECT_EQ(window, (Rect{50, 50, 3, 3}));
}

TEST(PositionPreviewTest, aWindowFlushWithTheRightEdgeStandsThere) {
  const PositionPreview preview = previewOf({200, 150}, {1000, 750}, {800, 650, 200, 100});
  EXPECT_EQ(preview.window.right(), preview.screen.right());
  EXPECT_EQ(preview.window.bottom(), preview.screen.bottom());
}

TEST(PositionPreviewTest, aWindowOffTheScreenLiesOutside) {
  const PositionPreview preview = previewOf({100, 75}, {800, 600}, {-160, 9999, 80, 40});
  EXPECT_EQ(preview.window.x, -20);
  EXPECT_GT(preview.window.y, preview.screen.bottom());
}

TEST(PositionPreviewTest, noScreenOrNoRoomGivesNoPicture) {
  EXPECT_TRUE(previewOf({100, 75}, {0, 0}, {1, 1, 1, 1}).screen.empty());
  EXPECT_TRUE(previewOf({0, 0}, {800, 600}, {1, 1, 1, 1}).screen.empty());
}

}  // namespace
}  // namespace kalvora
