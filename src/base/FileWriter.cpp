#include "base/FileWriter.h"

#include "base/FileSystem.h"
#include "base/Numbers.h"

namespace kalvora {

namespace fs = std::filesystem;

std::string bytesAfterWritingInPlace(std::string_view oldBytes, std::string_view newBytes) {
  std::string bytes(newBytes);
  if (newBytes.size() < oldBytes.size()) bytes += oldBytes.substr(newBytes.size());
  return bytes;
}

bool isTemporaryName(std::wstring_view fileName) {
  return matchesPattern(fileName, kTemporaryPattern);
}

fs::path temporaryPlace(const fs::path& file, int number) {
  return file.parent_path() / (L"~kalvora-" + numberToText(number) + L".tmp");
}

}  // namespace kalvora
