#include <array>

#include "skin/ByteReader.h"
#include "skin/PictureFormats.h"

namespace kalvora {

namespace {

constexpr Pixel kSeeThrough = pixelOf(255, 255, 255);
constexpr unsigned kMaxCodes = 4096;
constexpr unsigned kMaxCodeBits = 12;

using Palette = std::array<Pixel, 256>;

struct Frame {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool interlaced = false;
  Palette palette{};
  int seeThroughIndex = -1;
};

void readPalette(ByteReader& in, unsigned flags, Palette& palette) {
  const unsigned count = 2U << (flags & 7U);
  for (unsigned i = 0; i < count; ++i) {
    const unsigned red = in.byte();
    const unsigned green = in.byte();
    palette[i] = pixelOf(red, green, in.byte());
  }
}

/// The code stream of a frame: sub-blocks of up to 255 bytes, of which codes are taken bit by bit.
class CodeStream {
 public:
  explicit CodeStream(ByteReader& in) : in_(in) {}

  /// -1 at the end of the frame's data.
  int next(unsigned codeBits) {
    while (bitCount_ < codeBits) {
      if (blockLeft_ == 0) blockLeft_ = in_.byte();
      if (blockLeft_ == 0) return -1;
      --blockLeft_;
      bits_ |= static_cast<std::uint32_t>(in_.byte()) << bitCount_;
      bitCount_ += 8;
    }
    const auto code = static_cast<int>(bits_ & ((1U << codeBits) - 1U));
    bits_ >>= codeBits;
    bitCount_ -= codeBits;
    return code;
  }

 private:
  ByteReader& in_;
  unsigned blockLeft_ = 0;
  std::uint32_t bits_ = 0;
  unsigned bitCount_ = 0;
};

/// The colour indexes of a frame, in stored order.
class IndexDecoder {
 public:
  IndexDecoder(ByteReader& in, std::size_t wanted) : codes_(in), wanted_(wanted) {
    rootBits_ = in.byte();
    if (rootBits_ < 1 || rootBits_ > 8) throw PictureError(L"The picture is damaged.");
  }

  /// Stops as soon as the frame is full, so its work is bounded by the frame's size.
  std::vector<std::uint8_t> decode() {
    indexes_.reserve(wanted_);
    clear();
    while (indexes_.size() < wanted_) {
      const int code = codes_.next(codeBits_);
      if (code < 0 || code == static_cast<int>(endCode())) break;
      if (code == static_cast<int>(clearCode())) {
        clear();
      } else {
        append(static_cast<unsigned>(code));
      }
    }
    if (indexes_.size() < wanted_) throw PictureError(L"The picture ends too early.");
    return std::move(indexes_);
  }

 private:
  /// A code stands for a stretch of what was already written: the table needs no strings.
  struct Entry {
    std::size_t start = 0;
    std::size_t length = 0;
  };

  unsigned clearCode() const { return 1U << rootBits_; }
  unsigned endCode() const { return clearCode() + 1U; }

  void clear() {
    nextCode_ = clearCode() + 2U;
    codeBits_ = rootBits_ + 1U;
    hasPrevious_ = false;
  }

  void append(unsigned code) {
    const std::size_t start = indexes_.size();
    if (code < clearCode()) {
      indexes_.push_back(static_cast<std::uint8_t>(code));
    } else if (code < nextCode_) {
      copy(entries_[code]);
    } else if (code == nextCode_ && hasPrevious_ && nextCode_ < kMaxCodes) {
      // The code that is being defined: the previous stretch and its own first index.
      copy({previous_.start, previous_.length + 1U});
    } else {
      throw PictureError(L"The picture is damaged.");
    }
    if (hasPrevious_ && nextCode_ < kMaxCodes) define();
    previous_ = {start, indexes_.size() - start};
    hasPrevious_ = true;
  }

  /// The previous stretch and the index that follows it, which is already written.
  void define() {
    entries_[nextCode_++] = {previous_.start, previous_.length + 1U};
    if (nextCode_ == (1U << codeBits_) && codeBits_ < kMaxCodeBits) ++codeBits_;
  }

  /// May overlap its own end; stops when the frame is full.
  void copy(Entry entry) {
    for (std::size_t i = 0; i < entry.length && indexes_.size() < wanted_; ++i) {
      indexes_.push_back(indexes_[entry.start + i]);
    }
  }

  CodeStream codes_;
  std::size_t wanted_;
  unsigned rootBits_ = 0;
  unsigned codeBits_ = 0;
  unsigned nextCode_ = 0;
  bool hasPrevious_ = false;
  Entry previous_;
  std::array<Entry, kMaxCodes> entries_{};
  std::vector<std::uint8_t> indexes_;
};

void skipSubBlocks(ByteReader& in) {
  for (unsigned length = in.byte(); length != 0; length = in.byte()) in.take(length);
}

/// Extensions in front of the frame; only the one that names the see-through index matters.
void readExtension(ByteReader& in, Frame& frame) {
  constexpr unsigned kGraphicControl = 0xF9;
  if (in.byte() == kGraphicControl) {
    const std::size_t start = in.position();
    if (in.byte() == 4) {
      const unsigned flags = in.byte();
      in.word();  // how long the frame is shown
      const int index = in.byte();
      frame.seeThroughIndex = (flags & 1U) != 0 ? index : -1;
    }
    in.seek(start);
  }
  skipSubBlocks(in);
}

/// The rows of an interlaced frame come in four passes.
std::vector<int> rowOrder(const Frame& frame) {
  std::vector<int> rows;
  rows.reserve(static_cast<std::size_t>(frame.height));
  const auto pass = [&](int first, int step) {
    for (int y = first; y < frame.height; y += step) rows.push_back(y);
  };
  if (frame.interlaced) {
    pass(0, 8);
    pass(4, 8);
    pass(2, 4);
    pass(1, 2);
  } else {
    pass(0, 1);
  }
  return rows;
}

void drawFrame(ByteReader& in, const Frame& frame, Image& screen) {
  const std::size_t pixels =
      static_cast<std::size_t>(frame.width) * static_cast<std::size_t>(frame.height);
  const std::vector<std::uint8_t> indexes = IndexDecoder(in, pixels).decode();
  auto index = indexes.begin();
  for (const int row : rowOrder(frame)) {
    for (int x = 0; x < frame.width; ++x, ++index) {
      const int target = frame.x + x;
      const int line = frame.y + row;
      if (*index == frame.seeThroughIndex || target >= screen.width() || line >= screen.height()) {
        continue;
      }
      screen.set(target, line, frame.palette[*index]);
    }
  }
}

void readFrame(ByteReader& in, Frame& frame, Image& screen) {
  frame.x = in.word();
  frame.y = in.word();
  frame.width = in.word();
  frame.height = in.word();
  checkPictureSize(frame.width, frame.height);
  const unsigned flags = in.byte();
  frame.interlaced = (flags & 0x40U) != 0;
  if ((flags & 0x80U) != 0) readPalette(in, flags, frame.palette);
  drawFrame(in, frame, screen);
}

}  // namespace

Picture decodeGif(std::string_view bytes) {
  constexpr unsigned kExtension = 0x21;
  constexpr unsigned kFrame = 0x2C;
  ByteReader in(bytes);
  in.take(6);
  const int width = in.word();
  const int height = in.word();
  checkPictureSize(width, height);
  const unsigned flags = in.byte();
  in.word();  // the background index and the pixel aspect
  Frame frame;
  if ((flags & 0x80U) != 0) readPalette(in, flags, frame.palette);

  Picture picture{Image(width, height, kSeeThrough), 8, 0, {}};
  for (;;) {
    const unsigned block = in.byte();
    if (block == kFrame) {
      readFrame(in, frame, picture.image);
      return picture;
    }
    if (block != kExtension) throw PictureError(L"The picture holds no frame.");
    readExtension(in, frame);
  }
}

}  // namespace kalvora
