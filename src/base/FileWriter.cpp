#include "base/FileWriter.h"

#include "base/FileSystem.h"

namespace kalvora {

std::string bytesAfterWritingInPlace(std::string_view oldBytes, std::string_view newBytes) {
  std::string bytes(newBytes);
  if (newBytes.size() < oldBytes.size()) bytes += oldBytes.substr(newBytes.size());
  return bytes;
}

bool isTemporaryName(std::wstring_view fileName) {
  return matchesPattern(fileName, kTemporaryPattern);
}

}  // namespace kalvora
