#pragma once

#include "base/FileWriter.h"

namespace kalvora {

/// Changes the real files. What another program holds for a moment (a virus scanner, an indexer) is
/// tried again for about a quarter of a second.
class WindowsFileWriter : public FileWriter {
 public:
  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override;
  Removal remove(const std::filesystem::path& file) override;
  void createFolder(const std::filesystem::path& folder) override;
};

}  // namespace kalvora
