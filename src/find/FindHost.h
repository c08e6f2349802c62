#pragma once

#include <string_view>

#include "notes/NoteKind.h"
#include "notes/PlaceInNote.h"

namespace kalvora {

/// What the window "Find" needs of the rest of the program.
class FindHost {
 public:
  virtual ~FindHost() = default;

  /// The kinds of notes that the user has.
  virtual NoteKinds noteKinds() const = 0;
  /// Another number whenever the program has changed a note.
  virtual unsigned noteChanges() const = 0;
  /// Shows a note in the note editor, and a place in its text.
  virtual void openNoteAt(NoteKind kind, std::wstring_view title, const PlaceInNote& place) = 0;
};

}  // namespace kalvora
