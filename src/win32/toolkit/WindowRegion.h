#pragma once

#include <optional>

#include "base/Geometry.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// The region that covers the spans; no region (an empty owner) where there are none.
/// Throws std::bad_alloc where the system has no more regions.
UniqueRegion regionOf(const RowSpans& spans);

}  // namespace kalvora
