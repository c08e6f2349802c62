#pragma once

#include <array>
#include <string>

#include "notes/Draft.h"
#include "notes/HourDisplay.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// The refresh mark of a writer after whose file no list is to be refreshed.
inline constexpr int kNoRefresh = 555;

/// What the note editor remembers beside what its controls show.
struct EditorState {
  EditorState() {
    FName_old.fill(std::wstring(kKeepFileName));
    deleted.fill(std::wstring(kKeepFileName));
  }

  NoteAsRead& read(NoteKind kind) { return notes[static_cast<std::size_t>(kind)]; }
  std::wstring& oldName(NoteKind kind) { return FName_old[static_cast<std::size_t>(kind)]; }
  std::wstring& deletedName(NoteKind kind) { return deleted[static_cast<std::size_t>(kind)]; }

  /// The name under which the note on each page was loaded; the keep-file name for one that has no
  /// file yet.
  std::array<std::wstring, kNoteKinds.size()> FName_old;
  /// The name of the note on each page before it was deleted; the keep-file name for one that was
  /// not.
  std::array<std::wstring, kNoteKinds.size()> deleted;
  /// The note on each page, as the file holds it that it was read from or written to.
  std::array<NoteAsRead, kNoteKinds.size()> notes;
  /// The kind whose list a save leaves to be refreshed.
  int refreshMark = kNoRefresh;
  /// Those that the editor was opened with, for which it has pages.
  NoteKinds kinds = kNoteKinds;
  /// As it was when the editor was opened, so that an hour is stored as it was shown.
  HourFormat hourFormat = HourFormat::Hours12;
};

}  // namespace kalvora
