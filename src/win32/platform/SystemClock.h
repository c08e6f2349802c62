#pragma once

#include "base/Clock.h"

namespace kalvora {

/// The computer's clock, in the user's time zone.
class SystemClock : public Clock {
 public:
  LocalTime now() const override;
};

}  // namespace kalvora
