#pragma once

#include "base/FileOperations.h"

namespace kalvora {

/// The steps of changing files without Windows, for tests and tools.
class StandardFileOperations : public FileOperations {
 public:
  FileResult create(const std::filesystem::path& file, std::unique_ptr<NewFile>& opened) override;
  FileResult replace(const std::filesystem::path& from, const std::filesystem::path& to) override;
  FileResult remove(const std::filesystem::path& file) override;
  std::optional<std::chrono::seconds> age(const std::filesystem::path& file) const override;
  FileResult createFolder(const std::filesystem::path& folder) override;
};

}  // namespace kalvora
