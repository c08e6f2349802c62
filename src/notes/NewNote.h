#pragma once

#include "base/Clock.h"
#include "notes/NoteFields.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// What the page of a note begins with that has no file yet: empty fields, January, and of a note
/// for one date the next full hour, which may be tomorrow's first.
NoteFields newNoteFields(NoteKind kind, const LocalTime& now);

}  // namespace kalvora
