#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "alarms/RingTime.h"
#include "base/FolderListing.h"
#include "notes/NoteKind.h"

namespace kalvora {

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

  /// The members of a RingTime.
  using Members =
      std::tuple<std::wstring, std::uint8_t, std::optional<std::chrono::year_month_day>>;

  static constexpr std::size_t kLongestClockTime = 32;

  std::uint32_t numberOf(const RingTime& time);

  SharedListing listing_;
  std::array<std::vector<Entry>, kNoteKinds.size()> entries_;
  // Many notes ring at the same times.
  std::vector<RingTime> times_;
  std::map<Members, std::uint32_t> numbers_;
};

}  // namespace kalvora
