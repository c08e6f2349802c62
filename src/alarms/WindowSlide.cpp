#include "alarms/WindowSlide.h"

#include <algorithm>

#include "alarms/Animation.h"
#include "base/Numbers.h"

namespace kalvora {

void WindowSlide::begin() {
  shown_ = false;
  offset_ = 1;
}

SlideStep WindowSlide::tick(const SlideSettings& settings, const WindowHome& home) {
  const std::int16_t wholeWidth = toTwips(home.width);
  const std::int32_t rightEdge = home.left * kTwipsPerPixel + wholeWidth;
  return shown_ ? slideOut(settings, rightEdge) : slideIn(settings, wholeWidth, rightEdge);
}

void WindowSlide::changeWidth(std::int16_t from, std::int16_t to) {
  const std::int32_t wholeWidth = toTwips(to);
  const bool whollyOut = shown_ && offset_ == toTwips(from);
  offset_ = whollyOut ? wholeWidth : std::min(offset_, wholeWidth);
}

SlideStep WindowSlide::slideIn(const SlideSettings& settings, std::int32_t wholeWidth,
                               std::int32_t rightEdge) {
  const std::optional<std::int16_t> jump = stepInUse(settings.Win1_Jump);
  if (jump && offset_ + *jump < wholeWidth) return moveTo(offset_ + *jump, settings, rightEdge);
  SlideStep step;
  step.left = rightEdge - wholeWidth;
  step.width = toInt16(wholeWidth);  // whatever ZRF1 says
  step.end = SlideStep::End::In;
  step.startsRoll = !settings.WysRZF1 && settings.AShT;
  offset_ = wholeWidth;
  shown_ = true;
  return step;
}

SlideStep WindowSlide::slideOut(const SlideSettings& settings, std::int32_t rightEdge) {
  const std::optional<std::int16_t> jump = stepInUse(settings.Win1_Jump);
  if (jump && offset_ - *jump > 0) return moveTo(offset_ - *jump, settings, rightEdge);
  SlideStep step;
  step.left = rightEdge;
  step.width = std::int16_t{0};  // whatever ZRF1 says
  step.end = SlideStep::End::Out;
  offset_ = 0;
  shown_ = false;
  return step;
}

SlideStep WindowSlide::moveTo(std::int32_t offset, const SlideSettings& settings,
                              std::int32_t rightEdge) {
  SlideStep step;
  step.left = rightEdge - offset;
  if (settings.ZRF1) step.width = toInt16(offset);
  offset_ = offset;
  return step;
}

}  // namespace kalvora
