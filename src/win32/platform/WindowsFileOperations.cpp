#include "win32/platform/WindowsFileOperations.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "base/DeviceName.h"
#include "base/Text.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/platform/WindowsTime.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

bool mayPass(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_ACCESS_DENIED;
}

FileResult lastResult() {
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return FileResult::Missing;
    case ERROR_FILE_EXISTS:
      return FileResult::Exists;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return FileResult::DiskFull;
    default:
      return FileResult::Failed;
  }
}

FileResult resultOf(bool done) {
  return done ? FileResult::Done : lastResult();
}

/// Runs a call that returns false with a last error, again where waiting may help.
template <typename Call>
FileResult patiently(const Call& call) {
  constexpr DWORD kLongestWait = 128;  // milliseconds; all waits together take twice as long
  for (DWORD wait = 8;; wait *= 2) {
    if (call()) return FileResult::Done;
    if (!mayPass(GetLastError()) || wait > kLongestWait) return lastResult();
    Sleep(wait);
  }
}

/// Folders, what the user protected, and what leads to a device instead of a file. Asked
/// beforehand: for these waiting does not help, and not every system refuses them.
bool isProtected(const fs::path& file) {
  if (namesDevice(file.filename().native())) return true;
  const DWORD attributes = GetFileAttributesW(file.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0;
}

FileResult moveTo(const fs::path& from, const fs::path& to, DWORD how) {
  return patiently(
      [&] { return MoveFileExW(from.c_str(), to.c_str(), how | MOVEFILE_WRITE_THROUGH) != FALSE; });
}

bool isSpelledSo(const fs::path& file) {
  WIN32_FIND_DATAW entry{};
  const UniqueFind find(FindFirstFileW(file.c_str(), &entry));
  return find && file.filename() == entry.cFileName;
}

/// Wine leaves a name as it was where the new one differs in its letters only. The name between is
/// that of a file of the same kind, so that it is seen if the program is killed here.
FileResult spellAnew(const fs::path& from, const fs::path& to) {
  const std::wstring name = to.filename().wstring();
  const std::size_t stem = std::min(name.rfind(L'.'), name.size());
  const fs::path between = to.parent_path() / (name.substr(0, stem) + L"~" + name.substr(stem));
  const FileResult away = moveTo(from, between, 0);
  if (away != FileResult::Done) return away;
  const FileResult back = moveTo(between, to, 0);
  if (back != FileResult::Done) moveTo(between, from, 0);
  return back;
}

class HandleFile : public NewFile {
 public:
  explicit HandleFile(UniqueFile handle) : handle_(std::move(handle)) {}

  FileResult write(std::string_view bytes, std::size_t& count) override {
    constexpr std::size_t kChunk = 1U << 20U;
    DWORD written = 0;
    const bool done =
        WriteFile(handle_.get(), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), kChunk)),
                  &written, nullptr) != FALSE;
    count = written;
    return resultOf(done);
  }
  FileResult flush() override { return resultOf(FlushFileBuffers(handle_.get()) != FALSE); }
  // By hand, because the owner's way of closing does not say whether it worked.
  FileResult close() override { return resultOf(CloseHandle(handle_.release()) != FALSE); }

 private:
  UniqueFile handle_;
};

}  // namespace

FileResult WindowsFileOperations::create(const fs::path& file, std::unique_ptr<NewFile>& opened) {
  UniqueFile handle(CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr));
  if (!handle) return lastResult();
  opened = std::make_unique<HandleFile>(std::move(handle));
  return FileResult::Done;
}

FileResult WindowsFileOperations::replace(const fs::path& from, const fs::path& to) {
  if (isProtected(from) || isProtected(to)) return FileResult::Failed;
  const FileResult moved = moveTo(from, to, MOVEFILE_REPLACE_EXISTING);
  if (moved != FileResult::Done || isSpelledSo(to)) return moved;
  return equalIgnoringCase(from.wstring(), to.wstring()) ? spellAnew(from, to) : moved;
}

FileResult WindowsFileOperations::remove(const fs::path& file) {
  if (isProtected(file)) return FileResult::Failed;
  // A removal that is reported as done may leave the file where it is: in a folder that lets
  // nothing go, or while another program has it open.
  bool reportedAsDone = false;
  return patiently([&] {
    reportedAsDone = DeleteFileW(file.c_str()) != FALSE || reportedAsDone;
    if (!reportedAsDone) return false;
    const bool gone = GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES;
    if (!gone) SetLastError(ERROR_ACCESS_DENIED);
    return gone;
  });
}

std::optional<std::chrono::seconds> WindowsFileOperations::age(const fs::path& file) const {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  return secondsSince(data.ftLastWriteTime);
}

FileResult WindowsFileOperations::createFolder(const fs::path& folder) {
  if (CreateDirectoryW(folder.c_str(), nullptr)) return FileResult::Done;
  const DWORD attributes = GetFileAttributesW(folder.c_str());
  const bool isThere =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isThere ? FileResult::Done : FileResult::Failed;
}

}  // namespace kalvora
