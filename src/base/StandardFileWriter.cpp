#include "base/StandardFileWriter.h"

#ifdef __unix__
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#else
#include <fstream>
#endif

#include <system_error>
#include <utility>

#include "base/Errors.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

#ifdef __unix__

/// A file of our own that did not exist before.
class NewFile {
 public:
  explicit NewFile(const fs::path& file)
      : descriptor_(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {}
  ~NewFile() { close(); }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }

  bool write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }
  bool flush() { return ::fsync(descriptor_) == 0; }
  bool close() { return descriptor_ < 0 || ::close(std::exchange(descriptor_, -1)) == 0; }

 private:
  int descriptor_;
};

/// Makes a rename last. Without it the old content might come back after a power cut, no more: so
/// a failure is no reason to tell the user that nothing was written.
void flushFolder(const fs::path& folder) {
  const int descriptor =
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  static_cast<void>(::fsync(descriptor));
  static_cast<void>(::close(descriptor));
}

#else

/// The C++ library knows neither exclusive creation nor the disk: enough for tests.
class NewFile {
 public:
  explicit NewFile(const fs::path& file) {
    std::error_code error;
    if (!fs::exists(file, error)) stream_.open(file, std::ios::binary | std::ios::trunc);
  }

  bool isOpen() const { return stream_.is_open(); }
  bool write(std::string_view bytes) {
    return !stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).fail();
  }
  bool flush() { return !stream_.flush().fail(); }
  bool close() {
    stream_.close();
    return !stream_.fail();
  }

 private:
  std::ofstream stream_;
};

void flushFolder(const fs::path& /*folder*/) {}

#endif

/// A temporary file, removed again unless it took its file's place.
class TemporaryFile {
 public:
  explicit TemporaryFile(fs::path place) : place_(std::move(place)), file_(place_) {
    isOurs_ = file_.isOpen();
  }
  ~TemporaryFile() {
    if (!isOurs_) return;
    file_.close();
    std::error_code ignored;
    fs::remove(place_, ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isOurs() const { return isOurs_; }
  bool isAnothers() const {
    std::error_code error;
    return !isOurs_ && fs::exists(place_, error);
  }
  /// A full disk may show at the flush or at the close only.
  bool fill(std::string_view bytes) { return file_.write(bytes) && file_.flush() && file_.close(); }
  bool moveTo(const fs::path& file) {
    std::error_code error;
    fs::rename(place_, file, error);
    if (!error) isOurs_ = false;
    return !error;
  }

 private:
  fs::path place_;
  NewFile file_;
  bool isOurs_;
};

bool replaced(const fs::path& file, std::string_view bytes) {
  for (int number = 1; number <= kTemporaryNames; ++number) {
    TemporaryFile temporary(temporaryPlace(file, number));
    if (temporary.isAnothers()) continue;
    return temporary.isOurs() && temporary.fill(bytes) && temporary.moveTo(file);
  }
  return false;
}

}  // namespace

void StandardFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  if (!replaced(file, bytes)) throw FileError(L"This file cannot be written: ", file);
  flushFolder(file.parent_path());
}

Removal StandardFileWriter::remove(const fs::path& file) {
  std::error_code error;
  const bool isFolder = fs::is_directory(file, error);
  if (!isFolder && fs::remove(file, error)) return Removal::Removed;
  const bool missing = !error || error == std::errc::not_a_directory;
  if (isFolder || !missing) throw FileError(L"This file cannot be deleted: ", file);
  return Removal::WasMissing;
}

void StandardFileWriter::createFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directory(folder, error);
  if (!fs::is_directory(folder, error)) throw FileError(L"This folder cannot be made: ", folder);
}

}  // namespace kalvora
