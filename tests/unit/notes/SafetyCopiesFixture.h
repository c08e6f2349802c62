#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/Errors.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFollower.h"
#include "fakes/TempFolder.h"
#include "notes/KeepingFileWriter.h"
#include "posix/StandardFileSystem.h"
#include "posix/StandardFileWriter.h"

namespace kalvora {

/// A disk that refuses to touch the folder of the copies, where that is wanted.
class MoodyWriter : public FileWriter {
 public:
  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override {
    if ((refuses && isInBackup(file)) || file == unwritable) throw FileError(L"full: ", file);
    if (bytes.size() > room) {
      if (whenFull) whenFull();
      throw DiskFullError(file);
    }
    const std::size_t old = sizeOf(file);
    disk_.writeSafely(file, bytes);
    room += old - bytes.size();
  }
  Removal remove(const std::filesystem::path& file) override {
    ++removals;
    if ((isInBackup(file) && locks) || locked.contains(file.filename())) {
      throw FileError(L"locked: ", file);
    }
    room += sizeOf(file);
    return disk_.remove(file);
  }
  void move(const std::filesystem::path& from, const std::filesystem::path& to) override {
    if (isOtherDisk && isInBackup(from) != isInBackup(to)) {
      throw FileError(L"on another disk: ", from);
    }
    disk_.move(from, to);
  }
  void createFolder(const std::filesystem::path& folder) override { disk_.createFolder(folder); }

  bool refuses = false;
  bool isOtherDisk = false;  // the copies are on it, so that nothing can be moved to them
  bool locks = false;
  std::set<std::filesystem::path> locked;  // names of files
  std::filesystem::path unwritable;
  int removals = 0;
  std::function<void()> whenFull;
  /// Bytes that the disk still takes. The old file goes only when the new one is complete.
  std::size_t room = 1U << 30U;

 private:
  static std::size_t sizeOf(const std::filesystem::path& file) {
    return std::filesystem::is_regular_file(file)
               ? static_cast<std::size_t>(std::filesystem::file_size(file))
               : 0;
  }
  static bool isInBackup(const std::filesystem::path& file) {
    return file.parent_path().filename() == "backup";
  }
  StandardFileWriter disk_;
};

/// Notes in a folder of files, on that disk, and the copies that are made of them.
class SafetyCopiesFixture : public testing::Test {
 protected:
  SafetyCopiesFixture() { std::filesystem::create_directory(notes_); }

  void give(const std::filesystem::path& name, std::string_view bytes) {
    folder_.write(notes_ / name, bytes);
  }
  void save(const std::filesystem::path& name, std::string_view bytes) {
    writer_.writeSafely(notes_ / name, bytes);
  }
  void remove(const std::filesystem::path& name) { writer_.remove(notes_ / name); }
  /// A note that was there and is gone.
  void giveAndRemove(const std::filesystem::path& name, std::string_view bytes) {
    give(name, bytes);
    remove(name);
  }
  static std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::vector<std::wstring> copyNames() const { return files_.files(backup_, L"*"); }
  std::vector<std::wstring> noteNames() const { return files_.files(notes_, L"*"); }

  TempFolder folder_;
  std::filesystem::path notes_ = folder_.path() / "notes";
  std::filesystem::path backup_ = folder_.path() / "backup";
  StandardFileSystem files_;
  MoodyWriter disk_;
  FakeClock clock_{{.year = 2027, .month = 3, .day = 8, .hour = 6, .minute = 29, .second = 5}};
  Comfort comfort_;
  SafetyCopies copies_{backup_, files_, disk_, clock_, [this] { return knownKinds(comfort_); }};
  FakeNoteFollower follower_;
  KeepingFileWriter writer_{notes_, disk_, copies_, follower_};
};

}  // namespace kalvora
