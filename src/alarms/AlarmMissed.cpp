// What the user missed, as the reminders know it.

#include <algorithm>
#include <chrono>

#include "alarms/AlarmCheck.h"
#include "base/Dates.h"

namespace kalvora {

CatchUp::ReadNotes AlarmCheck::readNotes() const {
  return [this](const std::vector<std::wstring>& names) {
    return names.empty() ? readerOf(listNotes()) : readerOf(names);
  };
}

void AlarmCheck::lookForMissed(const LocalTime& now) {
  // At the start of a run, and of a day for who wants it, those of today are queued in any case.
  const auto isQueuedToday = [this, &now](const std::wstring& fileName) {
    const bool isUnread = std::ranges::count(unreadDayNotes_, fileName) > 0;
    return dayNotesAreOld(now) || (isUnread && dayNotesOf_ == dateOf(now));
  };
  waiting_.addMissed(catchUp_.missedBefore(minuteOf(now), readNotes(), isQueuedToday));
  skipUnknown();
}

/// With them lies what is due in this minute, and on this day.
void AlarmCheck::catchUpOnUnreadNotes(LocalMinute now) {
  if (folderListsNone_) catchUp_.couldNotRead(now, {});
  if (!unreadTimes_.empty()) catchUp_.couldNotRead(now, unreadTimes_);
  const LocalMinute today = std::chrono::floor<std::chrono::days>(now);
  if (!unreadDayNotes_.empty()) catchUp_.couldNotRead(today, unreadDayNotes_);
}

/// A reminder on show is not put away yet.
void AlarmCheck::remember() {
  if (!ports_.comfort.Catch_up) return;
  std::vector<DueNote> notSeen = waiting_.all();
  // What is put off is remembered by itself.
  if (showsReminder_ && !onShow_.snoozed && !putOffTo_) notSeen.push_back(onShow_.note);
  catchUp_.remember(notSeen);
}

}  // namespace kalvora
