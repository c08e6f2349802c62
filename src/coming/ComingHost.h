#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "alarms/DueNote.h"
#include "alarms/DueRule.h"
#include "base/FolderListing.h"
#include "notes/HourDisplay.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// Reminders that stand apart from what the notes say.
struct ComingMarks {
  std::vector<DueNote> snoozed;  // with the moment at which each comes back
  std::vector<DueNote> missed;   // with the moment at which each was due
  friend bool operator==(const ComingMarks&, const ComingMarks&) = default;
};

/// What the list of what comes needs of the rest of the program.
class ComingHost {
 public:
  virtual ~ComingHost() = default;

  /// The kinds of notes that the user has.
  virtual NoteKinds noteKinds() const = 0;
  /// The user's setting of 12-hour time.
  virtual HourFormat hourFormat() const = 0;
  /// What is snoozed, and what came due and was not seen yet.
  virtual ComingMarks comingMarks() = 0;
  /// What is known of the time of a note that was not written since it was read.
  virtual std::optional<NoteTime> rememberedTime(NoteKind kind, const ListedFile& note) const = 0;
  /// Another number whenever the program has changed a note.
  virtual unsigned noteChanges() const = 0;
  /// Shows a note in the note editor.
  virtual void openNote(NoteKind kind, std::wstring_view title) = 0;
};

}  // namespace kalvora
