#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "base/Errors.h"
#include "base/FolderListing.h"
#include "base/Text.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// What was read of the notes of a listing, so that those which were not written since need not be
/// read again. It is kept in memory only and takes few bytes a note.
///
/// A `Time` says when a note rings. Many notes ring at the same times, so each is kept once: its
/// members() are compared, and longestText() is the length of its longest text.
template <typename Time>
class RememberedNotes {
 public:
  RememberedNotes() : RememberedNotes(std::make_shared<const FolderListing>()) {}
  explicit RememberedNotes(SharedListing listing) : listing_(std::move(listing)) {}

  /// Remembers a note of the listing; the notes of a kind come in the listing's order. One that has
  /// a long text in place of a number is not remembered.
  void add(NoteKind kind, const ListedFile& note, const Time& time) {
    if (time.longestText() > kLongestText) return;
    const auto next = static_cast<std::uint32_t>(times_.size());
    const auto [known, isNew] = numbers_.try_emplace(time, next);
    if (isNew) times_.push_back(time);
    entriesOf(kind).push_back({static_cast<std::uint32_t>(note.place), known->second});
  }

  /// What is remembered of a note that stands in this or a later listing, and was not written
  /// since.
  std::optional<Time> find(NoteKind kind, const ListedFile& note) const {
    const auto& entries = entries_[static_cast<std::size_t>(kind)];
    const auto found = std::ranges::lower_bound(
        entries, note.name, nameComesBefore,
        [this](const Entry& entry) { return listing_->name(entry.place); });
    if (found == entries.end() || !isAsIn(*found, note)) return std::nullopt;
    return times_[found->time];
  }

  /// Keeps what is remembered of the notes that stand in a later listing and were not written
  /// since; the listing before is no longer needed.
  void moveTo(const SharedListing& later) {
    if (later == listing_) return;
    for (const NoteKind kind : kNoteKinds) move(entriesOf(kind), *later);
    listing_ = later;
  }

 private:
  struct Entry {
    std::uint32_t place;  // in the listing
    std::uint32_t time;   // in times_
  };
  struct MembersLess {
    bool operator()(const Time& one, const Time& other) const {
      return one.members() < other.members();
    }
  };

  static constexpr std::size_t kLongestText = 32;

  std::vector<Entry>& entriesOf(NoteKind kind) { return entries_[static_cast<std::size_t>(kind)]; }

  bool isAsIn(const Entry& entry, const ListedFile& note) const {
    const ListedFile known = (*listing_)[entry.place];
    return known.name == note.name && isUnchanged(known.stamp, note.stamp);
  }

  /// Both listings are in the same order, so that one walk through each will do.
  void move(std::vector<Entry>& entries, const FolderListing& later) const {
    std::size_t next = 0;
    std::erase_if(entries, [&](Entry& entry) {
      const std::wstring name = listing_->name(entry.place);
      while (next < later.size() && nameComesBefore(later.name(next), name)) ++next;
      if (next == later.size() || !isAsIn(entry, later[next])) return true;
      entry.place = static_cast<std::uint32_t>(next);
      return false;
    });
  }

  SharedListing listing_;
  std::array<std::vector<Entry>, kNoteKinds.size()> entries_;
  std::vector<Time> times_;
  std::map<Time, std::uint32_t, MembersLess> numbers_;
};

/// Calls `use` with each note of a kind and its time, in the order of the listing: with what is
/// `known` of it, or else with what `read` makes of its fields. All that is sound is remembered
/// `now`. A note of which `read` or `use` throws a Failure is a fault of `notes`; what was refused
/// is read, and told of, every time.
template <typename Time, typename Read, typename Use>
void forEachTime(NoteKind kind, AlarmNoteReader& notes, const RememberedNotes<Time>& known,
                 RememberedNotes<Time>& now, const Read& read, const Use& use) {
  notes.forEach(kind, [&](const ListedFile& note) {
    std::optional<Time> time = known.find(kind, note);
    const bool isRead = !time && notes.Inicjuj_czytanie(note.name);
    if (!time && !isRead) return;
    try {
      if (isRead) time = read(kind, notes);
      use(note, *time);
      if (!isRead || !notes.refused()) now.add(kind, note, *time);
    } catch (const Failure&) {
      notes.addUnreadable(note.name);
    }
    notes.Zakoncz_czytanie();
  });
}

}  // namespace kalvora
