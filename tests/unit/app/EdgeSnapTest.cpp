#include "app/EdgeSnap.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

constexpr TwipsSize kScreen{15360, 11520};  // 1024 × 768 pixels
constexpr TwipsSize kWindow{3000, 2415};    // 200 × 161 pixels
constexpr std::int32_t kFlushRight = 12360;
constexpr std::int32_t kFlushBottom = 9105;

struct Drop {
  const char* what;
  TwipsPlace at;
  TwipsPlace standsAt;
};

constexpr Drop kDrops[] = {
    {"in the middle", {6000, 4000}, {6000, 4000}},
    {"10 pixels from the right edge", {kFlushRight - 150, 4000}, {kFlushRight, 4000}},
    {"10 pixels from the bottom edge", {6000, kFlushBottom - 150}, {6000, kFlushBottom}},
    {"10 pixels from the left edge", {150, 4000}, {0, 4000}},
    {"10 pixels from the top edge", {6000, 150}, {6000, 0}},
    {"in the bottom right corner", {12100, 9000}, {kFlushRight, kFlushBottom}},
    {"in the top left corner", {299, 1}, {0, 0}},
    {"in the top right corner", {12100, 299}, {kFlushRight, 0}},
    {"flush with all it can be", {kFlushRight, kFlushBottom}, {kFlushRight, kFlushBottom}},
    {"partly beyond the right edge", {kFlushRight + 1, 4000}, {kFlushRight + 1, 4000}},
    {"partly beyond the bottom edge", {6000, kFlushBottom + 15}, {6000, kFlushBottom + 15}},
    {"partly beyond the left edge", {-1, 4000}, {-1, 4000}},
    {"partly beyond the top edge", {6000, -150}, {6000, -150}},
    {"exactly 20 pixels from the right", {kFlushRight - 300, 4000}, {kFlushRight - 300, 4000}},
    {"a twip nearer the right", {kFlushRight - 299, 4000}, {kFlushRight, 4000}},
    {"exactly 20 pixels from the bottom", {6000, kFlushBottom - 300}, {6000, kFlushBottom - 300}},
    {"a twip nearer the bottom", {6000, kFlushBottom - 299}, {6000, kFlushBottom}},
    {"exactly 20 pixels from the left", {300, 4000}, {300, 4000}},
    {"exactly 20 pixels from the top", {6000, 300}, {6000, 300}},
};

TEST(EdgeSnap, aDroppedWindowSnapsToTheEdgesItIsNear) {
  for (const Drop& drop : kDrops) {
    EXPECT_EQ(snapToEdges(drop.at, kWindow, kScreen), drop.standsAt) << drop.what;
  }
}

TEST(EdgeSnap, aWindowNearlyAsLargeAsTheScreenEndsInTheTopLeftCorner) {
  EXPECT_EQ(snapToEdges({50, 50}, {15260, 11420}, kScreen), (TwipsPlace{0, 0}));
  EXPECT_EQ(snapToEdges({-50, -50}, {15260, 11420}, kScreen), (TwipsPlace{0, 0}));
}

TEST(EdgeSnap, aWindowAsLargeAsTheScreenFillsIt) {
  EXPECT_EQ(snapToEdges({-100, 100}, kScreen, kScreen), (TwipsPlace{0, 0}));
}

TEST(EdgeSnap, aScreenWiderThanSixteenBitsOfTwipsSnapsToo) {
  constexpr TwipsSize kLarge{57600, 32400};  // 3840 × 2160 pixels
  EXPECT_EQ(snapToEdges({54500, 100}, kWindow, kLarge), (TwipsPlace{54600, 0}));
}

}  // namespace
}  // namespace kalvora
