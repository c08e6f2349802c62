#include "alarms/CatchUp.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kSeen = L"Seen";
constexpr std::wstring_view kWaiting = L"Waiting";
constexpr std::wstring_view kRung = L"Rung";

constexpr std::chrono::days kLongestCatchUp(7);
// A clock that goes back by more was wrong before: what it rang then says nothing.
constexpr std::chrono::hours kLongestWayBack(26);
constexpr std::chrono::minutes kMinute(1);
constexpr std::size_t kLongestText = 30'000;  // characters; a store may take few more

std::chrono::local_days dayOf(LocalMinute moment) {
  return std::chrono::floor<std::chrono::days>(moment);
}

/// Whether a clock that goes back can bring the moment again. A whole day comes again with any of
/// its minutes: what is a little more than a day can reach into the day before the last. What is
/// further ahead rang while the clock was wrong.
bool canComeAgain(const DueNote& rung, LocalMinute now) {
  if (rung.moment - now > kLongestWayBack) return false;
  if (isDueAllDay(rung.fileName)) return dayOf(rung.moment) + std::chrono::days(2) >= dayOf(now);
  return now - rung.moment <= kLongestWayBack;
}

/// What rings today anyway was not missed, on the days before neither.
void leaveOutQueuedOn(std::chrono::local_days today, const CatchUp::IsQueuedToday& isQueued,
                      std::vector<DueNote>& missed) {
  std::set<std::wstring> queued;
  for (const DueNote& due : missed) {
    const bool isToday = isDueAllDay(due.fileName) && dayOf(due.moment) == today;
    if (isToday && isQueued(due.fileName)) queued.insert(due.fileName);
  }
  std::erase_if(missed, [&](const DueNote& due) { return queued.contains(due.fileName); });
}

/// What is known under one name is known under another.
void rename(std::set<DueNote>& notes, std::wstring_view from, std::wstring_view to) {
  std::set<DueNote> renamed;
  for (const DueNote& note : notes) {
    renamed.insert(
        {note.moment, equalIgnoringCase(note.fileName, from) ? std::wstring(to) : note.fileName});
  }
  notes = std::move(renamed);
}

/// Of very many, those of the latest moments.
std::wstring textThatFits(std::vector<DueNote> notes) {
  std::ranges::sort(notes, std::less<>());
  std::wstring text = dueNotesToText(notes);
  while (text.size() > kLongestText) {
    notes.erase(notes.begin(), notes.begin() + static_cast<std::ptrdiff_t>((notes.size() + 1) / 2));
    text = dueNotesToText(notes);
  }
  return text;
}

}  // namespace

std::vector<DueNote> CatchUp::missedBefore(LocalMinute now, const ReadNotes& read,
                                           const IsQueuedToday& isQueuedToday) {
  if (!comfort_.Catch_up) {
    forget(now);
    return {};
  }
  std::vector<DueNote> missed = takeOver(now);
  if (seen_ && *seen_ - now > kLongestWayBack) startAnew(now);
  // The clock went back.
  if (seen_ && *seen_ > now) rung_.insert(rungThisRun_.begin(), rungThisRun_.end());
  if (seen_ && *seen_ < now - kMinute) add({*seen_, now - kMinute, {}});
  std::vector<DueNote> found;
  for (const Gap& gap : std::exchange(gaps_, {})) look(gap, now, read, found);
  leaveOutQueuedOn(dayOf(now), isQueuedToday, found);
  rung_.insert(found.begin(), found.end());
  rungThisRun_.insert(found.begin(), found.end());
  missed.insert(missed.end(), found.begin(), found.end());
  return latestOfEach(std::move(missed));
}

/// What the run before left. Who chose Catch_up only in the middle of a run saw what rang by then.
std::vector<DueNote> CatchUp::takeOver(LocalMinute now) {
  if (std::exchange(tookOver_, true)) return {};
  storedSeen_ = store_.get(kComfortSection, kSeen, L"");
  storedWaiting_ = store_.get(kComfortSection, kWaiting, L"");
  storedRung_ = store_.get(kComfortSection, kRung, L"");
  seen_ = textToMoment(*storedSeen_);
  std::vector<DueNote> waiting = textToDueNotes(*storedWaiting_, now);
  for (DueNote& note : textToDueNotes(*storedRung_, std::nullopt)) rung_.insert(std::move(note));
  // They rang, too: the run before may have come to its end before it could say so.
  rung_.insert(waiting.begin(), waiting.end());
  return waiting;
}

/// The clock was wrong: nothing is known of the time since, and what rang by then is still to come.
void CatchUp::startAnew(LocalMinute now) {
  seen_.reset();
  const auto isStillToCome = [now](const DueNote& note) { return note.moment > now; };
  std::erase_if(rung_, isStillToCome);
  std::erase_if(rungThisRun_, isStillToCome);
}

/// A later tick must not find what is old by then, be it of the run before.
void CatchUp::forget(LocalMinute now) {
  takeOver(now);
  seen_.reset();
  gaps_.clear();
  rung_.clear();
  rungThisRun_.clear();
  store(kSeen, L"", storedSeen_);
  store(kWaiting, L"", storedWaiting_);
  store(kRung, L"", storedRung_);
}

void CatchUp::look(const Gap& gap, LocalMinute now, const ReadNotes& read,
                   std::vector<DueNote>& found) {
  AlarmNoteReader notes = read(gap.names);
  // By the next check this minute has passed, too.
  if (notes.folderIsAway()) {
    add({gap.after, now, gap.names});
    return;
  }
  const LocalMinute after = std::max(gap.after, now - kLongestCatchUp);
  for (DueNote& due : dueBetween(notes, after, gap.until)) {
    if (!rang(due)) found.push_back(std::move(due));
  }
  std::vector<std::wstring> unread = notes.takeUnread();
  if (!unread.empty()) add({gap.after, now, std::move(unread)});
}

bool CatchUp::rang(const DueNote& note) const {
  return rung_.contains(note) || rungThisRun_.contains(note);
}

AlarmQueue CatchUp::stillToRing(LocalMinute moment, AlarmQueue due) {
  if (!comfort_.Catch_up) return due;
  AlarmQueue ringing;
  std::set<DueNote> wholeDay;
  while (due.pending() > 0) {
    DueNote note{moment, due.takeNext()};
    const bool allDay = isDueAllDay(note.fileName);
    if (allDay) note.moment = dayOf(moment);
    if (rung_.contains(note)) continue;
    ringing.append(note.fileName);
    (allDay ? wholeDay : rungThisRun_).insert(std::move(note));
  }
  // Only now: a note can be in the queue of its day more than once.
  rung_.merge(wholeDay);
  return ringing;
}

void CatchUp::checked(LocalMinute now) {
  if (!comfort_.Catch_up) return;
  seen_ = now;
  const auto isOver = [now](const DueNote& note) { return !canComeAgain(note, now); };
  std::erase_if(rung_, isOver);
  std::erase_if(rungThisRun_, isOver);
  storeRung();
  store(kSeen, momentToText(seenForSure(now)), storedSeen_);
}

void CatchUp::couldNotRead(LocalMinute moment, const std::vector<std::wstring>& names) {
  if (comfort_.Catch_up) add({moment - kMinute, moment, names});
}

/// Two gaps of the same notes are one: between them these could not be read either.
void CatchUp::add(Gap gap) {
  const auto known = std::ranges::find(gaps_, gap.names, &Gap::names);
  if (known == gaps_.end()) return gaps_.push_back(std::move(gap));
  known->after = std::min(known->after, gap.after);
  known->until = std::max(known->until, gap.until);
}

void CatchUp::noteRenamed(std::wstring_view from, std::wstring_view to) {
  rename(rung_, from, to);
  rename(rungThisRun_, from, to);
  for (Gap& gap : gaps_) {
    for (std::wstring& name : gap.names) {
      if (equalIgnoringCase(name, from)) name = to;
    }
  }
}

void CatchUp::noteDeleted(std::wstring_view name) {
  const auto isOfIt = [name](const DueNote& note) {
    return equalIgnoringCase(note.fileName, name);
  };
  std::erase_if(rung_, isOfIt);
  std::erase_if(rungThisRun_, isOfIt);
}

/// Before a gap that could not be looked into yet, as far as it is known what rang since: otherwise
/// all of that would be shown again by the next run.
LocalMinute CatchUp::seenForSure(LocalMinute now) const {
  LocalMinute moment = now;
  for (const Gap& gap : gaps_) moment = std::min(moment, gap.after);
  return std::max(moment, now - kLongestWayBack);
}

void CatchUp::storeRung() {
  std::set<DueNote> both = rung_;
  both.insert(rungThisRun_.begin(), rungThisRun_.end());
  store(kRung, textThatFits({both.begin(), both.end()}), storedRung_);
}

void CatchUp::remember(const std::vector<DueNote>& waiting) {
  // What the run before left is still to be taken over.
  if (!tookOver_) return;
  store(kWaiting, textThatFits(waiting), storedWaiting_);
  storeRung();
}

/// The reminders go on all the same.
void CatchUp::store(std::wstring_view key, const std::wstring& text,
                    std::optional<std::wstring>& stored) {
  if (text == stored) return;
  try {
    store_.save(kComfortSection, key, text);
    stored = text;
  } catch (const Failure& failure) {
    if (!std::exchange(faultHeard_, true)) fault_ = failure.message();
  }
}

std::wstring CatchUp::takeFault() {
  return std::exchange(fault_, {});
}

}  // namespace kalvora
