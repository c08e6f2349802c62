#pragma once

#include "base/FileSystem.h"

namespace kalvora {

/// The real files. What cannot be listed for want of rights counts as an empty folder.
class WindowsFileSystem : public FileSystem {
 public:
  FolderListing list(const std::filesystem::path& folder, std::wstring_view pattern) const override;
  std::vector<std::wstring> folders(const std::filesystem::path& folder) const override;
  bool fileExists(const std::filesystem::path& folder, std::wstring_view name) const override;
  std::optional<std::uintmax_t> size(const std::filesystem::path& file) const override;
  LocalTime lastWritten(const std::filesystem::path& file) const override;
  /// Others may write, rename and delete the file meanwhile. What is no file on a disk cannot be
  /// read.
  std::string read(const std::filesystem::path& file, std::size_t limit) const override;
};

}  // namespace kalvora
