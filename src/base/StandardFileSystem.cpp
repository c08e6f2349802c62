#include "base/StandardFileSystem.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <fstream>
#include <functional>

#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

constexpr std::wstring_view kCannotRead = L"This file cannot be read: ";

/// Nothing for a name of bytes that are no text, which the program could not hold.
std::optional<std::wstring> nameOf(const fs::directory_entry& entry) {
  try {
    return entry.path().filename().wstring();
  } catch (const fs::filesystem_error&) {
    return std::nullopt;
  }
}

using EntryTest = std::function<bool(const fs::directory_entry&, std::wstring_view name)>;

std::vector<std::wstring> namesOf(const fs::path& folder, const EntryTest& wanted) {
  std::vector<std::wstring> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::optional<std::wstring> name = nameOf(*entry);
    if (name && !name->starts_with(L'.') && wanted(*entry, *name)) {
      names.push_back(*std::move(name));
    }
  }
  std::ranges::sort(names, nameComesBefore);
  return names;
}

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

std::vector<std::wstring> StandardFileSystem::files(const fs::path& folder,
                                                    std::wstring_view pattern) const {
  return namesOf(folder, [&](const fs::directory_entry& entry, std::wstring_view name) {
    std::error_code error;
    return entry.is_regular_file(error) && matchesPattern(name, pattern);
  });
}

std::vector<std::wstring> StandardFileSystem::folders(const fs::path& folder) const {
  return namesOf(folder, [](const fs::directory_entry& entry, std::wstring_view) {
    std::error_code error;
    return entry.is_directory(error);
  });
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
  const std::optional<std::uintmax_t> length = size(file);
  std::ifstream in(file, std::ios::binary);
  if (!length || !in) throw FileError(kCannotRead, file);
  std::string bytes(static_cast<std::size_t>(std::min<std::uintmax_t>(limit, *length)), '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (in.bad()) throw FileError(kCannotRead, file);
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

}  // namespace kalvora
