#include "win32/WindowsFileWriter.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "base/Errors.h"
#include "win32/UniqueHandle.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

bool mayPass(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_ACCESS_DENIED;
}

/// Runs a call that returns false with a last error, again where waiting may help. Returns the
/// error, ERROR_SUCCESS for none.
template <typename Call>
DWORD errorOf(const Call& call) {
  constexpr DWORD kLongestWait = 128;  // milliseconds; all waits together take twice as long
  for (DWORD wait = 8;; wait *= 2) {
    if (call()) return ERROR_SUCCESS;
    const DWORD error = GetLastError();
    if (!mayPass(error) || wait > kLongestWait) return error;
    Sleep(wait);
  }
}

/// Folders, and what the user protected. Asked beforehand: for these waiting does not help, and not
/// every system refuses them.
bool isProtected(const fs::path& file) {
  const DWORD attributes = GetFileAttributesW(file.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0;
}

/// A temporary file, removed again unless it took its file's place.
class TemporaryFile {
 public:
  explicit TemporaryFile(fs::path place)
      : place_(std::move(place)),
        handle_(CreateFileW(place_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr)),
        error_(handle_ ? ERROR_SUCCESS : GetLastError()),
        isOurs_(handle_) {}
  ~TemporaryFile() {
    if (!isOurs_) return;
    handle_.reset();
    DeleteFileW(place_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isAnothers() const { return error_ == ERROR_FILE_EXISTS; }

  /// Writes, flushes and closes: a full disk may show at each of them. Returns the error.
  DWORD fill(std::string_view bytes) {
    if (!isOurs_) return error_;
    const bool whole = write(bytes) && FlushFileBuffers(handle_.get());
    const DWORD error = whole ? ERROR_SUCCESS : GetLastError();
    if (!whole) return error;
    // By hand, because the owner's way of closing does not say whether it worked.
    return CloseHandle(handle_.release()) ? ERROR_SUCCESS : GetLastError();
  }

  DWORD moveTo(const fs::path& file) {
    const DWORD error = errorOf([&] {
      return MoveFileExW(place_.c_str(), file.c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
    if (error == ERROR_SUCCESS) isOurs_ = false;
    return error;
  }

 private:
  /// A write may end short and still report success: it is the disk's last room then.
  bool write(std::string_view bytes) {
    constexpr std::size_t kChunk = 1U << 20U;
    while (!bytes.empty()) {
      const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kChunk));
      DWORD count = 0;
      if (!WriteFile(handle_.get(), bytes.data(), wanted, &count, nullptr)) return false;
      if (count == 0) {
        SetLastError(ERROR_DISK_FULL);
        return false;
      }
      bytes.remove_prefix(count);
    }
    return true;
  }

  fs::path place_;
  UniqueFile handle_;
  DWORD error_;
  bool isOurs_;
};

/// Returns the error, ERROR_SUCCESS for none.
DWORD replace(const fs::path& file, std::string_view bytes) {
  if (isProtected(file)) return ERROR_ACCESS_DENIED;
  for (int number = 1; number <= kTemporaryNames; ++number) {
    TemporaryFile temporary(temporaryPlace(file, number));
    if (temporary.isAnothers()) continue;
    const DWORD error = temporary.fill(bytes);
    return error == ERROR_SUCCESS ? temporary.moveTo(file) : error;
  }
  return ERROR_FILE_EXISTS;
}

}  // namespace

void WindowsFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  const DWORD error = replace(file, bytes);
  if (error == ERROR_SUCCESS) return;
  const bool full = error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL;
  throw FileError(
      full ? L"There is no room on the disk for this file: " : L"This file cannot be written: ",
      file);
}

Removal WindowsFileWriter::remove(const fs::path& file) {
  const DWORD error =
      isProtected(file) ? ERROR_ACCESS_DENIED : errorOf([&] { return DeleteFileW(file.c_str()); });
  if (error == ERROR_SUCCESS) return Removal::Removed;
  const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
  if (!missing) throw FileError(L"This file cannot be deleted: ", file);
  return Removal::WasMissing;
}

void WindowsFileWriter::createFolder(const fs::path& folder) {
  if (CreateDirectoryW(folder.c_str(), nullptr)) return;
  const DWORD attributes = GetFileAttributesW(folder.c_str());
  const bool isThere =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (!isThere) throw FileError(L"This folder cannot be made: ", folder);
}

}  // namespace kalvora
