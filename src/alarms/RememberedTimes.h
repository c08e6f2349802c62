#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/FolderListing.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// When a note rings, as a time table needs it.
struct RingTime {
  static constexpr std::uint8_t kEveryDay = 0x7F;

  std::wstring clockTime;             // hour ":" minute, as they stand in the note
  std::uint8_t weekdays = kEveryDay;  // a bit for each, Sunday the lowest

  bool ringsOn(int weekday) const { return ((weekdays >> weekday) & 1) != 0; }
};

/// What was read of the notes of a listing, so that those which were not written since need not be
/// read again. It is kept in memory only and takes few bytes a note.
class RememberedTimes {
 public:
  RememberedTimes() : RememberedTimes(std::make_shared<const FolderListing>()) {}
  explicit RememberedTimes(SharedListing listing) : listing_(std::move(listing)) {}

  /// Remembers a note of the listing; the notes of a kind come in the listing's order. One that has
  /// a long text in place of a time is not remembered.
  void add(NoteKind kind, const ListedFile& note, const RingTime& time);

  /// What is remembered of a note that stands in this or a later listing, and was not written
  /// since.
  std::optional<RingTime> find(NoteKind kind, const ListedFile& note) const;

 private:
  struct Entry {
    std::uint32_t place;  // in the listing
    std::uint32_t time;   // in times_
  };

  static constexpr std::size_t kLongestClockTime = 32;

  std::uint32_t numberOf(const RingTime& time);

  SharedListing listing_;
  std::array<std::vector<Entry>, kNoteKinds.size()> entries_;
  // Many notes ring at the same times.
  std::vector<RingTime> times_;
  std::map<std::pair<std::wstring, std::uint8_t>, std::uint32_t> numbers_;
};

}  // namespace kalvora
