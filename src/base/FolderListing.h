#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kalvora {

/// What a listing tells of a file beside its name, to see whether it was written since.
struct FileStamp {
  /// Of a file that was written less than kSettling before it was listed: it can be written again
  /// within the step of the disk's clock, and would look the same.
  static constexpr std::int64_t kUnsettled = 0;
  /// In steps of 100 nanoseconds. The coarsest clock of a disk goes in steps of two seconds.
  static constexpr std::int64_t kSettling = std::int64_t{3} * 10'000'000;

  std::int64_t written = kUnsettled;  // in steps of 100 nanoseconds, from a moment of the system's
  std::uint32_t bytes = 0;            // the lowest 32 bits of its length

  bool settled() const { return written != kUnsettled; }
};

/// The stamp of a file that was written and listed at these moments, in steps of 100 nanoseconds.
FileStamp stampOf(std::uint64_t bytes, std::int64_t written, std::int64_t listed);

/// Whether a file with the one stamp, and later the other, was not written in between, as far as
/// its length and its time of writing tell.
bool isUnchanged(const FileStamp& before, const FileStamp& after);

struct ListedFile {
  std::wstring name;
  FileStamp stamp;
  std::size_t place;  // in the listing, from 0
};

/// The files of a folder as they were listed at one moment, in the program's name order. A folder
/// can hold tens of thousands, so it takes few bytes a file.
class FolderListing {
 public:
  class Builder;

  /// Of a folder that is not there, or whose listing broke off, as when the drive goes: half a
  /// folder must not pass for all that there is.
  static FolderListing brokenOff();
  /// Whether the folder was listed to its end.
  bool whole() const { return whole_; }

  bool empty() const { return entries_.empty(); }
  std::size_t size() const { return entries_.size(); }
  std::wstring name(std::size_t place) const { return nameOf(entries_[place]); }
  ListedFile operator[](std::size_t place) const;

  /// Whether a file of this name is among them, without regard to case.
  bool lists(std::wstring_view name) const;
  /// The names of all files.
  std::vector<std::wstring> names() const;

  /// Takes out the files whose names are `unwanted`, a function of a std::wstring_view.
  template <typename Test>
  void eraseWhere(const Test& unwanted) {
    std::erase_if(entries_, [&](const Entry& entry) { return unwanted(nameOf(entry)); });
  }

 private:
  struct Entry {
    std::int64_t written;
    std::uint32_t bytes;
    std::uint32_t isAscii : 1;
    std::uint32_t begin : 31;  // of the name, in ascii_ or others_
  };

  void append(std::wstring_view name, const FileStamp& stamp);
  std::wstring nameOf(const Entry& entry) const;

  // The names, a NUL behind each, which no name holds.
  std::string ascii_;
  std::wstring others_;
  std::vector<Entry> entries_;
  bool whole_ = true;
};

/// Puts together what a system lists.
class FolderListing::Builder {
 public:
  /// In any order.
  void add(std::wstring_view name, const FileStamp& stamp = {});
  /// The files in the program's name order.
  FolderListing build();

 private:
  struct Found {
    std::size_t begin;
    std::size_t length;
    FileStamp stamp;
  };

  std::wstring_view nameOf(const Found& file) const {
    return std::wstring_view(names_).substr(file.begin, file.length);
  }

  std::wstring names_;  // one behind the other
  std::vector<Found> files_;
};

/// A listing that several look at: each keeps the one that it worked with, whatever is listed
/// later.
using SharedListing = std::shared_ptr<const FolderListing>;

}  // namespace kalvora
