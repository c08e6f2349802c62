// A disk of a size that a test chooses. Loaded before the C library into a program under Wine,
// where it stands between Wine and its calls of write.
//
// On the disk lie the files of the folders "notes" and "backup" in KALVORA_DISK_FOLDER. The file
// that KALVORA_DISK_SIZE names says how many bytes they can have together; without it there is no
// limit. So a file that is removed gives back its room by itself.

#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string textOf(const char* variable) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? "" : text;
}

const std::array<std::string, 2>& foldersOfDisk() {
  static const std::array<std::string, 2> folders = {textOf("KALVORA_DISK_FOLDER") + "/notes",
                                                     textOf("KALVORA_DISK_FOLDER") + "/backup"};
  return folders;
}

bool isOnDisk(int file) {
  struct stat facts {};
  if (fstat(file, &facts) != 0 || !S_ISREG(facts.st_mode)) return false;
  char path[4096];
  const ssize_t length =
      readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path);
  if (length < 0) return false;
  const std::string place(path, static_cast<std::size_t>(length));
  return std::ranges::any_of(foldersOfDisk(),
                             [&](const auto& folder) { return place.starts_with(folder + "/"); });
}

long bytesIn(const std::string& folder) {
  long bytes = 0;
  DIR* const opened = opendir(folder.c_str());
  if (opened == nullptr) return 0;
  while (const dirent* entry = readdir(opened)) {
    struct stat facts {};
    const bool isFile =
        fstatat(dirfd(opened), entry->d_name, &facts, 0) == 0 && S_ISREG(facts.st_mode);
    if (isFile) bytes += facts.st_size;
  }
  closedir(opened);
  return bytes;
}

/// How many of so many more bytes the disk takes; each of ours is behind the end of its file.
std::size_t bytesTaken(int file, std::size_t wanted) {
  if (!isOnDisk(file)) return wanted;
  std::FILE* const opened = std::fopen(textOf("KALVORA_DISK_SIZE").c_str(), "r");
  if (opened == nullptr) return wanted;
  long room = 0;
  if (std::fscanf(opened, "%ld", &room) != 1) room = 0;
  std::fclose(opened);
  for (const std::string& folder : foldersOfDisk()) room -= bytesIn(folder);
  return std::min(wanted, static_cast<std::size_t>(std::max(room, 0L)));
}

template <typename Write>
ssize_t writeOnDisk(int file, std::size_t count, const Write& write) {
  const std::size_t taken = bytesTaken(file, count);
  if (taken == 0 && count > 0) {
    errno = ENOSPC;
    return -1;
  }
  return write(taken);
}

template <typename Function>
Function original(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" ssize_t write(int file, const void* bytes, std::size_t count) {
  static const auto next = original<ssize_t (*)(int, const void*, std::size_t)>("write");
  return writeOnDisk(file, count, [&](std::size_t taken) { return next(file, bytes, taken); });
}

extern "C" ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
  static const auto next = original<ssize_t (*)(int, const void*, std::size_t, off_t)>("pwrite");
  return writeOnDisk(file, count,
                     [&](std::size_t taken) { return next(file, bytes, taken, offset); });
}
