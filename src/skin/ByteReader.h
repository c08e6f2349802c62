#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "skin/Picture.h"

namespace kalvora {

/// Reads the bytes of a picture file in order. Reading beyond the end throws PictureError, so no
/// decoder has to look after it.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

  std::size_t position() const { return position_; }
  std::size_t left() const { return bytes_.size() - position_; }

  std::uint8_t byte() { return static_cast<std::uint8_t>(take(1).front()); }
  /// Least significant byte first.
  std::uint16_t word() { return static_cast<std::uint16_t>(number(2)); }
  std::uint32_t doubleWord() { return number(4); }
  /// Most significant byte first.
  std::uint16_t bigWord() {
    const unsigned high = byte();
    return static_cast<std::uint16_t>((high << 8U) | byte());
  }

  std::string_view take(std::size_t count) {
    if (count > left()) throw PictureError(L"The picture ends too early.");
    position_ += count;
    return bytes_.substr(position_ - count, count);
  }

  void seek(std::size_t position) {
    if (position > bytes_.size()) throw PictureError(L"The picture ends too early.");
    position_ = position;
  }

 private:
  std::uint32_t number(unsigned count) {
    const std::string_view part = take(count);
    std::uint32_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
      value |= static_cast<std::uint32_t>(static_cast<std::uint8_t>(part[i])) << (8U * i);
    }
    return value;
  }

  std::string_view bytes_;
  std::size_t position_ = 0;
};

}  // namespace kalvora
