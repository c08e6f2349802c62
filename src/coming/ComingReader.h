#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "coming/ComingHost.h"
#include "coming/ComingNotes.h"

namespace kalvora {

/// What the list of what comes reads notes with.
struct ComingFiles {
  const FileSystem& files;
  const CodePage& codePage;
  std::filesystem::path notesFolder;
};

/// Finds out when the notes of the folder, as it is listed now, are due in the year from a day on:
/// some notes a call, so that a window stays at hand meanwhile. A note is read only where nobody
/// remembers it as it is now.
class ComingReader {
 public:
  /// `before` is what was found out last, and all must outlive this object.
  ComingReader(const ComingFiles& files, const ComingHost& host, std::chrono::local_days first,
               const ComingNotes& before);

  /// Whether there are no notes because the folder cannot be listed.
  bool folderIsAway() const { return notes_.folderIsAway(); }
  /// Goes on for some hundredths of a second. Returns whether all was read.
  bool readOn();
  std::size_t done() const { return next_; }
  std::size_t total() const { return listing_.size(); }

  /// Hands over what was found out, once all was read.
  ComingNotes take() { return std::move(found_); }
  /// The notes that cannot be read, or have a number that cannot, in their order.
  const std::vector<std::wstring>& faulty() const { return faulty_; }

 private:
  std::size_t look(const ListedFile& file);
  bool takeKnown(const ListedFile& file);
  void read(NoteKind kind, const ListedFile& file);

  const ComingHost& host_;
  const ComingNotes& before_;
  const NoteKinds kinds_;
  AlarmNoteReader notes_;
  const FolderListing& listing_;
  ComingNotes found_;
  std::vector<std::wstring> faulty_;
  std::size_t next_ = 0;       // of the listing
  std::size_t nextKnown_ = 0;  // of before_
};

}  // namespace kalvora
