#include "alarms/RememberedTimes.h"

#include <algorithm>

#include "base/Text.h"

namespace kalvora {

void RememberedTimes::add(NoteKind kind, const ListedFile& note, const RingTime& time) {
  if (time.clockTime.size() > kLongestClockTime) return;
  entries_[static_cast<std::size_t>(kind)].push_back(
      {static_cast<std::uint32_t>(note.place), numberOf(time)});
}

std::uint32_t RememberedTimes::numberOf(const RingTime& time) {
  const auto next = static_cast<std::uint32_t>(times_.size());
  const auto [known, isNew] =
      numbers_.try_emplace({time.clockTime, time.weekdays, time.date}, next);
  if (isNew) times_.push_back(time);
  return known->second;
}

std::optional<RingTime> RememberedTimes::find(NoteKind kind, const ListedFile& note) const {
  const auto& entries = entries_[static_cast<std::size_t>(kind)];
  const auto found =
      std::ranges::lower_bound(entries, note.name, nameComesBefore,
                               [this](const Entry& entry) { return listing_->name(entry.place); });
  if (found == entries.end()) return std::nullopt;
  const ListedFile known = (*listing_)[found->place];
  if (known.name != note.name || !isUnchanged(known.stamp, note.stamp)) return std::nullopt;
  return times_[found->time];
}

}  // namespace kalvora
