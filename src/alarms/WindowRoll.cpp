#include "alarms/WindowRoll.h"

#include <algorithm>

#include "alarms/Animation.h"

namespace kalvora {

std::int16_t WindowRoll::beginRolledDown(const WindowHeights& heights) {
  height_ = toTwips(heights.full);
  rolledDown_ = true;
  return height_;
}

std::int16_t WindowRoll::beginRolled(const WindowHeights& heights) {
  height_ = toTwips(heights.rolled);
  rolledDown_ = false;
  return height_;
}

RollStep WindowRoll::tick(std::int16_t Win2_Jump, const WindowHeights& heights) {
  const std::int16_t rolledHeight = toTwips(heights.rolled);
  return rolledDown_ ? rollUp(Win2_Jump, rolledHeight)
                     : rollDown(Win2_Jump, rolledHeight, toTwips(heights.full));
}

void WindowRoll::changeHeights(const WindowHeights& from, const WindowHeights& to) {
  const std::int16_t full = toTwips(to.full);
  const std::int16_t rolled = toTwips(to.rolled);
  if (rolledUp(from)) {
    height_ = rolled;
  } else if (rolledDown_ && height_ == toTwips(from.full)) {
    height_ = full;
  } else {
    height_ = std::max(rolled, std::min(height_, full));
  }
}

RollStep WindowRoll::rollUp(std::int16_t Win2_Jump, std::int16_t rolledHeight) {
  const std::optional<std::int16_t> jump = stepInUse(Win2_Jump);
  if (jump && height_ - *jump > rolledHeight) {
    height_ = toInt16(height_ - *jump);
    return {.lookBefore = {}, .height = height_, .lookAfter = {}};
  }
  height_ = rolledHeight;
  rolledDown_ = false;
  return {.lookBefore = {},
          .height = height_,
          .lookAfter = RollStep::Look::RolledUp,
          .stopsTimer = true};
}

RollStep WindowRoll::rollDown(std::int16_t Win2_Jump, std::int16_t rolledHeight,
                              std::int16_t fullHeight) {
  const std::optional<std::int16_t> jump = stepInUse(Win2_Jump);
  const bool ends = !jump || height_ + *jump >= fullHeight;
  RollStep step;
  if (height_ == rolledHeight) step.lookBefore = RollStep::Look::RolledDown;
  height_ = ends ? fullHeight : toInt16(height_ + *jump);
  rolledDown_ = ends;
  step.height = height_;
  step.stopsTimer = ends;
  return step;
}

}  // namespace kalvora
