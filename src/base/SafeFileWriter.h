#pragma once

#include "base/FileOperations.h"
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

 private:
  FileOperations& operations_;
};

}  // namespace kalvora
