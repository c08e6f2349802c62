#pragma once

#include "base/FileWriter.h"
#include "notes/NoteFollower.h"
#include "notes/SafetyCopies.h"

namespace kalvora {

/// Keeps a safety copy of each note before its file is written anew; what is removed becomes one,
/// and what cannot become one is not removed. Whoever changes notes does so through this one, and
/// so cannot forget the copy. Where the disk has no room for a note, copies make it. Who follows
/// the notes hears of each that is written, renamed or deleted.
class KeepingFileWriter : public FileWriter {
 public:
  /// `writer`, `copies` and `follower` must outlive this object. Files outside the notes folder are
  /// only handed on.
  KeepingFileWriter(std::filesystem::path notesFolder, FileWriter& writer, SafetyCopies& copies,
                    NoteFollower& follower)
      : notesFolder_(std::move(notesFolder)),
        writer_(writer),
        copies_(copies),
        follower_(follower) {}

  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override;
  Removal remove(const std::filesystem::path& file) override;
  Removal removeRenamed(const std::filesystem::path& file,
                        const std::filesystem::path& renamed) override;
  void move(const std::filesystem::path& from, const std::filesystem::path& to) override;
  void createFolder(const std::filesystem::path& folder) override;

  /// How often a note was written, removed or renamed, or was to be.
  unsigned changes() const { return changes_; }

 private:
  bool isNote(const std::filesystem::path& file) const {
    return file.parent_path() == notesFolder_;
  }

  Removal removeKeeping(const std::filesystem::path& note);

  std::filesystem::path notesFolder_;
  FileWriter& writer_;
  SafetyCopies& copies_;
  NoteFollower& follower_;
  unsigned changes_ = 0;
};

}  // namespace kalvora
