#pragma once

#include "skin/TitleScroller.h"

namespace kalvora {

/// Timers of a title that never moves.
class SilentScrollTimers : public ScrollTimers {
 public:
  void startScrool(int /*milliseconds*/) override {}
  void stopScrool() override {}
  void startPoczekaj(int /*milliseconds*/) override {}
  void stopPoczekaj() override {}
};

}  // namespace kalvora
