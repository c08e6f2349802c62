#include "base/FileWriter.h"

#include <chrono>
#include <system_error>

#include "base/FileSystem.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

/// No write takes so long, so the file is nobody's.
constexpr std::chrono::minutes kLeftoverAge{1};

void removeLeftover(const fs::path& file) {
  std::error_code error;
  const fs::file_time_type written = fs::last_write_time(file, error);
  if (!error && fs::file_time_type::clock::now() - written > kLeftoverAge) fs::remove(file, error);
}

}  // namespace

std::string bytesAfterWritingInPlace(std::string_view oldBytes, std::string_view newBytes) {
  std::string bytes(newBytes);
  if (newBytes.size() < oldBytes.size()) bytes += oldBytes.substr(newBytes.size());
  return bytes;
}

bool isTemporaryName(std::wstring_view fileName) {
  return matchesPattern(fileName, L"~kalvora-*.tmp");
}

fs::path temporaryPlace(const fs::path& file, int number) {
  fs::path place = file.parent_path() / ("~kalvora-" + std::to_string(number) + ".tmp");
  removeLeftover(place);
  return place;
}

}  // namespace kalvora
