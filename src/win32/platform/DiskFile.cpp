#include "win32/platform/DiskFile.h"

#include <windows.h>

#include "base/DeviceName.h"

namespace kalvora {

namespace {

UniqueFile openAny(const std::filesystem::path& file) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return UniqueFile(CreateFileW(file.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
}

bool isOnDisk(const UniqueFile& file) {
  return GetFileType(file.get()) == FILE_TYPE_DISK;
}

}  // namespace

UniqueFile openDiskFile(const std::filesystem::path& file) {
  // By its name first: opening a port may wait for ever too.
  if (namesDevice(file.filename().native())) return {};
  UniqueFile opened = openAny(file);
  if (opened && !isOnDisk(opened)) return {};
  return opened;
}

bool leadsToDevice(const std::filesystem::path& file) {
  if (namesDevice(file.filename().native())) return true;
  const UniqueFile opened = openAny(file);
  return opened && !isOnDisk(opened);
}

}  // namespace kalvora
