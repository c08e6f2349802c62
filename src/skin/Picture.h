#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/Errors.h"
#include "base/Image.h"

namespace kalvora {

/// What a skin picture may be at most: checked from its header, before anything is decoded.
inline constexpr int kMaxPictureSide = 8192;
inline constexpr std::int64_t kMaxPicturePixels = 2'000'000;
inline constexpr std::uintmax_t kMaxPictureBytes = std::uintmax_t{16} * 1024 * 1024;

/// A decoded picture file: its pixels as they are shown and, for the depths that a window shape
/// can be made of, its bits as they were stored.
struct Picture {
  Image image;
  /// 1, 4 or 8 (with a palette), 16, 24 or 32. A GIF has 8, a JPEG 24.
  int bitsPerPixel = 0;
  /// Of `bits`; the end of a line may be padding.
  int bytesPerLine = 0;
  /// The lines from top to bottom, little-endian, 24 bits as blue, green, red. Empty for 8 bits a
  /// pixel and less.
  std::vector<std::uint8_t> bits;

  int width() const { return image.width(); }
  int height() const { return image.height(); }
};

/// A picture file that cannot be decoded: damaged, of an unknown kind, or too large.
class PictureError : public Failure {
 public:
  using Failure::Failure;
};

/// Whether a picture is to have its bits.
enum class StoredBits { Kept, Dropped };

/// A picture from the bytes of a BMP, GIF (the first frame) or JPEG file; the kind is told by the
/// bytes, not by a name. What a GIF leaves see-through is white. Throws PictureError.
Picture decodePicture(std::string_view bytes, StoredBits bits = StoredBits::Kept);

/// Throws PictureError where a picture of this size is none or is beyond the limits.
void checkPictureSize(std::int64_t width, std::int64_t height);

}  // namespace kalvora
