#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Errors.h"

namespace kalvora {

/// Whether there was a file to remove.
enum class Removal { Removed, WasMissing };

/// A file that the disk has no room for: with less on the disk it could be written.
class DiskFullError : public FileError {
 public:
  explicit DiskFullError(const std::filesystem::path& file)
      : FileError(L"There is no room on the disk for this file: ", file) {}
};

/// All changing of files goes through here.
class FileWriter {
 public:
  virtual ~FileWriter() = default;

  /// Gives a file a new content, whole: it goes to a temporary file in the same folder first, which
  /// takes the file's place only when it is complete and on the disk. The file is created where
  /// there is none; its folder must exist.
  /// Throws FileError, or DiskFullError: then an old file is as it was, and the temporary one is
  /// gone. A program that is killed meanwhile leaves the old file or the new one, whole, and maybe
  /// the temporary one, which a later start removes once it is a minute old.
  virtual void writeSafely(const std::filesystem::path& file, std::string_view bytes) = 0;

  /// Removes a file. One that does not exist counts as removed already. Throws FileError for one
  /// that cannot be removed, such as a folder.
  virtual Removal remove(const std::filesystem::path& file) = 0;

  /// Removes a file likewise whose content stands in `renamed` by now, which so takes its place.
  virtual Removal removeRenamed(const std::filesystem::path& file,
                                const std::filesystem::path& /*renamed*/) {
    return remove(file);
  }

  /// Moves a file to another place on its disk at one stroke, or to its own name in other letters.
  /// It takes no room there; a file in that place is replaced. Throws FileError: then nothing
  /// moved.
  virtual void move(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

  /// Makes a folder, unless it is there already; the one that it stands in must exist. Throws
  /// FileError.
  virtual void createFolder(const std::filesystem::path& folder) = 0;
};

/// What a file holds after new bytes are written over its old ones from the start, without cutting
/// it: the end of the old bytes stays behind shorter new ones.
std::string bytesAfterWritingInPlace(std::string_view oldBytes, std::string_view newBytes);

/// What the names of temporary files have in common.
inline constexpr std::wstring_view kTemporaryPattern = L"~kalvora-*.tmp";

/// Whether a file name is that of a temporary file, which is nothing of the user's.
bool isTemporaryName(std::wstring_view fileName);

}  // namespace kalvora
