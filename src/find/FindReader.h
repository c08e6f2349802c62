#pragma once

#include "alarms/SlicedNoteReader.h"
#include "find/SearchedNotes.h"

namespace kalvora {

/// Reads the names and texts of all notes. A note is read only where it is not known as it is now.
class FindReader final : public SlicedNoteReader {
 public:
  /// `before` is what was read last, and all must outlive this object.
  FindReader(const NoteFiles& files, NoteKinds kinds, const SearchedNotes& before)
      : SlicedNoteReader(files, kinds), before_(before), known_(before), found_(listing()) {}

  /// What was read so far.
  const SearchedNotes& found() const { return found_; }
  /// Hands it over, once all was read.
  SearchedNotes take() { return std::move(found_); }

 private:
  bool takeKnown(NoteKind kind, const ListedFile& file) override;
  void take(NoteKind kind, const ListedFile& file, AlarmNoteReader& note) override;

  const SearchedNotes& before_;
  KnownNotes<SearchedNotes> known_;
  SearchedNotes found_;
};

}  // namespace kalvora
