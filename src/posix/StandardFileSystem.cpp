#include "posix/StandardFileSystem.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <fstream>
#include <ios>
#include <ratio>
#include <string_view>
#include <utility>

#ifdef __unix__
#include <fcntl.h>
#include <unistd.h>
#endif

#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

constexpr std::wstring_view kCannotRead = L"This file cannot be read: ";

using NativeText = std::basic_string_view<fs::path::value_type>;

/// Nothing for a name of bytes that are no text, which the program could not hold.
std::optional<std::wstring> textOf(NativeText name) {
  const auto isAscii = [](auto c) { return static_cast<std::uint32_t>(c) < 0x80U; };
  // Most names, and much faster than the conversion: it counts with ten thousands of notes.
  if (std::ranges::all_of(name, isAscii)) return std::wstring(name.begin(), name.end());
  try {
    return fs::path(name).wstring();
  } catch (const fs::filesystem_error&) {
    return std::nullopt;
  }
}

/// Takes the entries of a folder that are not hidden, in no order. Returns whether it went to the
/// end.
template <typename Taker>
bool forEachEntry(const fs::path& folder, const Taker& take) {
  // What an entry's path holds before its name. path::filename() would be slower.
  const std::size_t before = (folder / "").native().size();
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const auto name = textOf(NativeText(entry->path().native()).substr(before));
    if (name && !name->starts_with(L'.')) take(*entry, *name);
  }
  return !error;
}

std::int64_t stepsSinceEpoch(fs::file_time_type time) {
  using Steps = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
  return std::chrono::duration_cast<Steps>(time.time_since_epoch()).count();
}

FileStamp stampOfEntry(const fs::directory_entry& entry, std::int64_t listed) {
  std::error_code noSize;
  std::error_code noTime;
  const std::uintmax_t bytes = entry.file_size(noSize);
  const fs::file_time_type written = entry.last_write_time(noTime);
  if (noSize || noTime) return {};
  return stampOf(bytes, stepsSinceEpoch(written), listed);
}

/// An open file without a buffer. Fewer bytes than wanted are only read at the end of the file.
#ifdef __unix__
// The calls of the system themselves: reading ten thousands of small notes takes a quarter longer
// through the C++ library.
class RawFile {
 public:
  /// A path that is not absolute starts at the open folder.
  explicit RawFile(const char* path, int folder = AT_FDCWD)
      : file_(openat(folder, path, O_RDONLY | O_CLOEXEC)) {}
  explicit RawFile(const fs::path& file) : RawFile(file.c_str()) {}
  ~RawFile() {
    if (file_ >= 0) ::close(file_);
  }
  RawFile(const RawFile&) = delete;
  RawFile& operator=(const RawFile&) = delete;

  /// Nothing where the file cannot be opened or read.
  std::optional<std::size_t> read(char* bytes, std::size_t wanted) {
    const ssize_t got = ::read(file_, bytes, wanted);
    if (got < 0) return std::nullopt;
    return static_cast<std::size_t>(got);
  }

 private:
  int file_;
};
#else
class RawFile {
 public:
  explicit RawFile(const fs::path& file) {
    file_.pubsetbuf(nullptr, 0);
    // cppcheck-suppress ignoredReturnValue ; reading from a file that is not open fails
    file_.open(file, std::ios::in | std::ios::binary);
  }

  /// Nothing where the file cannot be opened or read.
  std::optional<std::size_t> read(char* bytes, std::size_t wanted) {
    if (!file_.is_open()) return std::nullopt;
    try {
      return static_cast<std::size_t>(file_.sgetn(bytes, static_cast<std::streamsize>(wanted)));
    } catch (const std::ios_base::failure&) {
      return std::nullopt;
    }
  }

 private:
  std::filebuf file_;
};
#endif

/// The first `limit` bytes; nothing where they cannot be read.
std::optional<std::string> bytesOf(RawFile& in, std::size_t limit) {
  std::array<char, 32768> chunk;  // not filled first: that alone takes as long as a small file
  std::string bytes;
  std::size_t wanted = 0;
  std::size_t got = 0;
  do {
    wanted = std::min(chunk.size(), limit - bytes.size());
    const std::optional<std::size_t> read = in.read(chunk.data(), wanted);
    if (!read) return std::nullopt;
    got = *read;
    bytes.append(chunk.data(), got);
  } while (got == wanted && bytes.size() < limit);
  return bytes;
}

#ifdef __unix__
class OpenFolderReader : public FolderReader {
 public:
  explicit OpenFolderReader(fs::path folder)
      : path_(std::move(folder)),
        folder_(::open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
  ~OpenFolderReader() override {
    if (folder_ >= 0) ::close(folder_);
  }
  OpenFolderReader(const OpenFolderReader&) = delete;
  OpenFolderReader& operator=(const OpenFolderReader&) = delete;

  std::string read(std::wstring_view name, std::size_t limit) const override {
    RawFile in(fs::path(name).c_str(), folder_);
    std::optional<std::string> bytes = bytesOf(in, limit);
    if (!bytes) throw FileError(kCannotRead, path_ / name);
    return *std::move(bytes);
  }

 private:
  const fs::path path_;
  int folder_;  // less than 0 where it cannot be opened; then no file in it can
};
#endif

LocalTime toLocalTime(std::time_t time) {
#ifdef __unix__
  std::tm parts{};
  localtime_r(&time, &parts);
#else
  const std::tm parts = *std::localtime(&time);
#endif
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_wday,
          parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

}  // namespace

FolderListing StandardFileSystem::list(const fs::path& folder, std::wstring_view pattern) const {
  const std::int64_t now = stepsSinceEpoch(fs::file_time_type::clock::now());
  FolderListing::Builder listing;
  const bool whole =
      forEachEntry(folder, [&](const fs::directory_entry& entry, std::wstring_view name) {
        std::error_code error;
        if (entry.is_regular_file(error) && matchesPattern(name, pattern)) {
          listing.add(name, stampOfEntry(entry, now));
        }
      });
  return whole ? listing.build() : FolderListing::brokenOff();
}

std::vector<std::wstring> StandardFileSystem::folders(const fs::path& folder) const {
  std::vector<std::wstring> names;
  forEachEntry(folder, [&](const fs::directory_entry& entry, const std::wstring& name) {
    std::error_code error;
    if (entry.is_directory(error)) names.push_back(name);
  });
  std::ranges::sort(names, nameComesBefore);
  return names;
}

std::optional<std::uintmax_t> StandardFileSystem::size(const fs::path& file) const {
  std::error_code error;
  const std::uintmax_t bytes = fs::file_size(file, error);
  if (error) return std::nullopt;
  return bytes;
}

LocalTime StandardFileSystem::lastWritten(const fs::path& file) const {
  std::error_code error;
  const fs::file_time_type written = fs::last_write_time(file, error);
  if (error) throw FileError(kCannotRead, file);
  const auto age = fs::file_time_type::clock::now() - written;
  const auto moment =
      std::chrono::time_point_cast<std::chrono::seconds>(std::chrono::system_clock::now() - age);
  return toLocalTime(std::chrono::system_clock::to_time_t(moment));
}

std::string StandardFileSystem::read(const fs::path& file, std::size_t limit) const {
  RawFile in(file);
  std::optional<std::string> bytes = bytesOf(in, limit);
  if (!bytes) throw FileError(kCannotRead, file);
  return *std::move(bytes);
}

#ifdef __unix__
std::unique_ptr<FolderReader> StandardFileSystem::readerOf(const fs::path& folder) const {
  return std::make_unique<OpenFolderReader>(folder);
}
#endif

}  // namespace kalvora
