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

std::vector<std::wstring> namesOf(const fs::path& folder,
                                  const std::function<bool(const fs::directory_entry&)>& wanted) {
  std::vector<std::wstring> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::wstring name = entry->path().filename().wstring();
    if (!name.starts_with(L'.') && wanted(*entry)) names.push_back(std::move(name));
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
  return namesOf(folder, [&](const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_regular_file(error) &&
           matchesPattern(entry.path().filename().wstring(), pattern);
  });
}

std::vector<std::wstring> StandardFileSystem::folders(const fs::path& folder) const {
  return namesOf(folder, [](const fs::directory_entry& entry) {
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
  if (error) throw FileError(L"This file cannot be read: ", file);
  const auto age = fs::file_time_type::clock::now() - written;
  const auto moment =
      std::chrono::time_point_cast<std::chrono::seconds>(std::chrono::system_clock::now() - age);
  return toLocalTime(std::chrono::system_clock::to_time_t(moment));
}

std::string StandardFileSystem::read(const fs::path& file, std::size_t limit) const {
  std::ifstream in(file, std::ios::binary);
  std::string bytes(limit, '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(limit));
  if (!in.is_open() || in.bad()) throw FileError(L"This file cannot be read: ", file);
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

}  // namespace kalvora
