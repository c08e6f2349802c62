#include "win32/platform/WindowsFileSystem.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/DeviceName.h"
#include "base/Errors.h"
#include "base/Text.h"
#include "win32/platform/DiskFile.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/platform/WindowsTime.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kCannotRead = L"This file cannot be read: ";

bool isFolder(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool isVisible(const WIN32_FIND_DATAW& entry) {
  const std::wstring_view name = entry.cFileName;
  const bool hidden =
      (entry.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
  return !hidden && name != L"." && name != L"..";
}

bool isVisibleFile(const WIN32_FIND_DATAW& entry) {
  return isVisible(entry) && !isFolder(entry.dwFileAttributes);
}

UniqueFind findFirst(const std::filesystem::path& place, WIN32_FIND_DATAW& entry) {
  return UniqueFind(FindFirstFileExW(place.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch,
                                     nullptr, FIND_FIRST_EX_LARGE_FETCH));
}

/// Takes what the system finds for the pattern, in no order. It finds more than matches: it looks
/// at short names too, so that "*.tx1" brings a file "a.tx12". Returns whether it went to the end.
template <typename Taker>
bool forEachEntry(const std::filesystem::path& folder, std::wstring_view pattern,
                  const Taker& take) {
  if (folder.empty()) return false;  // would list the current folder
  const std::filesystem::path place = folder / pattern;
  WIN32_FIND_DATAW entry{};
  const UniqueFind find = findFirst(place, entry);
  // Every folder holds something that "*" finds, itself.
  if (!find) return GetLastError() == ERROR_FILE_NOT_FOUND && pattern != L"*";
  do {
    take(entry);
  } while (FindNextFileW(find.get(), &entry));
  return GetLastError() == ERROR_NO_MORE_FILES;
}

std::uint64_t joined(DWORD high, DWORD low) {
  return (std::uint64_t{high} << 32U) | low;
}

std::int64_t stepsOf(const FILETIME& time) {
  return static_cast<std::int64_t>(joined(time.dwHighDateTime, time.dwLowDateTime));
}

std::int64_t now() {
  FILETIME time{};
  GetSystemTimeAsFileTime(&time);
  return stepsOf(time);
}

FileStamp stampOfEntry(const WIN32_FIND_DATAW& entry, std::int64_t listed) {
  // The times and the length of a link are its own, whatever becomes of what it leads to.
  if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return {};
  return stampOf(joined(entry.nFileSizeHigh, entry.nFileSizeLow), stepsOf(entry.ftLastWriteTime),
                 listed);
}

/// Whether the system, asked for this name alone, finds a file that is listed under it.
bool isFoundByName(const std::filesystem::path& folder, std::wstring_view name) {
  if (folder.empty() || namesDevice(name)) return false;
  WIN32_FIND_DATAW entry{};
  const UniqueFind find = findFirst(folder / name, entry);
  return find && isVisibleFile(entry) && equalIgnoringCase(entry.cFileName, name);
}

/// How many bytes of a file are to be read, as far as the system knows its length.
std::size_t roomFor(HANDLE file, std::size_t limit) {
  LARGE_INTEGER length{};
  if (!GetFileSizeEx(file, &length)) return 0;
  return static_cast<std::size_t>(
      std::min<std::uint64_t>(static_cast<std::uint64_t>(length.QuadPart), limit));
}

std::optional<WIN32_FILE_ATTRIBUTE_DATA> attributesOf(const std::filesystem::path& file) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  if (isFolder(data.dwFileAttributes)) return std::nullopt;
  return data;
}

}  // namespace

FolderListing WindowsFileSystem::list(const std::filesystem::path& folder,
                                      std::wstring_view pattern) const {
  const std::int64_t listed = now();
  FolderListing::Builder listing;
  const bool whole = forEachEntry(folder, pattern, [&](const WIN32_FIND_DATAW& entry) {
    if (!isVisibleFile(entry) || !matchesPattern(entry.cFileName, pattern)) return;
    listing.add(entry.cFileName, stampOfEntry(entry, listed));
  });
  return whole ? listing.build() : FolderListing::brokenOff();
}

std::vector<std::wstring> WindowsFileSystem::folders(const std::filesystem::path& folder) const {
  std::vector<std::wstring> names;
  const bool whole = forEachEntry(folder, L"*", [&](const WIN32_FIND_DATAW& entry) {
    if (isVisible(entry) && isFolder(entry.dwFileAttributes)) names.emplace_back(entry.cFileName);
  });
  if (!whole) return {};
  std::ranges::sort(names, nameComesBefore);
  return names;
}

bool WindowsFileSystem::fileExists(const std::filesystem::path& folder,
                                   std::wstring_view name) const {
  // A "no" is not taken at its word: a name can be a pattern, too long to be asked for, or that of
  // two files in different letters.
  return isFoundByName(folder, name) || FileSystem::fileExists(folder, name);
}

std::optional<std::uintmax_t> WindowsFileSystem::size(const std::filesystem::path& file) const {
  const auto data = attributesOf(file);
  if (!data) return std::nullopt;
  return joined(data->nFileSizeHigh, data->nFileSizeLow);
}

LocalTime WindowsFileSystem::lastWritten(const std::filesystem::path& file) const {
  const auto data = attributesOf(file);
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  // Not FileTimeToLocalFileTime: it takes the offset of today for a file of the other half-year.
  const bool known = data && FileTimeToSystemTime(&data->ftLastWriteTime, &universal) &&
                     SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
  if (!known) throw FileError(kCannotRead, file);
  return localTimeOf(local);
}

std::string WindowsFileSystem::read(const std::filesystem::path& file, std::size_t limit) const {
  const UniqueFile handle = openDiskFile(file);
  if (!handle) throw FileError(kCannotRead, file);
  std::array<char, 32U << 10U> chunk;  // not filled first: that alone takes as long as a small file
  std::string bytes;
  DWORD wanted = 0;
  DWORD got = 0;
  // A file on a disk gives less than it is asked for only at its end.
  while (got == wanted && bytes.size() < limit) {
    wanted = static_cast<DWORD>(std::min(chunk.size(), limit - bytes.size()));
    if (!ReadFile(handle.get(), chunk.data(), wanted, &got, nullptr)) {
      throw FileError(kCannotRead, file);
    }
    // What is larger grows only once: each time would be new room from the system.
    if (bytes.empty() && got == chunk.size()) bytes.reserve(roomFor(handle.get(), limit));
    bytes.append(chunk.data(), got);
  }
  return bytes;
}

}  // namespace kalvora
