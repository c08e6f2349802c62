#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace kalvora {

enum class FileResult { Done, Missing, Exists, DiskFull, Failed };

/// A file that is being filled. Its end closes it, if it was not closed before.
class NewFile {
 public:
  virtual ~NewFile() = default;

  /// Writes behind what was written before. `count` becomes the number of bytes that went, which
  /// may be fewer than wanted, also where it is Done: then it was the disk's last room.
  virtual FileResult write(std::string_view bytes, std::size_t& count) = 0;
  /// Has all of it on the disk.
  virtual FileResult flush() = 0;
  virtual FileResult close() = 0;
};

/// The single steps that all changing of files is made of. None of them throws. What another
/// program holds for a moment is up to them: whoever calls them takes a failure for final.
class FileOperations {
 public:
  virtual ~FileOperations() = default;

  /// Makes a file and opens it; Exists where there is one already.
  virtual FileResult create(const std::filesystem::path& file,
                            std::unique_ptr<NewFile>& opened) = 0;
  /// Puts a closed file into the place of another, or where there is none, or under its own name in
  /// other letters, at one stroke. Done means that it stays so after a power cut. Fails between two
  /// disks.
  virtual FileResult replace(const std::filesystem::path& from,
                             const std::filesystem::path& to) = 0;
  /// Removes a file; Missing where there is none. A folder is no file.
  virtual FileResult remove(const std::filesystem::path& file) = 0;
  /// How long ago a file was written last; nothing where there is none.
  virtual std::optional<std::chrono::seconds> age(const std::filesystem::path& file) const = 0;
  /// Makes a folder. Done also where it is there already.
  virtual FileResult createFolder(const std::filesystem::path& folder) = 0;
};

}  // namespace kalvora
