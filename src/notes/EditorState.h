#pragma once

#include <array>
#include <string>

#include "notes/HourDisplay.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// The refresh mark of a writer after whose file no list is to be refreshed.
inline constexpr int kNoRefresh = 555;

/// What the note editor remembers beside what its controls show.
struct EditorState {
  EditorState() { FName_old.fill(std::wstring(kKeepFileName)); }

  std::string& storedContent(NoteKind kind) { return contents[static_cast<std::size_t>(kind)]; }
  std::wstring& oldName(NoteKind kind) { return FName_old[static_cast<std::size_t>(kind)]; }

  /// The name under which the note on each page was loaded; the keep-file name for one that has no
  /// file yet.
  std::array<std::wstring, kNoteKinds.size()> FName_old;
  /// The text of the note on each page, as the file holds it that it was read from or written to.
  std::array<std::string, kNoteKinds.size()> contents;
  /// The kind whose list a save leaves to be refreshed.
  int refreshMark = kNoRefresh;
  /// Those that the editor was opened with, for which it has pages.
  NoteKinds kinds = kNoteKinds;
  /// As it was when the editor was opened, so that an hour is stored as it was shown.
  HourFormat hourFormat = HourFormat::Hours12;
};

}  // namespace kalvora
