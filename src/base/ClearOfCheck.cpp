#include "base/ClearOfCheck.h"

namespace kalvora {

namespace {

constexpr int kMinute = 60;
/// From this second of a minute to that one of the next, reminders are looked for.
constexpr int kCheckNears = 57;
constexpr int kCheckIsOver = 2;

}  // namespace

int clearOfCheck(int seconds, int now) {
  const int end = (now + seconds) % kMinute;
  if (end >= kCheckNears) return seconds + kMinute + kCheckIsOver - end;
  if (end < kCheckIsOver) return seconds + kCheckIsOver - end;
  return seconds;
}

}  // namespace kalvora
