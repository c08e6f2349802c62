#include "alarms/CatchUp.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"

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
/// its minutes: what is a little more than a day can reach into the day before the last.
bool canComeAgain(const DueNote& rung, LocalMinute now) {
  if (isDueAllDay(rung.fileName)) return dayOf(rung.moment) + std::chrono::days(2) >= dayOf(now);
  return now - rung.moment <= kLongestWayBack;
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
                                           DayNotesOfToday today) {
  if (!comfort_.Catch_up) {
    forget();
    return {};
  }
  std::vector<DueNote> missed = takeOver(now);
  // Nothing is known of the time since.
  if (seen_ && *seen_ - now > kLongestWayBack) seen_.reset();
  // The clock went back.
  if (seen_ && *seen_ > now) rung_.insert(rungThisRun_.begin(), rungThisRun_.end());
  if (seen_ && *seen_ < now - kMinute) gaps_.push_back({*seen_, now - kMinute, {}});
  std::vector<DueNote> found;
  for (const Gap& gap : std::exchange(gaps_, {})) look(gap, now, read, found);
  if (today == DayNotesOfToday::QueuedAnyway) {
    std::erase_if(found, [now](const DueNote& due) {
      return isDueAllDay(due.fileName) && dayOf(due.moment) == dayOf(now);
    });
  }
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

/// A later tick must not find what is old by then.
void CatchUp::forget() {
  tookOver_ = true;
  if (!seen_) return;
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
    gaps_.push_back({gap.after, now, gap.names});
    return;
  }
  const LocalMinute after = std::max(gap.after, now - kLongestCatchUp);
  for (DueNote& due : dueBetween(notes, after, gap.until)) {
    if (!rang(due)) found.push_back(std::move(due));
  }
  std::vector<std::wstring> unread = notes.takeUnread();
  if (!unread.empty()) gaps_.push_back({gap.after, now, std::move(unread)});
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

void CatchUp::couldNotRead(LocalMinute now, const std::vector<std::wstring>& names) {
  const auto isKnown = [&names](const Gap& gap) { return gap.names == names; };
  if (!comfort_.Catch_up || std::ranges::any_of(gaps_, isKnown)) return;
  gaps_.push_back({now - kMinute, now, names});
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
