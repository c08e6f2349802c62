#include "coming/ComingRows.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace kalvora {

namespace {

using std::chrono::days;
using std::chrono::local_days;

// More than a window can show at a time. What is kept beyond it would cost memory only.
constexpr std::size_t kMostMadeDays = 128;
constexpr std::size_t kMostMadeCells = 200'000;

std::int16_t minuteOfDay(const ComingRow& row) {
  if (row.allDay) return ComingNote::kAllDay;
  return static_cast<std::int16_t>((row.moment - row.day()).count());
}

}  // namespace

void ComingRows::show(const ComingMarks& marks, NoteKinds kinds, LocalMinute now,
                      std::size_t dayCount) {
  now_ = now;
  made_.clear();
  madeCells_ = 0;
  takeMarks(marks, kinds);
  const auto today = std::ranges::lower_bound(marks_, notes_.first(), {}, &ComingRow::day);
  std::size_t rows = static_cast<std::size_t>(today - marks_.begin());
  starts_.assign(1, rows);
  for (std::size_t day = 0; day < dayCount; ++day) starts_.push_back(rows += countOn(day));
}

void ComingRows::takeMarks(const ComingMarks& marks, NoteKinds kinds) {
  marks_.clear();
  for (const DueNote& due : marks.snoozed) addMark(due, ComingState::Snoozed, kinds);
  for (const DueNote& due : marks.missed) addMark(due, ComingState::Missed, kinds);
  std::ranges::stable_sort(marks_, {}, &ComingRow::moment);
}

void ComingRows::addMark(const DueNote& due, ComingState state, NoteKinds kinds) {
  const std::optional<NoteKind> kind = kindOfFileName(due.fileName, kinds);
  if (!kind) return;
  // A note that is due on a day as a whole is snoozed until a minute.
  const bool allDay = state == ComingState::Missed && !hasClockTime(*kind);
  const LocalMinute moment =
      allDay ? LocalMinute(std::chrono::floor<days>(due.moment)) : due.moment;
  marks_.push_back({moment, allDay, due.fileName, *kind, state});
}

/// The marks from the first number on and before the second.
std::pair<std::size_t, std::size_t> ComingRows::marksOf(local_days day) const {
  const auto begin = std::ranges::lower_bound(marks_, day, {}, &ComingRow::day);
  const auto end = std::ranges::upper_bound(marks_, day, {}, &ComingRow::day);
  return {static_cast<std::size_t>(begin - marks_.begin()),
          static_cast<std::size_t>(end - marks_.begin())};
}

/// From today on, within the year that is known.
std::optional<std::size_t> ComingRows::dayNumber(local_days day) const {
  const auto number = (day - notes_.first()).count();
  const auto end = static_cast<std::ptrdiff_t>(daysOf(ComingSpan::Year, notes_.first()));
  if (number < 0 || number >= end) return std::nullopt;
  return static_cast<std::size_t>(number);
}

std::size_t ComingRows::countOn(std::size_t day) {
  const auto [begin, end] = marksOf(notes_.first() + days(day));
  // Today some of it is past, and what is marked may be due as well.
  return day == 0 || begin != end ? cellsOf(day).size() : notes_.countOn(day);
}

const ComingRows::Cells& ComingRows::cellsOf(std::size_t day) {
  const auto found = made_.find(day);
  if (found != made_.end()) return found->second;
  if (made_.size() >= kMostMadeDays || madeCells_ >= kMostMadeCells) {
    made_.clear();
    madeCells_ = 0;
  }
  const Cells& cells = made_.emplace(day, makeCells(day)).first->second;
  madeCells_ += cells.size();
  return cells;
}

/// Of the first day, which can be yesterday until the notes are looked at anew.
std::int16_t ComingRows::minuteOfToday() const {
  constexpr std::chrono::minutes kDay = days(1);
  return static_cast<std::int16_t>(
      std::min(kDay, std::chrono::minutes(now_ - notes_.first())).count());
}

ComingRows::Cells ComingRows::makeCells(std::size_t day) const {
  const local_days date = notes_.first() + days(day);
  const std::int16_t passed = day == 0 ? minuteOfToday() : std::int16_t{0};
  Cells cells;
  MarkedMoments marked;
  const auto [begin, end] = marksOf(date);
  for (std::size_t i = begin; i < end; ++i) {
    cells.push_back({minuteOfDay(marks_[i]), false, static_cast<std::uint32_t>(i)});
    marked.emplace(minuteOfDay(marks_[i]), marks_[i].fileName);
  }
  const std::vector<ComingNote>& notes = notes_.notes();
  for (std::size_t i = 0; i < notes.size(); ++i) {
    const ComingNote& note = notes[i];
    if (!note.days[day]) continue;
    if (note.minute != ComingNote::kAllDay && note.minute < passed) continue;
    if (!marked.empty() && marked.contains({note.minute, notes_.nameOf(note)})) continue;
    cells.push_back({note.minute, true, static_cast<std::uint32_t>(i)});
  }
  std::ranges::sort(cells, std::less<>());
  return cells;
}

ComingRow ComingRows::rowOf(const Cell& cell, std::size_t day) const {
  if (!cell.isDue) return marks_[cell.index];
  const ComingNote& note = notes_.notes()[cell.index];
  const bool allDay = cell.minute == ComingNote::kAllDay;
  const std::chrono::minutes time(allDay ? 0 : cell.minute);
  return {notes_.first() + days(day) + time, allDay, notes_.nameOf(note), note.kind,
          ComingState::Due};
}

ComingRow ComingRows::row(std::size_t number) {
  if (number < starts_.front()) return marks_[number];
  const auto next = std::ranges::upper_bound(starts_, number);
  const auto day = static_cast<std::size_t>(next - starts_.begin() - 1);
  return rowOf(cellsOf(day)[number - starts_[day]], day);
}

std::optional<std::size_t> ComingRows::firstOf(local_days day) {
  if (day < notes_.first()) {
    const auto [begin, end] = marksOf(day);
    return begin != end ? std::optional(begin) : std::nullopt;
  }
  const std::optional<std::size_t> number = dayNumber(day);
  if (!number || *number + 1 >= starts_.size()) return std::nullopt;
  const std::size_t first = starts_[*number];
  return first < starts_[*number + 1] ? std::optional(first) : std::nullopt;
}

std::optional<std::size_t> ComingRows::find(const ComingRow& wanted) {
  const std::optional<std::size_t> first = firstOf(wanted.day());
  if (!first) return std::nullopt;
  for (std::size_t i = *first; i < count(); ++i) {
    const ComingRow here = row(i);
    if (here.day() != wanted.day()) break;
    if (here.moment == wanted.moment && here.fileName == wanted.fileName) return i;
  }
  return std::nullopt;
}

bool ComingRows::hasAny(local_days day) {
  if (day < notes_.first()) return firstOf(day).has_value();
  const std::optional<std::size_t> number = dayNumber(day);
  return number && countOn(*number) > 0;
}

}  // namespace kalvora
