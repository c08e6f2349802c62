#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kalvora {

/// Makes the bytes of a BMP file. Pixels are given as they are stored: a palette index, or the
/// number of 16, 24 or 32 bits (0x00RRGGBB for 24 bits).
class BmpBuilder {
 public:
  BmpBuilder(int width, int height, int depth, std::uint32_t fill = 0)
      : width_(width),
        height_(height),
        depth_(depth),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill) {}

  BmpBuilder& set(int x, int y, std::uint32_t value) {
    pixels_[at(x, y)] = value;
    return *this;
  }
  BmpBuilder& fill(int x, int y, int width, int height, std::uint32_t value) {
    for (int line = y; line < y + height; ++line) {
      for (int column = x; column < x + width; ++column) set(column, line, value);
    }
    return *this;
  }
  /// Colours as 0x00RRGGBB.
  BmpBuilder& palette(std::vector<std::uint32_t> colors) {
    palette_ = std::move(colors);
    return *this;
  }
  BmpBuilder& masks(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    masks_ = {red, green, blue};
    return *this;
  }
  BmpBuilder& topDown() {
    topDown_ = true;
    return *this;
  }
  /// The header of 12 bytes, with palette entries of 3.
  BmpBuilder& oldestHeader() {
    oldest_ = true;
    return *this;
  }
  /// A larger header: 52, 56, 64, 108 or 124 bytes.
  BmpBuilder& headerBytes(std::uint32_t bytes) {
    headerBytes_ = bytes;
    return *this;
  }
  /// What the padding at the end of each line is made of.
  BmpBuilder& padding(std::uint8_t byte) {
    padding_ = byte;
    return *this;
  }
  /// Coded data in place of the pixels, with the compression 1 (8 bits) or 2 (4 bits).
  BmpBuilder& runs(std::uint32_t compression, std::string data) {
    compression_ = compression;
    data_ = std::move(data);
    return *this;
  }
  /// Another size in the header than the pixels have.
  BmpBuilder& claim(std::int32_t width, std::int32_t height) {
    claimedWidth_ = width;
    claimedHeight_ = height;
    return *this;
  }

  std::string bytes() const {
    const std::string header = headerAfterSize();
    const std::string data = data_ ? *data_ : pixelData();
    std::string out = "BM";
    const std::size_t offset = 14 + header.size();
    number(out, static_cast<std::uint32_t>(offset + data.size()), 4);
    number(out, 0, 4);
    number(out, static_cast<std::uint32_t>(offset), 4);
    return out + header + data;
  }

 private:
  static void number(std::string& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> (8 * i));
  }

  std::string headerAfterSize() const {
    const auto width = static_cast<std::uint32_t>(claimedWidth_.value_or(width_));
    const int lines = claimedHeight_.value_or(height_);
    const auto height = static_cast<std::uint32_t>(topDown_ ? -lines : lines);
    const int sizeBytes = oldest_ ? 2 : 4;
    std::string out;
    number(out, oldest_ ? 12 : headerBytes_, 4);
    number(out, width, sizeBytes);
    number(out, height, sizeBytes);
    number(out, 1, 2);
    number(out, static_cast<std::uint32_t>(depth_), 2);
    if (!oldest_) {
      number(out, masks_.empty() ? compression_ : 3, 4);
      for (int i = 0; i < 3; ++i) number(out, 0, 4);
      number(out, static_cast<std::uint32_t>(palette_.size()), 4);
      number(out, 0, 4);
      for (const std::uint32_t mask : masks_) number(out, mask, 4);
      if (out.size() < headerBytes_) out.resize(headerBytes_);
    }
    for (const std::uint32_t color : palette_) number(out, color, oldest_ ? 3 : 4);
    return out;
  }

  std::string pixelData() const {
    std::string out;
    for (int line = 0; line < height_; ++line) {
      out += lineData(topDown_ ? line : height_ - 1 - line);
    }
    return out;
  }

  std::size_t at(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  std::string lineData(int y) const {
    std::string line;
    unsigned bits = 0;
    int count = 0;
    for (int x = 0; x < width_; ++x) {
      const std::uint32_t value = pixels_[at(x, y)];
      if (depth_ >= 8) {
        number(line, value, depth_ / 8);
        continue;
      }
      bits = (bits << depth_) | value;
      count += depth_;
      if (count == 8 || x == width_ - 1) {
        line += static_cast<char>(bits << (8 - count));
        bits = 0;
        count = 0;
      }
    }
    while (line.size() % 4 != 0) line += static_cast<char>(padding_);
    return line;
  }

  int width_;
  int height_;
  int depth_;
  std::vector<std::uint32_t> pixels_;
  std::vector<std::uint32_t> palette_;
  std::vector<std::uint32_t> masks_;
  bool topDown_ = false;
  bool oldest_ = false;
  std::uint32_t headerBytes_ = 40;
  std::uint8_t padding_ = 0;
  std::uint32_t compression_ = 0;
  std::optional<std::string> data_;
  std::optional<std::int32_t> claimedWidth_;
  std::optional<std::int32_t> claimedHeight_;
};

}  // namespace kalvora
