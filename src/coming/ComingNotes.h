#pragma once

#include <array>
#include <bitset>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "alarms/DueRule.h"
#include "base/FolderListing.h"
#include "coming/ComingSpan.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A note that is due on some of the days.
struct ComingNote {
  /// In place of a minute, of a note that is due on a day as a whole.
  static constexpr std::int16_t kAllDay = -1;

  std::uint32_t place;  // in the listing
  std::int16_t minute;  // of the day, the same on each
  NoteKind kind;
  std::bitset<kMostComingDays> days;  // from the first on
};

/// The notes of a listing with the days of a year on which they are due, as `occurrences` says, in
/// the listing's order. Daily notes are due millions of times where there are many: a bit stands
/// for each.
class ComingNotes {
 public:
  /// None yet; the year begins with the day `first`.
  ComingNotes(SharedListing listing, std::chrono::local_days first)
      : listing_(std::move(listing)), first_(first) {}
  ComingNotes() : ComingNotes(std::make_shared<const FolderListing>(), {}) {}

  /// A note behind those before; one that is due on none of the days is left out.
  void add(std::size_t place, NoteKind kind, const DueRule& rule);
  /// The same of what was found out before, for the same days.
  void add(std::size_t place, const ComingNote& known);

  std::chrono::local_days first() const { return first_; }
  const std::vector<ComingNote>& notes() const { return notes_; }
  std::wstring nameOf(const ComingNote& note) const { return listing_->name(note.place); }
  ListedFile fileOf(const ComingNote& note) const { return (*listing_)[note.place]; }
  /// How many are due on a day, counted from the first.
  std::size_t countOn(std::size_t day) const { return counts_[day]; }

 private:
  void append(const ComingNote& note);

  SharedListing listing_;
  std::chrono::local_days first_;
  std::vector<ComingNote> notes_;
  std::array<std::uint32_t, kMostComingDays> counts_{};
};

}  // namespace kalvora
