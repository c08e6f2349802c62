#include <vector>

#include "skin/ByteReader.h"
#include "skin/PictureFormats.h"

namespace kalvora {

namespace {

enum Marker : unsigned {
  kFrameBaseline = 0xC0,
  kFrameProgressive = 0xC2,
  kCodeTables = 0xC4,
  kRestart0 = 0xD0,
  kRestart7 = 0xD7,
  kStart = 0xD8,
  kEnd = 0xD9,
  kScan = 0xDA,
  kQuantTables = 0xDB,
  kRestartInterval = 0xDD,
  kApplication0 = 0xE0,
  kApplication14 = 0xEE,
};

/// A progressive file of ordinary use has about ten.
constexpr int kMaxScans = 64;
/// Without progression each of at most four colour parts comes in one scan; every further one would
/// decode the whole picture again.
constexpr int kMaxSequentialScans = 4;

[[noreturn]] void throwDamaged() {
  throw PictureError(L"The picture is damaged.");
}

void appendMarker(std::string& out, unsigned marker) {
  out += '\xFF';
  out += static_cast<char>(marker);
}

void appendBigWord(std::string& out, std::size_t value) {
  out += static_cast<char>(value >> 8U);
  out += static_cast<char>(value & 0xFFU);
}

/// Makes one file out of another, segment by segment.
class JpegCheck {
 public:
  explicit JpegCheck(std::string_view bytes) : in_(bytes) {}

  std::string checked() {
    if (in_.byte() != 0xFF || in_.byte() != kStart) throwDamaged();
    appendMarker(out_, kStart);
    appendPlainTables();
    for (unsigned marker = nextMarker(); marker != kEnd; marker = nextMarker()) segment(marker);
    if (frames_ != 1 || scans_ == 0) throwDamaged();
    appendMarker(out_, kEnd);
    checkStrayCodeTables();
    return std::move(out_);
  }

 private:
  /// All eight code tables with one code and all four quantisation tables, so that a scan which
  /// names a table that the file forgot meets a defined one.
  void appendPlainTables() {
    constexpr unsigned kCodeTableBytes = 1 + 16 + 1;
    addCodeTablesStart();
    appendBigWord(out_, 2U + 8U * kCodeTableBytes);
    for (const unsigned id : {0x00U, 0x01U, 0x02U, 0x03U, 0x10U, 0x11U, 0x12U, 0x13U}) {
      out_ += static_cast<char>(id);
      out_ += '\x01';
      out_.append(16, '\0');
    }
    appendMarker(out_, kQuantTables);
    appendBigWord(out_, 2U + 4U * 65U);
    for (char id = 0; id < 4; ++id) {
      out_ += id;
      out_.append(64, '\x01');
    }
  }

  unsigned nextMarker() {
    // A file that ends without its end marker is finished as it is.
    if (in_.left() < 2) return kEnd;
    if (in_.byte() != 0xFF) throwDamaged();
    unsigned marker = in_.byte();
    while (marker == 0xFF) marker = in_.byte();
    return marker;
  }

  void segment(unsigned marker) {
    const std::size_t length = in_.bigWord();
    if (length < 2) throwDamaged();
    const std::string_view body = in_.take(length - 2);
    switch (marker) {
      case kCodeTables:
        checkCodeTables(body);
        addCodeTablesStart();
        appendBigWord(out_, length);
        out_ += body;
        break;
      case kScan:
        if (frames_ != 1 || ++scans_ > maxScans_) throwDamaged();
        append(marker, body);
        appendScanData();
        break;
      case kQuantTables:
      case kRestartInterval:
      case kApplication0:
      case kApplication14:
        append(marker, body);
        break;
      default:
        if (marker >= kFrameBaseline && marker <= kFrameProgressive) {
          checkFrame(body);
          maxScans_ = marker == kFrameProgressive ? kMaxScans : kMaxSequentialScans;
          append(marker, body);
        } else if (marker < kApplication0) {
          throwDamaged();  // another way of coding, or no marker at all
        }
        // Everything else is about the picture, not of it.
    }
  }

  void append(unsigned marker, std::string_view body) {
    appendMarker(out_, marker);
    appendBigWord(out_, body.size() + 2U);
    out_ += body;
  }

  void checkFrame(std::string_view body) {
    ByteReader frame(body);
    frame.byte();  // bits a sample
    const int height = frame.bigWord();
    const int width = frame.bigWord();
    checkPictureSize(width, height);
    if (++frames_ > 1) throwDamaged();
  }

  static void checkCodeTables(std::string_view body) {
    ByteReader tables(body);
    while (tables.left() > 0) {
      tables.byte();  // class and number
      std::size_t codes = 0;
      for (int length = 1; length <= 16; ++length) codes += tables.byte();
      if (codes > 256) throwDamaged();
      tables.take(codes);
    }
  }

  /// The coded data up to the next marker. A 0 after 0xFF makes that a plain byte.
  void appendScanData() {
    while (in_.left() > 0) {
      const std::size_t before = in_.position();
      const unsigned byte = in_.byte();
      if (byte == 0xFF) {
        if (in_.left() == 0) return;
        const unsigned next = in_.byte();
        const bool isData = next == 0 || (next >= kRestart0 && next <= kRestart7);
        if (!isData) {
          in_.seek(before);
          return;
        }
        out_ += '\xFF';
        out_ += static_cast<char>(next);
      } else {
        out_ += static_cast<char>(byte);
      }
    }
  }

  void addCodeTablesStart() {
    codeTables_.push_back(out_.size());
    appendMarker(out_, kCodeTables);
  }

  /// The decoder may come to look for a marker where this check saw data. It must not find code
  /// tables there that nobody has checked.
  void checkStrayCodeTables() const {
    auto known = codeTables_.begin();
    for (std::size_t at = out_.find("\xFF\xC4"); at != std::string::npos;
         at = out_.find("\xFF\xC4", at + 1)) {
      if (known == codeTables_.end() || *known != at) throwDamaged();
      ++known;
    }
  }

  ByteReader in_;
  std::string out_;
  std::vector<std::size_t> codeTables_;
  int frames_ = 0;
  int scans_ = 0;
  int maxScans_ = 0;
};

}  // namespace

std::string checkedJpeg(std::string_view bytes) {
  return JpegCheck(bytes).checked();
}

}  // namespace kalvora
