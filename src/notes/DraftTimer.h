#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "base/Clock.h"

namespace kalvora {

/// When what is typed in a window is kept as a draft: some seconds after the first letter, but not
/// around a minute's reminder check, which a slow disk must not hold up.
class DraftTimer {
 public:
  /// `start` starts the window's timer anew, with its interval in milliseconds. `clock` must
  /// outlive this object.
  DraftTimer(const Clock& clock, std::function<void(int)> start)
      : clock_(clock), start_(std::move(start)) {}

  /// Something was typed. What is typed while the timer runs does not put it off.
  void typed();
  /// What was typed could not be kept: the disk may have room again a while later.
  void tryAgain() { startFor(Wait::ToTryAgain); }
  /// The window's timer was stopped.
  void stopped() { waits_.reset(); }

 private:
  enum class Wait { ForMoreLetters, ToTryAgain };
  void startFor(Wait wait);

  const Clock& clock_;
  std::function<void(int)> start_;
  std::optional<Wait> waits_;  // while the timer runs
};

}  // namespace kalvora
