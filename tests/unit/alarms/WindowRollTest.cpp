#include "alarms/WindowRoll.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "base/Errors.h"

namespace kalvora {
namespace {

using Look = RollStep::Look;

constexpr WindowHeights kHeights{.full = 161, .rolled = 25};

/// Ticks until the roll ends, at most 100,000 times.
std::vector<RollStep> wholeRoll(WindowRoll& roll, int jump,
                                const WindowHeights& heights = kHeights) {
  std::vector<RollStep> steps;
  do {
    steps.push_back(roll.tick(static_cast<std::int16_t>(jump), heights));
  } while (!steps.back().stopsTimer && steps.size() < 100000);
  return steps;
}

TEST(WindowRoll, downFrom25To161InStepsOf20TakesSevenTicksTheLastOneClamped) {
  WindowRoll roll;
  roll.beginRolled(kHeights);
  const std::vector<RollStep> steps = wholeRoll(roll, 20);
  ASSERT_EQ(steps.size(), 7U);
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(steps[static_cast<std::size_t>(i)].height, (25 + 20 * (i + 1)) * 15) << i;
  }
  EXPECT_EQ(steps.back().height, 161 * 15);
  EXPECT_TRUE(roll.rolledDown());
  EXPECT_EQ(roll.height(), 161 * 15);
}

TEST(WindowRoll, upAgainTakesAsManyTicks) {
  WindowRoll roll;
  EXPECT_EQ(roll.beginRolledDown(kHeights), 161 * 15);
  EXPECT_TRUE(roll.rolledDown());
  const std::vector<RollStep> steps = wholeRoll(roll, 20);
  ASSERT_EQ(steps.size(), 7U);
  EXPECT_EQ(steps.front().height, 141 * 15);
  EXPECT_EQ(steps.back().height, 25 * 15);
  EXPECT_FALSE(roll.rolledDown());
}

TEST(WindowRoll, theNoteAreaIsToBeSeenForTheWholeMovementBothWays) {
  WindowRoll roll;
  roll.beginRolled(kHeights);
  const std::vector<RollStep> down = wholeRoll(roll, 20);
  EXPECT_EQ(down.front().lookBefore, Look::RolledDown);
  for (std::size_t i = 1; i < down.size(); ++i) EXPECT_EQ(down[i].lookBefore, std::nullopt) << i;
  for (const RollStep& step : down) EXPECT_EQ(step.lookAfter, std::nullopt);

  const std::vector<RollStep> up = wholeRoll(roll, 20);
  EXPECT_EQ(up.back().lookAfter, Look::RolledUp);
  for (std::size_t i = 0; i + 1 < up.size(); ++i) EXPECT_EQ(up[i].lookAfter, std::nullopt) << i;
  for (const RollStep& step : up) EXPECT_EQ(step.lookBefore, std::nullopt);
}

TEST(WindowRoll, theNotePicturesAreHiddenInTheRolledUpLookOnly) {
  EXPECT_TRUE(hidesNotePictures(Look::RolledUp));
  EXPECT_FALSE(hidesNotePictures(Look::RolledDown));
}

TEST(WindowRoll, anExactlyReachedHeightIsTheEnd) {
  WindowRoll roll;
  roll.beginRolled(kHeights);
  EXPECT_EQ(wholeRoll(roll, 68).size(), 2U);
  EXPECT_EQ(wholeRoll(roll, 68).size(), 2U);
}

TEST(WindowRoll, aStepHigherThanTheNoteAreaReachesTheEndAtOnce) {
  WindowRoll roll;
  roll.beginRolled(kHeights);
  EXPECT_EQ(wholeRoll(roll, 2184).size(), 1U);
  EXPECT_EQ(roll.height(), 161 * 15);
  EXPECT_EQ(wholeRoll(roll, 2184).size(), 1U);
  EXPECT_EQ(roll.height(), 25 * 15);
}

TEST(WindowRoll, aStepBelowOnePixelReachesTheEndAtOnceInsteadOfNever) {
  for (const int jump : {0, -1, -20, -2185, -32768}) {
    WindowRoll roll;
    roll.beginRolled(kHeights);
    const std::vector<RollStep> down = wholeRoll(roll, jump);
    ASSERT_EQ(down.size(), 1U) << jump;
    EXPECT_EQ(down.back().lookBefore, Look::RolledDown);
    EXPECT_EQ(down.back().height, 161 * 15);
    const std::vector<RollStep> up = wholeRoll(roll, jump);
    ASSERT_EQ(up.size(), 1U) << jump;
    EXPECT_EQ(up.back().lookAfter, Look::RolledUp);
    EXPECT_EQ(up.back().height, 25 * 15);
  }
}

TEST(WindowRoll, aRollLeftHalfWayGoesOnFromThereWithoutANewRegion) {
  WindowRoll roll;
  roll.beginRolled(kHeights);
  roll.tick(20, kHeights);
  roll.tick(20, kHeights);
  const std::vector<RollStep> rest = wholeRoll(roll, 40);
  ASSERT_EQ(rest.size(), 3U);
  EXPECT_EQ(rest.front().lookBefore, std::nullopt);
  EXPECT_EQ(rest.front().height, (65 + 40) * 15);
}

TEST(WindowRoll, afterComingOutAsATitleStripTheNextRollGoesDown) {
  WindowRoll roll;
  roll.beginRolledDown(kHeights);
  EXPECT_EQ(roll.beginRolled(kHeights), 25 * 15);
  EXPECT_FALSE(roll.rolledDown());
  const std::vector<RollStep> steps = wholeRoll(roll, 20);
  ASSERT_EQ(steps.size(), 7U);
  EXPECT_EQ(steps.front().lookBefore, Look::RolledDown);
  EXPECT_EQ(steps.back().height, 161 * 15);
}

TEST(WindowRoll, aSkinWithoutANoteAreaEndsItsRollsAtOnce) {
  constexpr WindowHeights kStrip{.full = 25, .rolled = 25};
  WindowRoll roll;
  roll.beginRolled(kStrip);
  EXPECT_EQ(wholeRoll(roll, 20, kStrip).size(), 1U);
  EXPECT_EQ(wholeRoll(roll, 20, kStrip).size(), 1U);
}

TEST(WindowRoll, aHeightBeyondSixteenBitsOverflowsAndChangesNothing) {
  constexpr WindowHeights kTall{.full = 2185, .rolled = 25};
  WindowRoll roll;
  roll.beginRolled(kHeights);
  EXPECT_THROW(roll.tick(20, kTall), OverflowError);
  EXPECT_THROW(roll.beginRolledDown(kTall), OverflowError);
  EXPECT_THROW(roll.tick(2185, kHeights), OverflowError);
  EXPECT_EQ(roll.height(), 25 * 15);
  EXPECT_FALSE(roll.rolledDown());
}

TEST(WindowRoll, theTallestWindowRollsDownWithoutOverflow) {
  constexpr WindowHeights kTallest{.full = 2184, .rolled = 25};
  WindowRoll roll;
  roll.beginRolled(kTallest);
  EXPECT_EQ(wholeRoll(roll, 1000, kTallest).size(), 3U);
  EXPECT_EQ(roll.height(), 32760);
}

TEST(WindowRoll, aWindowAtAnEndStaysAtThatEndWithOtherHeights) {
  constexpr WindowHeights kOther{.full = 300, .rolled = 40};
  WindowRoll roll;
  roll.beginRolledDown(kHeights);
  roll.changeHeights(kHeights, kOther);
  EXPECT_EQ(roll.height(), 300 * 15);
  EXPECT_FALSE(roll.rolledUp(kOther));
  roll.beginRolled(kHeights);
  roll.changeHeights(kHeights, kOther);
  EXPECT_EQ(roll.height(), 40 * 15);
  EXPECT_TRUE(roll.rolledUp(kOther));
}

TEST(WindowRoll, aRollGoesOnWithOtherHeightsFromWhereItIs) {
  for (const WindowHeights other :
       {WindowHeights{300, 40}, WindowHeights{60, 20}, WindowHeights{400, 140}}) {
    WindowRoll down;
    down.beginRolled(kHeights);
    for (int i = 0; i < 4; ++i) down.tick(20, kHeights);
    down.changeHeights(kHeights, other);
    EXPECT_EQ(down.height(), std::clamp<int>(105, other.rolled, other.full) * 15);
    EXPECT_EQ(wholeRoll(down, 20, other).back().height, other.full * 15);

    WindowRoll up;
    up.beginRolledDown(kHeights);
    up.tick(20, kHeights);
    up.changeHeights(kHeights, other);
    const std::vector<RollStep> steps = wholeRoll(up, 20, other);
    EXPECT_EQ(steps.back().height, other.rolled * 15);
    EXPECT_EQ(steps.back().lookAfter, Look::RolledUp);
  }
}

}  // namespace
}  // namespace kalvora
