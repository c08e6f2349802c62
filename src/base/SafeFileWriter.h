#pragma once

#include "base/FileOperations.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"

namespace kalvora {

/// Changes files so that each is whole at every moment, whatever single step fails or never comes.
class SafeFileWriter : public FileWriter {
 public:
  /// The names that are tried for a temporary file, from 1 on. Only the first is in use, unless a
  /// program of the same number was killed just now, or runs on another machine.
  static constexpr int kTemporaryNames = 100;

  /// `operations` must outlive this object. `process` is a number that no other running copy of the
  /// program has: temporary files carry it, so that two copies never take each other's.
  SafeFileWriter(FileOperations& operations, int process)
      : operations_(operations), process_(process) {}

  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override;
  Removal remove(const std::filesystem::path& file) override;
  void move(const std::filesystem::path& from, const std::filesystem::path& to) override;
  void createFolder(const std::filesystem::path& folder) override;

  /// The place of temporary file `number` beside `file`: a name that no list of notes, skins or
  /// icons shows.
  std::filesystem::path temporaryPlace(const std::filesystem::path& file, int number) const;

  /// Removes what a program that was killed in the middle of a write left in the folder. A file
  /// that is not yet a minute old may be another copy's work and stays.
  void removeLeftovers(const FileSystem& files, const std::filesystem::path& folder) noexcept;

 private:
  FileResult replaceSafely(const std::filesystem::path& file, std::string_view bytes);

  FileOperations& operations_;
  int process_;
};

}  // namespace kalvora
