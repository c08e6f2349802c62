#include <algorithm>
#include <array>
#include <bit>
#include <span>

#include "skin/ByteReader.h"
#include "skin/PictureFormats.h"

namespace kalvora {

namespace {

constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kOldestHeaderBytes = 12;
constexpr std::uint32_t kCommonHeaderBytes = 40;
/// From this header on, the colour masks are part of it.
constexpr std::uint32_t kHeaderWithMasksBytes = 52;

enum Compression : std::uint32_t { kPlain = 0, kRunLength8 = 1, kRunLength4 = 2, kMasks = 3 };

using Palette = std::array<Pixel, 256>;

/// One colour of a pixel of 16 or 32 bits, of which at most the upper 8 bits count.
class Channel {
 public:
  Channel() = default;
  explicit Channel(std::uint32_t mask) : shift_(mask == 0 ? 0 : std::countr_zero(mask)) {
    most_ = mask >> shift_;
    for (; most_ > 255; most_ >>= 1U) ++shift_;
  }

  /// 0 to 255.
  unsigned valueIn(std::uint32_t bits) const {
    const std::uint32_t value = (bits >> shift_) & most_;
    if (most_ == 255 || most_ == 0) return value;
    return (value * 255U + most_ / 2U) / most_;
  }

 private:
  int shift_ = 0;
  std::uint32_t most_ = 0;
};

struct BmpHeader {
  std::uint32_t dataOffset = 0;
  std::uint32_t headerBytes = 0;
  int width = 0;
  int height = 0;
  bool topDown = false;
  int depth = 0;
  std::uint32_t compression = kPlain;
  std::uint32_t colorsUsed = 0;
  std::array<Channel, 3> channels;

  std::size_t bytesPerLine() const {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(depth) + 31U) / 32U * 4U;
  }
};

void readSize(ByteReader& in, BmpHeader& header) {
  std::int64_t width = 0;
  std::int64_t height = 0;
  if (header.headerBytes == kOldestHeaderBytes) {
    width = in.word();
    height = in.word();
  } else {
    width = static_cast<std::int32_t>(in.doubleWord());
    height = static_cast<std::int32_t>(in.doubleWord());
  }
  header.topDown = height < 0;
  if (height < 0) height = -height;
  checkPictureSize(width, height);
  header.width = static_cast<int>(width);
  header.height = static_cast<int>(height);
}

void checkCoding(const BmpHeader& header) {
  const int depth = header.depth;
  const bool knownDepth =
      depth == 1 || depth == 4 || depth == 8 || depth == 16 || depth == 24 || depth == 32;
  bool fits = false;
  switch (header.compression) {
    case kPlain:
      fits = knownDepth;
      break;
    case kRunLength8:
      fits = depth == 8 && !header.topDown;
      break;
    case kRunLength4:
      fits = depth == 4 && !header.topDown;
      break;
    case kMasks:
      fits = depth == 16 || depth == 32;
      break;
    default:
      break;
  }
  if (!fits) throw PictureError(L"This kind of BMP picture is not known.");
}

void readMasks(ByteReader& in, BmpHeader& header) {
  if (header.compression == kMasks) {
    // They stand in the larger headers and behind the common one: at the same place either way.
    in.seek(kFileHeaderBytes + kCommonHeaderBytes);
    for (Channel& channel : header.channels) channel = Channel(in.doubleWord());
  } else if (header.depth == 16) {
    header.channels = {Channel(0x7C00), Channel(0x03E0), Channel(0x001F)};
  } else {
    header.channels = {Channel(0xFF0000), Channel(0x00FF00), Channel(0x0000FF)};
  }
}

BmpHeader readHeader(ByteReader& in) {
  BmpHeader header;
  in.seek(10);
  header.dataOffset = in.doubleWord();
  header.headerBytes = in.doubleWord();
  if (header.headerBytes != kOldestHeaderBytes && header.headerBytes < kCommonHeaderBytes) {
    throw PictureError(L"This kind of BMP picture is not known.");
  }
  readSize(in, header);
  in.word();  // planes: always 1
  header.depth = in.word();
  if (header.headerBytes != kOldestHeaderBytes) {
    header.compression = in.doubleWord();
    in.take(12);  // the size of the bits and the resolution
    header.colorsUsed = in.doubleWord();
  }
  checkCoding(header);
  readMasks(in, header);
  return header;
}

/// Colours beyond the stored ones are black.
Palette readPalette(ByteReader& in, const BmpHeader& header) {
  const bool oldest = header.headerBytes == kOldestHeaderBytes;
  const std::size_t entryBytes = oldest ? 3 : 4;
  const bool masksFollow =
      header.compression == kMasks && header.headerBytes < kHeaderWithMasksBytes;
  in.seek(static_cast<std::size_t>(kFileHeaderBytes) + header.headerBytes + (masksFollow ? 12 : 0));

  std::size_t count = std::size_t{1} << static_cast<unsigned>(header.depth);
  if (header.colorsUsed != 0) count = std::min<std::size_t>(count, header.colorsUsed);
  if (header.dataOffset > in.position()) {
    count = std::min(count, (header.dataOffset - in.position()) / entryBytes);
  }
  Palette palette{};
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned blue = in.byte();
    const unsigned green = in.byte();
    palette[i] = pixelOf(in.byte(), green, blue);
    if (!oldest) in.byte();
  }
  return palette;
}

/// The lines of an uncoded picture as they are stored, each with its padding.
class StoredLines {
 public:
  StoredLines(ByteReader& in, const BmpHeader& header) : header_(header) {
    const std::size_t lineBytes = header.bytesPerLine();
    const auto lines = static_cast<std::size_t>(header.height);
    // Some writers leave out the padding of the last line.
    const std::size_t used =
        (static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.depth) + 7U) / 8U;
    in.seek(header.dataOffset);
    const std::size_t needed = lineBytes * (lines - 1) + used;
    if (in.left() < needed) throw PictureError(L"The picture ends too early.");
    bytes_ = in.take(std::min(in.left(), lineBytes * lines));
  }

  /// From the top.
  std::span<const std::uint8_t> operator[](int y) const {
    const int stored = header_.topDown ? y : header_.height - 1 - y;
    const std::string_view line = bytes_.substr(
        static_cast<std::size_t>(stored) * header_.bytesPerLine(), header_.bytesPerLine());
    return {reinterpret_cast<const std::uint8_t*>(line.data()), line.size()};
  }

  /// All of them, from top to bottom, each with its padding.
  std::vector<std::uint8_t> bits() const {
    std::vector<std::uint8_t> bits;
    const std::size_t whole = header_.bytesPerLine() * static_cast<std::size_t>(header_.height);
    bits.reserve(whole);
    for (int y = 0; y < header_.height; ++y) {
      const std::span<const std::uint8_t> line = (*this)[y];
      bits.insert(bits.end(), line.begin(), line.end());
      bits.resize(header_.bytesPerLine() * static_cast<std::size_t>(y + 1));
    }
    return bits;
  }

 private:
  const BmpHeader& header_;
  std::string_view bytes_;
};

using Line = std::span<const std::uint8_t>;

void decodeIndices(Line line, int depth, const Palette& palette, std::span<Pixel> row) {
  const unsigned mask = (1U << static_cast<unsigned>(depth)) - 1U;
  unsigned bit = 0;
  for (Pixel& pixel : row) {
    const unsigned shift = 8U - static_cast<unsigned>(depth) - bit % 8U;
    pixel = palette[(static_cast<unsigned>(line[bit / 8U]) >> shift) & mask];
    bit += static_cast<unsigned>(depth);
  }
}

void decodeColors(Line line, std::span<Pixel> row) {
  const std::uint8_t* stored = line.data();
  for (Pixel& pixel : row) {
    pixel = pixelOf(stored[2], stored[1], stored[0]);
    stored += 3;
  }
}

void decodeMasked(Line line, const BmpHeader& header, std::span<Pixel> row) {
  const std::uint8_t* stored = line.data();
  for (Pixel& pixel : row) {
    std::uint32_t value = 0;
    for (int shift = 0; shift < header.depth; shift += 8) {
      value |= static_cast<std::uint32_t>(*stored++) << static_cast<unsigned>(shift);
    }
    pixel = pixelOf(header.channels[0].valueIn(value), header.channels[1].valueIn(value),
                    header.channels[2].valueIn(value));
  }
}

Picture decodePlain(ByteReader& in, const BmpHeader& header, StoredBits bits) {
  Palette palette{};
  if (header.depth <= 8) palette = readPalette(in, header);
  const StoredLines lines(in, header);
  Picture picture{Image(header.width, header.height),
                  header.depth,
                  static_cast<int>(header.bytesPerLine()),
                  {}};
  for (int y = 0; y < header.height; ++y) {
    const std::span<Pixel> row = picture.image.row(y);
    if (header.depth <= 8) {
      decodeIndices(lines[y], header.depth, palette, row);
    } else if (header.depth == 24) {
      decodeColors(lines[y], row);
    } else {
      decodeMasked(lines[y], header, row);
    }
  }
  if (header.depth > 8 && bits == StoredBits::Kept) picture.bits = lines.bits();
  return picture;
}

/// The run-length codings of 4 and 8 bits a pixel. What the runs skip has the first colour.
class RunLengthDecoder {
 public:
  RunLengthDecoder(ByteReader& in, const BmpHeader& header, const Palette& palette)
      : in_(in),
        palette_(palette),
        fourBits_(header.depth == 4),
        image_(header.width, header.height, palette[0]) {}

  Image decode() {
    // Each step reads two bytes at least, so the file's length bounds the loop.
    while (y_ < image_.height()) {
      const unsigned count = in_.byte();
      const unsigned value = in_.byte();
      if (count > 0) {
        run(count, value);
      } else if (!escape(value)) {
        break;
      }
    }
    return std::move(image_);
  }

 private:
  void run(unsigned count, unsigned value) {
    for (unsigned i = 0; i < count; ++i) {
      put(!fourBits_ ? value : i % 2 == 0 ? value >> 4U : value & 15U);
    }
  }

  /// False at the end of the picture.
  bool escape(unsigned code) {
    switch (code) {
      case 0:
        x_ = 0;
        ++y_;
        return true;
      case 1:
        return false;
      case 2:
        x_ += in_.byte();
        y_ += in_.byte();
        return true;
      default:
        literal(code);
        return true;
    }
  }

  void literal(unsigned count) {
    const std::size_t bytes = fourBits_ ? (count + 1U) / 2U : count;
    const std::string_view data = in_.take(bytes);
    if (bytes % 2 == 1) in_.byte();
    for (unsigned i = 0; i < count; ++i) {
      const auto value = static_cast<std::uint8_t>(data[fourBits_ ? i / 2U : i]);
      put(!fourBits_ ? value : i % 2 == 0 ? value >> 4U : value & 15U);
    }
  }

  void put(unsigned index) {
    if (x_ < image_.width() && y_ < image_.height()) {
      // Stored from the bottom up.
      image_.set(x_, image_.height() - 1 - y_, palette_[index]);
    }
    ++x_;
  }

  ByteReader& in_;
  const Palette& palette_;
  bool fourBits_;
  Image image_;
  int x_ = 0;
  int y_ = 0;
};

Picture decodeRuns(ByteReader& in, const BmpHeader& header) {
  const Palette palette = readPalette(in, header);
  in.seek(header.dataOffset);
  return {RunLengthDecoder(in, header, palette).decode(),
          header.depth,
          static_cast<int>(header.bytesPerLine()),
          {}};
}

}  // namespace

Picture decodeBmp(std::string_view bytes, StoredBits bits) {
  ByteReader in(bytes);
  const BmpHeader header = readHeader(in);
  const bool runs = header.compression == kRunLength8 || header.compression == kRunLength4;
  return runs ? decodeRuns(in, header) : decodePlain(in, header, bits);
}

}  // namespace kalvora
