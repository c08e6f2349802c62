#include "base/SafeFileWriter.h"

#include <chrono>
#include <exception>
#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

/// No write takes so long, so the file is nobody's.
constexpr std::chrono::minutes kLeftoverAge{1};

void removeLeftover(FileOperations& operations, const fs::path& file) {
  const auto age = operations.age(file);
  // One from the future is old too: the clock was set back.
  if (age && std::chrono::abs(*age) > kLeftoverAge) operations.remove(file);
}

/// A temporary file, removed again unless it took its file's place.
class TemporaryFile {
 public:
  TemporaryFile(FileOperations& operations, fs::path place)
      : operations_(operations), place_(std::move(place)) {
    created_ = operations_.create(place_, file_);
    isOurs_ = created_ == FileResult::Done;
  }
  ~TemporaryFile() {
    if (!isOurs_) return;
    file_.reset();
    operations_.remove(place_);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isAnothers() const { return created_ == FileResult::Exists; }

  /// Writes, flushes and closes: a full disk may show at each of them.
  FileResult fill(std::string_view bytes) {
    if (!isOurs_) return created_;
    while (!bytes.empty()) {
      std::size_t count = 0;
      const FileResult written = file_->write(bytes, count);
      if (written != FileResult::Done) return written;
      if (count == 0) return FileResult::DiskFull;
      bytes.remove_prefix(count);
    }
    const FileResult flushed = file_->flush();
    return flushed == FileResult::Done ? file_->close() : flushed;
  }

  FileResult moveTo(const fs::path& file) {
    const FileResult moved = operations_.replace(place_, file);
    if (moved == FileResult::Done) isOurs_ = false;
    return moved;
  }

 private:
  FileOperations& operations_;
  fs::path place_;
  std::unique_ptr<NewFile> file_;
  FileResult created_;
  bool isOurs_;
};

}  // namespace

fs::path SafeFileWriter::temporaryPlace(const fs::path& file, int number) const {
  return file.parent_path() /
         (L"~kalvora-" + numberToText(process_) + L"-" + numberToText(number) + L".tmp");
}

FileResult SafeFileWriter::replaceSafely(const fs::path& file, std::string_view bytes) {
  for (int number = 1; number <= kTemporaryNames; ++number) {
    const fs::path place = temporaryPlace(file, number);
    removeLeftover(operations_, place);
    TemporaryFile temporary(operations_, place);
    if (temporary.isAnothers()) continue;
    const FileResult filled = temporary.fill(bytes);
    return filled == FileResult::Done ? temporary.moveTo(file) : filled;
  }
  return FileResult::Exists;
}

void SafeFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  const FileResult result = replaceSafely(file, bytes);
  if (result == FileResult::Done) return;
  if (result == FileResult::DiskFull) throw DiskFullError(file);
  throw FileError(L"This file cannot be written: ", file);
}

Removal SafeFileWriter::remove(const fs::path& file) {
  const FileResult result = operations_.remove(file);
  if (result == FileResult::Done) return Removal::Removed;
  if (result != FileResult::Missing) throw FileError(L"This file cannot be deleted: ", file);
  return Removal::WasMissing;
}

void SafeFileWriter::move(const fs::path& from, const fs::path& to) {
  if (operations_.replace(from, to) != FileResult::Done) {
    throw FileError(L"This file cannot be renamed: ", from);
  }
}

void SafeFileWriter::createFolder(const fs::path& folder) {
  if (operations_.createFolder(folder) != FileResult::Done) {
    throw FileError(L"This folder cannot be made: ", folder);
  }
}

void SafeFileWriter::removeLeftovers(const FileSystem& files, const fs::path& folder) noexcept {
  try {
    // One listing: asking for each name would go through a large folder once for each.
    for (const std::wstring& name : files.files(folder, kTemporaryPattern)) {
      removeLeftover(operations_, folder / name);
    }
  } catch (const std::exception&) {
    // They are nothing of the user's and are shown nowhere; the next start tries again.
  }
}

}  // namespace kalvora
