#include "alarms/WaitingReminders.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <set>

#include "base/Text.h"

namespace kalvora {

void WaitingReminders::clear() {
  missed_.clear();
  snoozed_.clear();
  queue_.clear();
  moments_.clear();
}

void WaitingReminders::queue(AlarmQueue due, LocalMinute moment) {
  std::set<std::wstring> ofToday;
  while (due.pending() > 0) {
    std::wstring name = due.takeNext();
    queue_.append(name);
    if (isDueAllDay(name)) ofToday.insert(std::move(name));
  }
  std::erase_if(missed_, [&](const DueNote& note) { return ofToday.contains(note.fileName); });
  // A full queue took less.
  moments_.resize(static_cast<std::size_t>(queue_.pending()), moment);
}

void WaitingReminders::addMissed(const std::vector<DueNote>& missed) {
  if (missed.empty()) return;
  std::vector<DueNote> both(missed_.begin(), missed_.end());
  both.insert(both.end(), missed.begin(), missed.end());
  both = latestOfEach(std::move(both));
  missed_.assign(both.begin(), both.end());
}

void WaitingReminders::noteRenamed(std::wstring_view from, std::wstring_view to) {
  std::vector<DueNote> missed(missed_.begin(), missed_.end());
  for (DueNote& due : missed) {
    if (equalIgnoringCase(due.fileName, from)) due.fileName = to;
  }
  missed_.clear();
  addMissed(missed);
  AlarmQueue renamed;
  while (queue_.pending() > 0) {
    const std::wstring name = queue_.takeNext();
    renamed.append(equalIgnoringCase(name, from) ? to : std::wstring_view(name));
  }
  queue_ = std::move(renamed);
}

void WaitingReminders::dropMissed(std::wstring_view name) {
  std::erase_if(missed_, [&](const DueNote& due) { return equalIgnoringCase(due.fileName, name); });
}

bool WaitingReminders::snoozedIsNext() const {
  return missed_.empty() && !snoozed_.empty() &&
         (moments_.empty() || snoozed_.front().moment <= moments_.front());
}

void WaitingReminders::skipOthersThan(NoteKinds kinds) {
  while (pending() > 0 && !kindOfFileName(nextName(), kinds)) takeNext();
}

std::wstring_view WaitingReminders::nextName() const {
  if (snoozedIsNext()) return snoozed_.front().fileName;
  return missed_.empty() ? queue_.next() : std::wstring_view(missed_.front().fileName);
}

NextReminder WaitingReminders::takeNext() {
  NextReminder next;
  next.missed = !missed_.empty();
  next.snoozed = snoozedIsNext();
  if (next.missed) {
    next.note = missed_.front();
    missed_.pop_front();
  } else if (next.snoozed) {
    next.note = snoozed_.front();
    snoozed_.erase(snoozed_.begin());
  } else {
    next.note = {moments_.front(), queue_.takeNext()};
    moments_.pop_front();
  }
  return next;
}

bool WaitingReminders::waits(std::wstring_view fileName) const {
  return queue_.waits(fileName) ||
         std::ranges::any_of(missed_, [&](const DueNote& due) { return due.fileName == fileName; });
}

std::int16_t WaitingReminders::pending() const {
  constexpr std::size_t kMost = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(
      std::min(kMost, missed_.size() + snoozed_.size() + moments_.size()));
}

std::vector<DueNote> WaitingReminders::all() const {
  std::vector<DueNote> notes(missed_.begin(), missed_.end());
  AlarmQueue rest = queue_;
  for (const LocalMinute moment : moments_) notes.push_back({moment, rest.takeNext()});
  return notes;
}

}  // namespace kalvora
