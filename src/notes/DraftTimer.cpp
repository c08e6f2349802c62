#include "notes/DraftTimer.h"

namespace kalvora {

namespace {

/// Seconds. What a killed program loses at most is this and the time that a check holds off.
constexpr int kForMoreLetters = 3;
constexpr int kToTryAgain = 10;
constexpr int kMinute = 60;
/// From this second of a minute to that one of the next, reminders are looked for.
constexpr int kCheckNears = 57;
constexpr int kCheckIsOver = 2;

/// Seconds to wait so that the end falls into no check.
int clearOfCheck(int seconds, int now) {
  const int end = (now + seconds) % kMinute;
  if (end >= kCheckNears) return seconds + kMinute + kCheckIsOver - end;
  if (end < kCheckIsOver) return seconds + kCheckIsOver - end;
  return seconds;
}

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
