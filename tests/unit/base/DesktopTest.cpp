#include "base/Desktop.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

constexpr Size kPrimary{1920, 1080};
constexpr Rect kPrimaryRect{0, 0, 1920, 1080};
constexpr Rect kLeft{-1280, 100, 1280, 1024};
constexpr Rect kAbove{200, -800, 1280, 800};
constexpr Rect kRight{1920, 0, 2560, 1440};

TEST(DesktopTest, oneMonitorIsThePrimaryAndTheWholeDesktop) {
  const Desktop desktop(kPrimary);
  EXPECT_EQ(desktop.primary(), kPrimaryRect);
  EXPECT_EQ(desktop.bounds(), kPrimaryRect);
  EXPECT_EQ(desktop.monitors(), std::vector<Rect>{kPrimaryRect});
}

TEST(DesktopTest, theBoundsReachAroundMonitorsOnAllSides) {
  const Desktop desktop(kPrimary, {kLeft, kAbove, kRight});
  EXPECT_EQ(desktop.bounds(), (Rect{-1280, -800, 5760, 2240}));
  EXPECT_EQ(desktop.primary(), kPrimaryRect);
}

TEST(DesktopTest, onePixelOfAWindowOnAnyMonitorIsSeen) {
  const Desktop desktop(kPrimary, {kLeft, kRight});
  for (const Rect& seen : {Rect{-199, 1079, 200, 100}, Rect{4479, 0, 200, 100},
                           Rect{-1280, 1, 10, 100}, Rect{1900, -99, 100, 100}}) {
    EXPECT_TRUE(desktop.shows(seen)) << seen.x << ", " << seen.y;
  }
  // In the corner that no monitor fills, too.
  for (const Rect& unseen : {Rect{4480, 0, 200, 100}, Rect{-200, 0, 200, 100},
                             Rect{0, 1080, 200, 100}, Rect{0, 0, 0, 100}}) {
    EXPECT_FALSE(desktop.shows(unseen)) << unseen.x << ", " << unseen.y;
  }
}

TEST(DesktopTest, aWindowIsOnTheMonitorThatShowsMostOfIt) {
  const Desktop desktop(kPrimary, {kLeft, kRight});
  EXPECT_EQ(desktop.monitorOf({1900, 10, 200, 100}), kRight);
  EXPECT_EQ(desktop.monitorOf({1800, 10, 200, 100}), kPrimaryRect);
  EXPECT_EQ(desktop.monitorOf({1820, 10, 200, 100}), kPrimaryRect) << "the first of two alike";
  EXPECT_EQ(desktop.monitorOf({-150, 200, 200, 100}), kLeft);
}

TEST(DesktopTest, aWindowOnNoMonitorBelongsToTheNearest) {
  const Desktop desktop(kPrimary, {kLeft, kRight});
  EXPECT_EQ(desktop.monitorOf({9999, 9999, 200, 100}), kRight);
  EXPECT_EQ(desktop.monitorOf({-5000, 0, 200, 100}), kLeft);
  EXPECT_EQ(desktop.monitorOf({500, -700, 200, 100}), kPrimaryRect);
  EXPECT_EQ(desktop.monitorOf({-300, 0, 200, 50}), kLeft);
  EXPECT_EQ(desktop.monitorOf({32767, 32767, 32767, 32767}), kRight);
}

}  // namespace
}  // namespace kalvora
