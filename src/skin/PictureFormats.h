#pragma once

#include <string>
#include <string_view>

#include "skin/Picture.h"

namespace kalvora {

/// The decoders behind decodePicture, one a file format. Each takes the bytes of a whole file and
/// throws PictureError.

/// 1, 4, 8, 16, 24 and 32 bits a pixel, bottom-up or top-down, with colour masks, the 4-bit and
/// 8-bit run-length codings, and headers from the 12 bytes of the oldest kind on.
Picture decodeBmp(std::string_view bytes, StoredBits bits);

/// The first frame on the whole screen of the file. What no pixel of it covers is white.
Picture decodeGif(std::string_view bytes);

/// Baseline and progressive, grey or in colour.
Picture decodeJpeg(std::string_view bytes);

/// A JPEG file reduced to what the decoder needs and checked, so that the decoder can neither be
/// led out of its tables nor kept busy without end: every table is defined, no code table has more
/// than 256 entries, there is one frame of permitted size and a bounded number of scans.
std::string checkedJpeg(std::string_view bytes);

}  // namespace kalvora
