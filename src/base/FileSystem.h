#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "base/FolderListing.h"

namespace kalvora {

/// Reads files of one folder.
class FolderReader {
 public:
  virtual ~FolderReader() = default;
  /// The first `limit` bytes of the file `name`, or all of it. Throws FileError.
  virtual std::string read(std::wstring_view name, std::size_t limit) const = 0;
};

/// All file work of the program goes through here. Names are without their folder; a folder that
/// does not exist is an empty one.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// The files in `folder` that match `pattern` ("*" and "?", without regard to case), in the
  /// program's name order; hidden and system files are left out. No files, and not whole, where the
  /// folder is not there or cannot be listed to its end: what leads to a drive that is away is
  /// there, and lists nothing.
  virtual FolderListing list(const std::filesystem::path& folder,
                             std::wstring_view pattern) const = 0;
  /// Their names.
  std::vector<std::wstring> files(const std::filesystem::path& folder,
                                  std::wstring_view pattern) const {
    return list(folder, pattern).names();
  }
  /// The names of the sub-folders that are not hidden, in the program's name order.
  virtual std::vector<std::wstring> folders(const std::filesystem::path& folder) const = 0;

  /// The program's only existence test: whether `name` stands among the files that are listed in
  /// `folder`, without regard to case. A hidden file does not exist by it. Where the system can be
  /// asked for one name, and answers the same, the folder need not be listed.
  virtual bool fileExists(const std::filesystem::path& folder, std::wstring_view name) const;

  /// The length in bytes; nothing where there is no such file.
  virtual std::optional<std::uintmax_t> size(const std::filesystem::path& file) const = 0;
  /// When it was last written, in local time. Throws FileError.
  virtual LocalTime lastWritten(const std::filesystem::path& file) const = 0;
  /// The first `limit` bytes of a file, or all of it. Throws FileError.
  virtual std::string read(const std::filesystem::path& file, std::size_t limit) const = 0;
  /// For a loop over the files of `folder`: where the system can hold a folder open, it is not
  /// found anew for each of them. This object must outlive the reader.
  virtual std::unique_ptr<FolderReader> readerOf(const std::filesystem::path& folder) const;
};

/// Whether a file name matches a pattern of "*" (any run) and "?" (any one character), without
/// regard to case.
bool matchesPattern(std::wstring_view name, std::wstring_view pattern);

}  // namespace kalvora
