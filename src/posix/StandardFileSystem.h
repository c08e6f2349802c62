#pragma once

#include "base/FileSystem.h"

namespace kalvora {

/// File work through the C++ library alone, for tests and tools that run without Windows. A name
/// with a leading dot is hidden.
class StandardFileSystem : public FileSystem {
 public:
  FolderListing list(const std::filesystem::path& folder, std::wstring_view pattern) const override;
  std::vector<std::wstring> folders(const std::filesystem::path& folder) const override;
  std::optional<std::uintmax_t> size(const std::filesystem::path& file) const override;
  LocalTime lastWritten(const std::filesystem::path& file) const override;
  std::string read(const std::filesystem::path& file, std::size_t limit) const override;
#ifdef __unix__
  std::unique_ptr<FolderReader> readerOf(const std::filesystem::path& folder) const override;
#endif
};

}  // namespace kalvora
