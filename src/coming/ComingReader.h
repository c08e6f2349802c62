#pragma once

#include <chrono>

#include "alarms/SlicedNoteReader.h"
#include "coming/ComingHost.h"
#include "coming/ComingNotes.h"

namespace kalvora {

/// Finds out when the notes of the folder are due in the year from a day on. A note is read only
/// where nobody remembers it as it is now.
class ComingReader final : public SlicedNoteReader {
 public:
  /// `before` is what was found out last, and all must outlive this object.
  ComingReader(const NoteFiles& files, const ComingHost& host, std::chrono::local_days first,
               const ComingNotes& before);

  /// Hands over what was found out, once all was read.
  ComingNotes take() { return std::move(found_); }

 private:
  bool takeKnown(NoteKind kind, const ListedFile& file) override;
  void take(NoteKind kind, const ListedFile& file, AlarmNoteReader& note) override;

  const ComingHost& host_;
  const bool sameDays_;  // as those of what was found out last
  KnownNotes<ComingNotes> known_;
  ComingNotes found_;
};

}  // namespace kalvora
