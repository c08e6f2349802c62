#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "base/LocalMinute.h"
#include "coming/ComingHost.h"
#include "coming/ComingNotes.h"

namespace kalvora {

enum class ComingState { Due, Snoozed, Missed };

/// One moment of one note.
struct ComingRow {
  LocalMinute moment;  // the beginning of its day, where it has no time
  bool allDay = false;
  std::wstring fileName;
  NoteKind kind = NoteKind::Fast;
  ComingState state = ComingState::Due;

  std::chrono::local_days day() const { return std::chrono::floor<std::chrono::days>(moment); }
  friend bool operator==(const ComingRow&, const ComingRow&) = default;
};

/// The rows of the list by time, those of a day as a whole first in it: what was missed on days
/// before today, then from this minute on what comes. There can be millions, so the rows of a day
/// are made when one of them is looked at.
class ComingRows {
 public:
  /// `notes` must outlive this object; after a change of it comes show().
  explicit ComingRows(const ComingNotes& notes) : notes_(notes) {}

  /// The rows of that many days. Marks of other kinds than these are left out.
  void show(const ComingMarks& marks, NoteKinds kinds, LocalMinute now, std::size_t days);

  std::size_t count() const { return starts_.empty() ? 0 : starts_.back(); }
  /// One of them. `number` is less than count().
  ComingRow row(std::size_t number);
  /// The first row of a day; nothing where it has none.
  std::optional<std::size_t> firstOf(std::chrono::local_days day);
  /// Where such a moment of such a note is now, whatever its state.
  std::optional<std::size_t> find(const ComingRow& wanted);
  /// Whether a day has rows, or had them if the days shown went as far.
  bool hasAny(std::chrono::local_days day);

 private:
  struct Cell {
    std::int16_t minute;
    bool isDue;           // or else marked
    std::uint32_t index;  // of the note or of the mark
    friend bool operator<(const Cell& one, const Cell& other) {
      return std::tie(one.minute, one.isDue, one.index) <
             std::tie(other.minute, other.isDue, other.index);
    }
  };
  using Cells = std::vector<Cell>;
  using MarkedMoments = std::set<std::pair<std::int16_t, std::wstring>>;

  void takeMarks(const ComingMarks& marks, NoteKinds kinds);
  void addMark(const DueNote& due, ComingState state, NoteKinds kinds);
  std::pair<std::size_t, std::size_t> marksOf(std::chrono::local_days day) const;
  std::optional<std::size_t> dayNumber(std::chrono::local_days day) const;
  const Cells& cellsOf(std::size_t day);
  Cells makeCells(std::size_t day) const;
  std::int16_t minuteOfToday() const;
  std::size_t countOn(std::size_t day);
  ComingRow rowOf(const Cell& cell, std::size_t day) const;

  const ComingNotes& notes_;
  LocalMinute now_{};
  std::vector<ComingRow> marks_;       // by moment
  std::vector<std::size_t> starts_;    // the first row of each day, and the end
  std::map<std::size_t, Cells> made_;  // of some days
  std::size_t madeCells_ = 0;
};

}  // namespace kalvora
