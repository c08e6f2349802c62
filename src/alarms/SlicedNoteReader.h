#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Text.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// What a window that lists notes reads them with.
struct NoteFiles {
  const FileSystem& files;
  const CodePage& codePage;
  std::filesystem::path notesFolder;
};

/// Goes through the notes of the folder, as it is listed now: some notes a call, so that a window
/// stays at hand meanwhile.
class SlicedNoteReader {
 public:
  /// `files` must outlive this object.
  SlicedNoteReader(const NoteFiles& files, NoteKinds kinds);
  virtual ~SlicedNoteReader() = default;
  SlicedNoteReader(const SlicedNoteReader&) = delete;
  SlicedNoteReader& operator=(const SlicedNoteReader&) = delete;

  /// Whether there are no notes because the folder cannot be listed.
  bool folderIsAway() const { return notes_.folderIsAway(); }
  /// Goes on for some hundredths of a second. Returns whether all was read.
  bool readOn();
  std::size_t done() const { return next_; }
  std::size_t total() const { return listing_.size(); }
  /// The notes that cannot be read, or have a number that cannot, in their order.
  const std::vector<std::wstring>& faulty() const { return faulty_; }

 protected:
  const SharedListing& listing() const { return notes_.listing(); }
  /// Takes what is known of a note already. Returns false where it has to be read.
  virtual bool takeKnown(NoteKind kind, const ListedFile& file) = 0;
  /// Takes what it needs of a note that was opened. Throws Failure where it cannot be read.
  virtual void take(NoteKind kind, const ListedFile& file, AlarmNoteReader& note) = 0;

 private:
  std::size_t look(const ListedFile& file);
  void read(NoteKind kind, const ListedFile& file);

  const NoteKinds kinds_;
  AlarmNoteReader notes_;
  const FolderListing& listing_;
  std::vector<std::wstring> faulty_;
  std::size_t next_ = 0;  // of the listing
};

/// Finds what was known of the notes of an older listing again, for notes that were not written
/// since. `Notes` has `notes()`, in the order of the listing, and `fileOf()` each of them. Both
/// listings are in the same order, so that one walk through each will do.
template <typename Notes>
class KnownNotes {
 public:
  /// `before` must outlive this object.
  explicit KnownNotes(const Notes& before) : before_(before) {}

  /// Asked of one file after the other, in their order. Null where it has to be read.
  auto find(const ListedFile& file) {
    const auto& known = before_.notes();
    while (next_ < known.size() && nameComesBefore(before_.nameOf(known[next_]), file.name)) {
      ++next_;
    }
    const decltype(known.data()) nothing = nullptr;
    if (next_ == known.size()) return nothing;
    const ListedFile then = before_.fileOf(known[next_]);
    return then.name == file.name && isUnchanged(then.stamp, file.stamp) ? &known[next_] : nothing;
  }

 private:
  const Notes& before_;
  std::size_t next_ = 0;
};

/// What a window says while it reads, where the folder is away, and of notes that cannot be read;
/// of the last nothing where there are none.
std::wstring readingNotice(const SlicedNoteReader& reader);
inline constexpr std::wstring_view kFolderAwayNotice =
    L"The folder of the notes cannot be read now. It is looked at again.";
std::wstring faultNotice(const std::vector<std::wstring>& faulty);

}  // namespace kalvora
