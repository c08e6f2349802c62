#pragma once

#include "base/FileOperations.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"

namespace kalvora {

/// Changes files so that each is whole at every moment, whatever single step fails or never comes.
class SafeFileWriter : public FileWriter {
 public:
  /// `operations` must outlive this object.
  explicit SafeFileWriter(FileOperations& operations) : operations_(operations) {}

  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override;
  Removal remove(const std::filesystem::path& file) override;
  void createFolder(const std::filesystem::path& folder) override;

  /// Removes what a program that was killed in the middle of a write left in the folder. A file
  /// that is not yet a minute old may be another copy's work and stays.
  void removeLeftovers(const FileSystem& files, const std::filesystem::path& folder) noexcept;

 private:
  FileOperations& operations_;
};

}  // namespace kalvora
