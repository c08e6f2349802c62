#include "alarms/WindowSlide.h"

#include "alarms/Animation.h"
#include "base/Numbers.h"

namespace kalvora {

void WindowSlide::begin() {
  shown_ = false;
  offset_ = 1;
}

SlideStep WindowSlide::tick(const SlideSettings& settings, const WindowHome& home) {
  const std::int16_t rightEdge = toTwips(add16(home.left, home.width));
  return shown_ ? slideOut(settings, rightEdge) : slideIn(settings, toTwips(home.width), rightEdge);
}

SlideStep WindowSlide::slideIn(const SlideSettings& settings, std::int32_t wholeWidth,
                               std::int16_t rightEdge) {
  const std::optional<std::int16_t> jump = stepInUse(settings.Win1_Jump);
  if (jump && offset_ + *jump < wholeWidth) return moveTo(offset_ + *jump, settings, rightEdge);
  SlideStep step;
  step.left = toInt16(rightEdge - wholeWidth);
  step.width = toInt16(wholeWidth);  // whatever ZRF1 says
  step.end = SlideStep::End::In;
  step.startsRoll = !settings.WysRZF1 && settings.AShT;
  offset_ = wholeWidth;
  shown_ = true;
  return step;
}

SlideStep WindowSlide::slideOut(const SlideSettings& settings, std::int16_t rightEdge) {
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
                              std::int16_t rightEdge) {
  SlideStep step;
  step.left = toInt16(rightEdge - offset);
  if (settings.ZRF1) step.width = toInt16(offset);
  offset_ = offset;
  return step;
}

}  // namespace kalvora
