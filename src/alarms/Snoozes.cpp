#include "alarms/Snoozes.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kSection = L"Snooze";
constexpr std::wstring_view kLength = L"Snooze_minutes";
constexpr std::wstring_view kPutOff = L"Put_off";
constexpr std::wstring_view kNeverStored = L"|";  // a text that store() never writes

constexpr std::chrono::minutes kUsualLength(10);
constexpr std::chrono::minutes kShortestLength(1);
constexpr std::chrono::minutes kLongestLength(24 * 60);

std::set<DueNote> entriesOf(std::wstring_view text) {
  std::vector<DueNote> notes = textToDueNotes(text, std::nullopt);
  return {notes.begin(), notes.end()};
}

}  // namespace

std::chrono::minutes Snoozes::length() const {
  const std::wstring text = store_.get(kSection, kLength, L"");
  try {
    const std::chrono::minutes length(textToInt16(text));
    return length >= kShortestLength && length <= kLongestLength ? length : kUsualLength;
  } catch (const Failure&) {
    return kUsualLength;
  }
}

std::vector<DueNote> Snoozes::all() {
  takeOver();
  return {entries_.begin(), entries_.end()};
}

std::vector<DueNote> Snoozes::dueBy(LocalMinute now) {
  takeOver();
  // A name that is empty stands before all others of its minute.
  return {entries_.begin(), entries_.lower_bound({now + std::chrono::minutes(1), {}})};
}

void Snoozes::add(const DueNote& note) {
  takeOver();
  insert(note);
  store();
}

void Snoozes::putOffAgain(const DueNote& note, LocalMinute moment) {
  takeOver();
  entries_.erase(note);
  insert({moment, note.fileName});
  store();
}

void Snoozes::remove(const std::vector<DueNote>& notes) {
  takeOver();
  for (const DueNote& note : notes) entries_.erase(note);
  store();
}

void Snoozes::notFound(const std::vector<DueNote>& notes, LocalMinute now) {
  std::map<DueNote, LocalMinute> missing;
  std::vector<DueNote> gone;
  for (const DueNote& note : notes) {
    const auto before = missingSince_.find(note);
    if (before != missingSince_.end() && before->second < now) {
      gone.push_back(note);
    } else {
      missing.emplace(note, now);
    }
  }
  missingSince_ = std::move(missing);
  if (!gone.empty()) remove(gone);
}

void Snoozes::noteCopied(std::wstring_view from, std::wstring_view to) {
  takeOver();
  for (const DueNote& note : entriesOfNote(from)) insert({note.moment, std::wstring(to)});
  store();
}

void Snoozes::noteRenamed(std::wstring_view from, std::wstring_view to) {
  takeOver();
  const std::vector<DueNote> notes = entriesOfNote(from);
  for (const DueNote& note : notes) entries_.erase(note);
  for (const DueNote& note : notes) insert({note.moment, std::wstring(to)});
  store();
}

void Snoozes::noteDeleted(std::wstring_view name) {
  takeOver();
  for (const DueNote& note : entriesOfNote(name)) entries_.erase(note);
  store();
}

/// What another copy of the program, or the run before, changed since this one last looked. A text
/// that cannot be read, or was taken away, says nothing of what was put off.
void Snoozes::takeOver() {
  std::wstring text = store_.get(kSection, kPutOff, kNeverStored);
  if (text == kNeverStored || text == stored_) return;
  const std::set<DueNote> before = entriesOf(stored_);
  const std::set<DueNote> now = entriesOf(text);
  for (const DueNote& note : before) {
    if (!now.contains(note)) entries_.erase(note);
  }
  for (const DueNote& note : now) {
    if (!before.contains(note)) entries_.insert(note);
  }
  stored_ = std::move(text);
}

void Snoozes::insert(const DueNote& note) {
  const bool isThere = std::ranges::any_of(entries_, [&](const DueNote& entry) {
    return entry.moment == note.moment && equalIgnoringCase(entry.fileName, note.fileName);
  });
  if (!isThere) entries_.insert(note);
}

std::vector<DueNote> Snoozes::entriesOfNote(std::wstring_view name) const {
  std::vector<DueNote> found;
  std::ranges::copy_if(entries_, std::back_inserter(found), [name](const DueNote& entry) {
    return equalIgnoringCase(entry.fileName, name);
  });
  return found;
}

/// The reminders go on all the same.
void Snoozes::store() {
  if (entries_ == entriesOf(stored_)) return;
  std::wstring text = dueNotesToText({entries_.begin(), entries_.end()});
  try {
    store_.save(kSection, kPutOff, text);
    stored_ = std::move(text);
  } catch (const Failure& failure) {
    if (!std::exchange(faultHeard_, true)) fault_ = failure.message();
  }
}

std::wstring Snoozes::takeFault() {
  return std::exchange(fault_, {});
}

}  // namespace kalvora
