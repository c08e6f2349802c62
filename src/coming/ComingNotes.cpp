#include "coming/ComingNotes.h"

#include "alarms/Occurrences.h"

namespace kalvora {

void ComingNotes::add(std::size_t place, NoteKind kind, const DueRule& rule) {
  using namespace std::chrono;
  ComingNote note{static_cast<std::uint32_t>(place), ComingNote::kAllDay, kind, {}};
  const days year(daysOf(ComingSpan::Year, first_));
  for (const LocalMinute moment : occurrences(rule, first_, first_ + year)) {
    const local_days day = floor<days>(moment);
    note.days.set(static_cast<std::size_t>((day - first_).count()));
    if (hasClockTime(kind)) note.minute = static_cast<std::int16_t>((moment - day).count());
  }
  append(note);
}

void ComingNotes::add(std::size_t place, const ComingNote& known) {
  ComingNote note = known;
  note.place = static_cast<std::uint32_t>(place);
  append(note);
}

void ComingNotes::append(const ComingNote& note) {
  if (note.days.none()) return;
  notes_.push_back(note);
  for (std::size_t day = 0; day < kMostComingDays; ++day) counts_[day] += note.days[day] ? 1 : 0;
}

}  // namespace kalvora
