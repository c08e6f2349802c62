#include "coming/ComingReader.h"

#include <optional>

namespace kalvora {

ComingReader::ComingReader(const NoteFiles& files, const ComingHost& host,
                           std::chrono::local_days first, const ComingNotes& before)
    : SlicedNoteReader(files, host.noteKinds()),
      host_(host),
      sameDays_(before.first() == first),
      known_(before),
      found_(listing(), first) {}

bool ComingReader::takeKnown(NoteKind kind, const ListedFile& file) {
  if (sameDays_) {
    if (const ComingNote* const known = known_.find(file)) {
      found_.add(file.place, *known);
      return true;
    }
  }
  const std::optional<NoteTime> time = host_.rememberedTime(kind, file);
  if (!time) return false;
  if (const auto rule = dueRuleOf(*time)) found_.add(file.place, kind, *rule);
  return true;
}

void ComingReader::take(NoteKind kind, const ListedFile& file, AlarmNoteReader& note) {
  if (const auto rule = readDueRule(kind, note)) found_.add(file.place, kind, *rule);
}

}  // namespace kalvora
