#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <vector>

#include "alarms/WindowRoll.h"
#include "alarms/WindowSlide.h"

namespace kalvora {
namespace {

std::int16_t between(int lowest, int highest) {
  return static_cast<std::int16_t>(*rc::gen::inRange(lowest, highest + 1));
}

/// How many steps cover a way, where one below a pixel covers any and each slide takes one at
/// least.
int ticksFor(int wayTwips, int jump) {
  if (jump < 1) return 1;
  return std::max(1, (wayTwips + jump * 15 - 1) / (jump * 15));
}

struct Slide {
  WindowHome home;
  SlideSettings settings;
};

Slide anySlide() {
  const std::int16_t width = between(0, 2184);
  const std::int16_t left = between(-32768, 32767);  // anywhere on any desktop
  const SlideSettings settings{
      .Win1_Jump = *rc::gen::element(between(-2184, 0), between(1, 40), between(1, 2184)),
      .ZRF1 = *rc::gen::arbitrary<bool>(),
      .WysRZF1 = *rc::gen::arbitrary<bool>(),
      .AShT = *rc::gen::arbitrary<bool>()};
  return {{.left = left, .width = width}, settings};
}

std::vector<SlideStep> run(WindowSlide& slide, const Slide& given) {
  std::vector<SlideStep> steps;
  do {
    steps.push_back(slide.tick(given.settings, given.home));
    RC_ASSERT(steps.size() <= 2185U);  // one pixel a tick over the widest window
  } while (!steps.back().stopsTimer());
  return steps;
}

void checkOnTheWay(const std::vector<SlideStep>& steps, const Slide& given) {
  const int rightEdge = (given.home.left + given.home.width) * 15;
  for (const SlideStep& step : steps) {
    RC_ASSERT(step.left <= rightEdge);
    RC_ASSERT(step.left >= given.home.left * 15);
    if (step.end != SlideStep::End::None) continue;
    RC_ASSERT(step.width.has_value() == given.settings.ZRF1);
    RC_ASSERT(!step.width || step.left + *step.width == rightEdge);
    RC_ASSERT(!step.startsRoll);
  }
}

RC_GTEST_PROP(WindowSlideProperty, everySlideInEndsAtHomeAndEverySlideOutOneWidthFurtherRight, ()) {
  const Slide given = anySlide();
  const int width = given.home.width * 15;
  WindowSlide slide;
  slide.begin();

  const std::vector<SlideStep> in = run(slide, given);
  checkOnTheWay(in, given);
  RC_ASSERT(std::ranges::is_sorted(in, std::ranges::greater{}, &SlideStep::left));
  RC_ASSERT(static_cast<int>(in.size()) == ticksFor(width - 1, given.settings.Win1_Jump));
  RC_ASSERT(in.back().left == given.home.left * 15);
  RC_ASSERT(in.back().width == width);
  RC_ASSERT(in.back().end == SlideStep::End::In);
  RC_ASSERT(in.back().startsRoll == (!given.settings.WysRZF1 && given.settings.AShT));
  RC_ASSERT(slide.shown());

  const std::vector<SlideStep> out = run(slide, given);
  checkOnTheWay(out, given);
  RC_ASSERT(std::ranges::is_sorted(out, std::ranges::less{}, &SlideStep::left));
  RC_ASSERT(static_cast<int>(out.size()) == ticksFor(width, given.settings.Win1_Jump));
  RC_ASSERT(out.back().left == given.home.left * 15 + width);
  RC_ASSERT(out.back().width == 0);
  RC_ASSERT(out.back().end == SlideStep::End::Out);
  RC_ASSERT(!slide.shown());
  RC_ASSERT(slide.offset() == 0);
}

RC_GTEST_PROP(WindowSlideProperty, aSlideStillEndsWhenSettingsAndHomeChangeWithEveryTick, ()) {
  WindowSlide slide;
  slide.begin();
  int ticks = 0;
  for (bool ended = false; !ended; ++ticks) {
    const Slide now = anySlide();
    ended = slide.tick(now.settings, now.home).stopsTimer();
    RC_ASSERT(ticks < 2185);
  }
  RC_ASSERT(slide.shown());
}

struct Roll {
  WindowHeights heights;
  std::int16_t jump = 0;
};

Roll anyRoll() {
  const std::int16_t full = between(0, 2184);
  return {{.full = full, .rolled = between(0, full)},
          *rc::gen::element(between(-2184, 0), between(1, 40), between(1, 2184))};
}

std::vector<RollStep> run(WindowRoll& roll, const Roll& given) {
  std::vector<RollStep> steps;
  do {
    steps.push_back(roll.tick(given.jump, given.heights));
    RC_ASSERT(steps.back().height >= given.heights.rolled * 15);
    RC_ASSERT(steps.back().height <= given.heights.full * 15);
    RC_ASSERT(steps.size() <= 2185U);
  } while (!steps.back().stopsTimer);
  return steps;
}

RC_GTEST_PROP(WindowRollProperty, everyRollDownEndsAtTheFullHeightAndEveryRollUpAtTheTitleStrip,
              ()) {
  const Roll given = anyRoll();
  const int way = (given.heights.full - given.heights.rolled) * 15;
  WindowRoll roll;
  roll.beginRolled(given.heights);

  const std::vector<RollStep> down = run(roll, given);
  RC_ASSERT(std::ranges::is_sorted(down, std::ranges::less{}, &RollStep::height));
  RC_ASSERT(static_cast<int>(down.size()) == ticksFor(way, given.jump));
  RC_ASSERT(down.back().height == given.heights.full * 15);
  RC_ASSERT(std::ranges::count(down, RollStep::Look::RolledDown, &RollStep::lookBefore) == 1);
  RC_ASSERT(down.front().lookBefore == RollStep::Look::RolledDown);
  RC_ASSERT(roll.rolledDown());

  const std::vector<RollStep> up = run(roll, given);
  RC_ASSERT(std::ranges::is_sorted(up, std::ranges::greater{}, &RollStep::height));
  RC_ASSERT(static_cast<int>(up.size()) == ticksFor(way, given.jump));
  RC_ASSERT(up.back().height == given.heights.rolled * 15);
  RC_ASSERT(std::ranges::count(up, RollStep::Look::RolledUp, &RollStep::lookAfter) == 1);
  RC_ASSERT(up.back().lookAfter == RollStep::Look::RolledUp);
  RC_ASSERT(!roll.rolledDown());
}

}  // namespace
}  // namespace kalvora
