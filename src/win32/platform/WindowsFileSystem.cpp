#include "win32/platform/WindowsFileSystem.h"

#include <windows.h>

#include <algorithm>
#include <functional>

#include "base/Errors.h"
#include "base/Text.h"
#include "win32/platform/DiskFile.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/platform/WindowsTime.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kCannotRead = L"This file cannot be read: ";

using EntryTest = std::function<bool(const WIN32_FIND_DATAW&)>;

bool isFolder(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool isVisible(const WIN32_FIND_DATAW& entry) {
  const std::wstring_view name = entry.cFileName;
  const bool hidden =
      (entry.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
  return !hidden && name != L"." && name != L"..";
}

/// The pattern is never left to Windows: it would match short names too, so that "*.tx1" lists
/// a file "a.tx12".
///
/// Nothing where there is no folder, or where the listing breaks off, as when the drive goes: half
/// a folder must not pass for all that there is.
std::optional<std::vector<std::wstring>> listed(const std::filesystem::path& folder,
                                                const EntryTest& wanted) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW entry{};
  const UniqueFind find(FindFirstFileExW((folder / L"*").c_str(), FindExInfoBasic, &entry,
                                         FindExSearchNameMatch, nullptr,
                                         FIND_FIRST_EX_LARGE_FETCH));
  if (!find) return std::nullopt;
  do {
    if (isVisible(entry) && wanted(entry)) names.emplace_back(entry.cFileName);
  } while (FindNextFileW(find.get(), &entry));
  if (GetLastError() != ERROR_NO_MORE_FILES) return std::nullopt;
  std::ranges::sort(names, nameComesBefore);
  return names;
}

std::vector<std::wstring> namesOf(const std::filesystem::path& folder, const EntryTest& wanted) {
  if (folder.empty()) return {};  // would list the current folder
  return listed(folder, wanted).value_or(std::vector<std::wstring>());
}

std::optional<WIN32_FILE_ATTRIBUTE_DATA> attributesOf(const std::filesystem::path& file) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  if (isFolder(data.dwFileAttributes)) return std::nullopt;
  return data;
}

}  // namespace

std::vector<std::wstring> WindowsFileSystem::files(const std::filesystem::path& folder,
                                                   std::wstring_view pattern) const {
  return namesOf(folder, [&](const WIN32_FIND_DATAW& entry) {
    return !isFolder(entry.dwFileAttributes) && matchesPattern(entry.cFileName, pattern);
  });
}

std::vector<std::wstring> WindowsFileSystem::folders(const std::filesystem::path& folder) const {
  return namesOf(folder,
                 [](const WIN32_FIND_DATAW& entry) { return isFolder(entry.dwFileAttributes); });
}

bool WindowsFileSystem::canBeListed(const std::filesystem::path& folder) const {
  return !folder.empty() &&
         listed(folder, [](const WIN32_FIND_DATAW& /*entry*/) { return false; }).has_value();
}

std::optional<std::uintmax_t> WindowsFileSystem::size(const std::filesystem::path& file) const {
  const auto data = attributesOf(file);
  if (!data) return std::nullopt;
  return (std::uintmax_t{data->nFileSizeHigh} << 32U) | data->nFileSizeLow;
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
  constexpr std::size_t kChunk = 64U << 10U;
  const UniqueFile handle = openDiskFile(file);
  if (!handle) throw FileError(kCannotRead, file);
  std::string bytes;
  DWORD got = 1;
  while (got != 0 && bytes.size() < limit) {
    const std::size_t before = bytes.size();
    const std::size_t wanted = std::min(kChunk, limit - before);
    bytes.resize(before + wanted);
    if (!ReadFile(handle.get(), bytes.data() + before, static_cast<DWORD>(wanted), &got, nullptr)) {
      throw FileError(kCannotRead, file);
    }
    bytes.resize(before + got);
  }
  return bytes;
}

}  // namespace kalvora
