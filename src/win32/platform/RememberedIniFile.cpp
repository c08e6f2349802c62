#include "win32/platform/RememberedIniFile.h"

#include "app/IniAnswer.h"
#include "base/Errors.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsTime.h"

namespace kalvora {

namespace {

/// A skin's description has a few kilobytes.
constexpr DWORD kLargestFile = 64U << 10U;
/// Some volumes keep the time of writing in steps of two seconds.
constexpr std::chrono::seconds kTimeStep{3};

bool isSmallFile(const WIN32_FILE_ATTRIBUTE_DATA& state) {
  const bool folder = (state.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return !folder && state.nFileSizeHigh == 0 && state.nFileSizeLow <= kLargestFile;
}

}  // namespace

const std::string* RememberedIniFile::textOf(const std::filesystem::path& file) {
  WIN32_FILE_ATTRIBUTE_DATA state{};
  if (!GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &state)) return nullptr;
  if (!isSmallFile(state) || secondsSince(state.ftLastWriteTime) < kTimeStep) return nullptr;
  if (!remembers(file, state)) read(file, state);
  return ordinary_ ? &text_ : nullptr;
}

bool RememberedIniFile::remembers(const std::filesystem::path& file,
                                  const WIN32_FILE_ATTRIBUTE_DATA& state) const {
  return file.native() == file_.native() && state.nFileSizeLow == state_.nFileSizeLow &&
         CompareFileTime(&state.ftLastWriteTime, &state_.ftLastWriteTime) == 0;
}

void RememberedIniFile::read(const std::filesystem::path& file,
                             const WIN32_FILE_ATTRIBUTE_DATA& state) {
  file_.clear();
  ordinary_ = false;
  try {
    text_ = WindowsFileSystem().read(file, kLargestFile);
    ordinary_ = isOrdinaryIni(text_);
    file_ = file;
    state_ = state;
  } catch (const FileError&) {
    // The platform's call may still wait for whoever holds it, and answers for a file that it
    // cannot read.
  }
}

}  // namespace kalvora
