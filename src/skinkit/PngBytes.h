#pragma once

#include <string>

#include "base/Image.h"

namespace kalvora {

/// A picture as the bytes of a PNG file. Throws Failure where it cannot be made.
std::string pngBytes(const Image& picture);

}  // namespace kalvora
