#include "notes/DraftTimer.h"

#include "base/ClearOfCheck.h"

namespace kalvora {

namespace {

/// Seconds. What a killed program loses at most is this and the time that a check holds off.
constexpr int kForMoreLetters = 3;
constexpr int kToTryAgain = 10;

}  // namespace

void DraftTimer::typed() {
  if (waits_ != Wait::ForMoreLetters) startFor(Wait::ForMoreLetters);
}

void DraftTimer::startFor(Wait wait) {
  waits_ = wait;
  const int seconds = wait == Wait::ForMoreLetters ? kForMoreLetters : kToTryAgain;
  start_(clearOfCheck(seconds, clock_.now().second) * 1000);
}

}  // namespace kalvora
