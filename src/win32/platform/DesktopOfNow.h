#pragma once

#include "base/Desktop.h"

namespace kalvora {

/// The monitors as Windows knows them at this moment.
Desktop desktopOfNow();

}  // namespace kalvora
