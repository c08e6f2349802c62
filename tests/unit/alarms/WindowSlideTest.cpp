#include "alarms/WindowSlide.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/Errors.h"

namespace kalvora {
namespace {

using End = SlideStep::End;

constexpr WindowHome kHome{.left = 600, .width = 200};
constexpr std::int16_t kRightEdge = 800 * 15;

/// Ticks until the slide ends, at most 100,000 times.
std::vector<SlideStep> wholeSlide(WindowSlide& slide, const SlideSettings& settings,
                                  const WindowHome& home = kHome) {
  std::vector<SlideStep> steps;
  do {
    steps.push_back(slide.tick(settings, home));
  } while (!steps.back().stopsTimer() && steps.size() < 100000);
  return steps;
}

TEST(WindowSlide, twoHundredPixelsInStepsOfTenComeInWithTwentyTicks) {
  WindowSlide slide;
  slide.begin();
  EXPECT_EQ(slide.offset(), 1);
  EXPECT_FALSE(slide.shown());
  const std::vector<SlideStep> steps = wholeSlide(slide, {.Win1_Jump = 10});
  ASSERT_EQ(steps.size(), 20U);
  for (int i = 0; i < 19; ++i) {
    const SlideStep& step = steps[static_cast<std::size_t>(i)];
    EXPECT_EQ(step.left, kRightEdge - (1 + (i + 1) * 150)) << i;
    EXPECT_EQ(step.end, End::None) << i;
  }
  EXPECT_EQ(steps.back().left, 600 * 15);
  EXPECT_EQ(steps.back().width, 200 * 15);
  EXPECT_EQ(steps.back().end, End::In);
  EXPECT_TRUE(slide.shown());
  EXPECT_EQ(slide.offset(), 3000);
}

TEST(WindowSlide, theWindowGoesOutTheWayItCameAndHides) {
  WindowSlide slide;
  slide.begin();
  wholeSlide(slide, {});
  const std::vector<SlideStep> steps = wholeSlide(slide, {.Win1_Jump = 10});
  ASSERT_EQ(steps.size(), 20U);
  EXPECT_EQ(steps.front().left, kRightEdge - 2850);
  EXPECT_EQ(steps[18].left, kRightEdge - 150);
  EXPECT_EQ(steps.back().left, kRightEdge);
  EXPECT_EQ(steps.back().width, 0);
  EXPECT_TRUE(steps.back().hidesWindow());
  EXPECT_FALSE(steps.back().redrawsPicture());
  EXPECT_FALSE(slide.shown());
  EXPECT_EQ(slide.offset(), 0);
}

TEST(WindowSlide, theWidthStaysUntilTheLastTickWithResizingOff) {
  WindowSlide slide;
  slide.begin();
  for (const int wayAndBack : {1, 2}) {
    const std::vector<SlideStep> steps = wholeSlide(slide, {.Win1_Jump = 30, .ZRF1 = false});
    for (std::size_t i = 0; i + 1 < steps.size(); ++i) {
      EXPECT_EQ(steps[i].width, std::nullopt) << wayAndBack << ' ' << i;
    }
    EXPECT_TRUE(steps.back().width.has_value()) << wayAndBack;
  }
}

TEST(WindowSlide, theWidthFollowsTheSlideWithResizingOn) {
  WindowSlide slide;
  slide.begin();
  const SlideSettings settings{.Win1_Jump = 70, .ZRF1 = true};
  const std::vector<SlideStep> in = wholeSlide(slide, settings);
  ASSERT_EQ(in.size(), 3U);
  EXPECT_EQ(in[0].width, 1051);
  EXPECT_EQ(in[1].width, 2101);
  EXPECT_EQ(in[2].width, 3000);
  const std::vector<SlideStep> out = wholeSlide(slide, settings);
  ASSERT_EQ(out.size(), 3U);
  EXPECT_EQ(out[0].width, 1950);
  EXPECT_EQ(out[1].width, 900);
  EXPECT_EQ(out[2].width, 0);
}

TEST(WindowSlide, theRollFollowsOnlyWhenTheNotesAreUpAndAreToRollDown) {
  for (const bool WysRZF1 : {false, true}) {
    for (const bool AShT : {false, true}) {
      WindowSlide slide;
      slide.begin();
      const SlideSettings settings{.Win1_Jump = 50, .WysRZF1 = WysRZF1, .AShT = AShT};
      const std::vector<SlideStep> in = wholeSlide(slide, settings);
      EXPECT_EQ(in.back().startsRoll, !WysRZF1 && AShT);
      EXPECT_TRUE(in.back().redrawsPicture());
      EXPECT_FALSE(in.back().hidesWindow());
      EXPECT_FALSE(in.front().startsRoll);
      EXPECT_FALSE(wholeSlide(slide, settings).back().startsRoll);
    }
  }
}

TEST(WindowSlide, anExactlyReachedWidthIsTheEnd) {
  WindowSlide slide;  // not begun: it starts from 0, not from 1
  EXPECT_EQ(wholeSlide(slide, {.Win1_Jump = 100}).size(), 2U);
  EXPECT_EQ(wholeSlide(slide, {.Win1_Jump = 100}).size(), 2U);
}

TEST(WindowSlide, aStepWiderThanTheWindowReachesTheEndAtOnce) {
  WindowSlide slide;
  slide.begin();
  EXPECT_EQ(wholeSlide(slide, {.Win1_Jump = 2184}).size(), 1U);
  EXPECT_TRUE(slide.shown());
  EXPECT_EQ(wholeSlide(slide, {.Win1_Jump = 2184}).size(), 1U);
  EXPECT_FALSE(slide.shown());
}

TEST(WindowSlide, aStepBelowOnePixelReachesTheEndAtOnceInsteadOfNever) {
  for (const int jump : {0, -1, -10, -2185, -32768}) {
    WindowSlide slide;
    slide.begin();
    const SlideSettings settings{.Win1_Jump = static_cast<std::int16_t>(jump)};
    const std::vector<SlideStep> in = wholeSlide(slide, settings);
    ASSERT_EQ(in.size(), 1U) << jump;
    EXPECT_EQ(in.back().left, 600 * 15);
    const std::vector<SlideStep> out = wholeSlide(slide, settings);
    ASSERT_EQ(out.size(), 1U) << jump;
    EXPECT_EQ(out.back().left, kRightEdge);
    EXPECT_FALSE(slide.shown());
  }
}

TEST(WindowSlide, aSlideLeftHalfWayGoesOnFromThere) {
  WindowSlide slide;
  slide.begin();
  wholeSlide(slide, {});
  for (int i = 0; i < 5; ++i) slide.tick({.Win1_Jump = 10}, kHome);
  EXPECT_EQ(slide.offset(), 2250);
  EXPECT_TRUE(slide.shown());
  EXPECT_EQ(wholeSlide(slide, {.Win1_Jump = 50}).size(), 3U);
}

TEST(WindowSlide, beginningAgainInTheMiddleOfTheWayOutComesInFromTheRightEdge) {
  WindowSlide slide;
  slide.begin();
  wholeSlide(slide, {});
  slide.tick({}, kHome);
  slide.begin();
  EXPECT_FALSE(slide.shown());
  EXPECT_EQ(slide.tick({.Win1_Jump = 10}, kHome).left, kRightEdge - 151);
}

TEST(WindowSlide, aTickWithoutABeginningSlidesAHiddenWindowInFromNothing) {
  WindowSlide slide;
  slide.begin();
  wholeSlide(slide, {});
  wholeSlide(slide, {});
  EXPECT_EQ(slide.tick({.Win1_Jump = 10}, kHome).left, kRightEdge - 150);
}

TEST(WindowSlide, aWindowPartlyLeftOfTheScreenSlidesToItsHomeToo) {
  WindowSlide slide;
  slide.begin();
  EXPECT_EQ(wholeSlide(slide, {}, {.left = -150, .width = 200}).back().left, -2250);
}

TEST(WindowSlide, aWidthOrAStepBeyondSixteenBitsOverflowsAndChangesNothing) {
  WindowSlide slide;
  slide.begin();
  EXPECT_THROW(slide.tick({}, {.left = 0, .width = 2185}), OverflowError);
  EXPECT_THROW(slide.tick({.Win1_Jump = 2185}, kHome), OverflowError);
  EXPECT_THROW(slide.changeWidth(200, 2185), OverflowError);
  EXPECT_EQ(slide.offset(), 1);
  EXPECT_FALSE(slide.shown());
}

TEST(WindowSlide, theHomeMayBeAnywhereOnADesktopOfManyMonitors) {
  for (const int left : {1985, 2360, 3640, 7480, 32567, -2385, -7680, -32768}) {
    WindowSlide slide;
    slide.begin();
    const WindowHome home{.left = static_cast<std::int16_t>(left), .width = 200};
    EXPECT_EQ(wholeSlide(slide, {}, home).back().left, left * 15);
    EXPECT_EQ(wholeSlide(slide, {}, home).back().left, (left + 200) * 15);
  }
}

TEST(WindowSlide, aWindowThatIsOutStaysWhollyOutWithAnotherWidth) {
  for (const int width : {50, 300}) {
    WindowSlide slide;
    slide.begin();
    wholeSlide(slide, {});
    slide.changeWidth(200, static_cast<std::int16_t>(width));
    EXPECT_EQ(slide.offset(), width * 15);
    EXPECT_TRUE(slide.shown());
  }
}

TEST(WindowSlide, aWindowOnItsWayShowsAsMuchAsBeforeWithAnotherWidth) {
  WindowSlide slide;
  slide.begin();
  for (int i = 0; i < 10; ++i) slide.tick({}, kHome);
  slide.changeWidth(200, 300);
  EXPECT_EQ(slide.offset(), 1501);
  slide.changeWidth(300, 50);
  EXPECT_EQ(slide.offset(), 750);
  EXPECT_EQ(wholeSlide(slide, {}, {.left = 600, .width = 50}).back().left, 9000);
}

}  // namespace
}  // namespace kalvora
