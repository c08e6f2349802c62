#pragma once

#include "base/Image.h"

namespace kalvora {

/// The picture made small enough for `room`, aspect kept, each pixel the average of those it stands
/// for. A picture that fits is returned as it is; in no room it is empty.
Image reducedToFit(const Image& picture, Size room);

}  // namespace kalvora
