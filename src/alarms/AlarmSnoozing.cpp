// What the user puts off, as the reminders know it.

#include <algorithm>
#include <functional>
#include <utility>

#include "alarms/AlarmCheck.h"
#include "base/Text.h"

namespace kalvora {

std::optional<unsigned> AlarmCheck::reminderToPutOff() const {
  const bool isSeen = showsReminder_ && !comesAgain_ && !reminderComingOut();
  // The first one that comes out is on its way only.
  if (!isSeen || onShow_.note.fileName.empty()) return std::nullopt;
  return shownReminders_;
}

bool AlarmCheck::putOff(unsigned reminder, LocalMinute moment) {
  if (reminderToPutOff() != reminder) return false;
  const DueNote& shown = onShow_.note;
  if (putOffTo_) {
    // It could not be put away after that, and stayed on show.
    snoozes_.putOffAgain({*putOffTo_, shown.fileName}, moment);
  } else if (onShow_.snoozed) {
    snoozes_.putOffAgain(shown, moment);
  } else {
    snoozes_.add({moment, shown.fileName});
  }
  putOffTo_ = moment;
  // Only now: whenever the program ends, one of the two remembers it.
  remember();
  return true;
}

void AlarmCheck::noteCopied(std::wstring_view from, std::wstring_view to) {
  snoozes_.noteCopied(from, to);
  waiting_.setSnoozed(dueSnoozes());
  if (!ports_.comfort.Catch_up) return;
  catchUp_.noteCopied(from, to);
  remember();
}

void AlarmCheck::noteRenamed(std::wstring_view from, std::wstring_view to) {
  snoozes_.noteRenamed(from, to);
  if (showsReminder_ && equalIgnoringCase(onShow_.note.fileName, from)) {
    onShow_.note.fileName = to;
    Nazwa_pliku_na_tag = to;
  }
  waiting_.setSnoozed(dueSnoozes());
  for (std::wstring& name : unreadDayNotes_) {
    if (equalIgnoringCase(name, from)) name = to;
  }
  repeatedMinutes_.noteRenamed(from, to);
  // With Keep_typing the window that is put away for a reminder saves, and so can rename its note.
  if (ports_.comfort.Catch_up || ports_.comfort.Keep_typing) waiting_.noteRenamed(from, to);
  if (!ports_.comfort.Catch_up) return;
  catchUp_.noteRenamed(from, to);
  remember();
}

void AlarmCheck::noteDeleted(std::wstring_view name) {
  snoozes_.noteDeleted(name);
  waiting_.setSnoozed(dueSnoozes());
  const auto isIt = [name](const std::wstring& other) { return equalIgnoringCase(other, name); };
  std::erase_if(unreadDayNotes_, isIt);
  std::erase_if(unreadTimes_, isIt);
  if (!ports_.comfort.Catch_up) return;
  catchUp_.noteDeleted(name);
  waiting_.dropMissed(name);
  remember();
}

void AlarmCheck::noteWritten(std::wstring_view /*name*/) {
  if (ports_.comfort.Keep_typing) tableIsOld_ = true;
}

/// Whether it came back and is to be seen.
bool AlarmCheck::isOnShow(const DueNote& snoozed) const {
  const bool isShown = showsReminder_ && onShow_.snoozed && !comesAgain_ && !putOffTo_;
  return isShown && snoozed == onShow_.note;
}

std::vector<DueNote> AlarmCheck::snoozed() {
  std::vector<DueNote> notes = snoozes_.all();
  const std::vector<DueNote>& back = waiting_.snoozed();
  std::erase_if(notes, [&](const DueNote& note) {
    return isOnShow(note) || std::ranges::binary_search(back, note, std::less<>());
  });
  return notes;
}

std::vector<DueNote> AlarmCheck::notSeen() const {
  std::vector<DueNote> notes = waiting_.all();
  notes.insert(notes.end(), waiting_.snoozed().begin(), waiting_.snoozed().end());
  return latestOfEach(std::move(notes));
}

/// What has yet to be shown of what was put off and is due. Of kinds that the user does not have
/// nothing rings, and nothing is forgotten either.
std::vector<DueNote> AlarmCheck::dueSnoozes() {
  const NoteKinds kinds = knownKinds(ports_.comfort);
  std::vector<DueNote> due = snoozes_.dueBy(minuteOf(ports_.clock.now()));
  std::erase_if(due, [&](const DueNote& note) {
    return isOnShow(note) || !kindOfFileName(note.fileName, kinds);
  });
  return due;
}

/// Whether their notes are there is asked only where one of them is to come out next.
void AlarmCheck::lookForSnoozed() {
  std::vector<DueNote> due = dueSnoozes();
  waiting_.setSnoozed(due);
  if (!waiting_.snoozedIsNext()) return;
  leaveOutGone(due);
  waiting_.setSnoozed(due);
}

/// Those without a note do not come out; one whose folder is away waits. A folder without a file
/// may be one on a drive that is not plugged in.
void AlarmCheck::leaveOutGone(std::vector<DueNote>& snoozed) {
  const SharedListing notes = listNotes();
  if (!notes->whole() || notes->empty()) {
    snoozed.clear();
    return;
  }
  std::vector<DueNote> gone;
  std::erase_if(snoozed, [&](const DueNote& note) {
    if (notes->lists(note.fileName)) return false;
    gone.push_back(note);
    return true;
  });
  snoozes_.notFound(gone, minuteOf(ports_.clock.now()));
}

/// Somebody saw the reminder on show.
void AlarmCheck::putOnShowAway() {
  if (onShow_.snoozed && !comesAgain_ && !putOffTo_) snoozes_.remove({onShow_.note});
  comesAgain_ = false;
  putOffTo_.reset();
}

}  // namespace kalvora
