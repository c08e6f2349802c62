#pragma once

#include "base/FileWriter.h"

namespace kalvora {

/// Changes files without Windows, for tests and tools.
class StandardFileWriter : public FileWriter {
 public:
  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override;
  Removal remove(const std::filesystem::path& file) override;
  void createFolder(const std::filesystem::path& folder) override;
};

}  // namespace kalvora
