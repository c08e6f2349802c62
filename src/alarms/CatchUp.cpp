#include "alarms/CatchUp.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kSeen = L"Seen";
constexpr std::wstring_view kUnread = L"Unread";
constexpr std::wstring_view kWaiting = L"Waiting";
constexpr std::wstring_view kRung = L"Rung";
constexpr std::wstring_view kJumpedTo = L"Jumped_to";
// Of what was known before the clock jumped.
constexpr std::wstring_view kBeforeJump = L"_before";

constexpr const wchar_t* kAllNotes = L"*";  // no file has this name

constexpr std::chrono::days kLongestCatchUp(7);
// A clock that goes further back was wrong before, or is now.
constexpr std::chrono::hours kLongestWayBack(26);
constexpr std::chrono::minutes kMinute(1);
constexpr std::size_t kLongestText = 30'000;  // characters; a store may take few more

LocalMinute beginOfDay(LocalMinute moment) {
  return std::chrono::floor<std::chrono::days>(moment);
}

bool isFar(LocalMinute from, LocalMinute to) {
  return to - from > kLongestWayBack;
}

/// Whether a clock that goes back can bring the moment again. A whole day comes again with any of
/// its minutes: what is a little more than a day can reach into the day before the last. What is
/// further ahead rang while the clock was wrong.
bool canComeAgain(const DueNote& rung, LocalMinute now) {
  if (isFar(now, rung.moment)) return false;
  if (isDueAllDay(rung.fileName)) {
    return beginOfDay(rung.moment) + std::chrono::days(2) >= beginOfDay(now);
  }
  return !isFar(rung.moment, now);
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

std::vector<DueNote> toVector(const std::set<DueNote>& notes) {
  return {notes.begin(), notes.end()};
}

/// What is known under one name is known under another as well.
void copyRung(std::set<DueNote>& notes, std::wstring_view from, std::wstring_view to) {
  for (const DueNote& note : toVector(notes)) {
    if (equalIgnoringCase(note.fileName, from)) notes.insert({note.moment, std::wstring(to)});
  }
}

void dropRung(std::set<DueNote>& notes, std::wstring_view name) {
  std::erase_if(notes,
                [name](const DueNote& note) { return equalIgnoringCase(note.fileName, name); });
}

}  // namespace

std::vector<DueNote> CatchUp::missedBefore(LocalMinute now, const ReadNotes& read,
                                           const IsQueuedToday& isQueuedToday) {
  if (!comfort_.Catch_up) {
    forget(now);
    return {};
  }
  std::vector<DueNote> missed = takeOver(now);
  followJump(now);
  const std::optional<LocalMinute>& seen = known_.seen;
  // The clock went back.
  if (seen && *seen > now) known_.rung.insert(rungThisRun_.begin(), rungThisRun_.end());
  if (seen && *seen < now - kMinute) add(kAllNotes, *seen);
  std::vector<DueNote> found = lookForUnread(now, read);
  std::erase_if(found, [&](const DueNote& due) {
    return isDueAllDay(due.fileName) && beginOfDay(due.moment) == beginOfDay(now) &&
           isQueuedToday(due.fileName);
  });
  known_.rung.insert(found.begin(), found.end());
  rungThisRun_.insert(found.begin(), found.end());
  missed.insert(missed.end(), found.begin(), found.end());
  return latestOfEach(std::move(missed));
}

/// What the run before left. Who chose Catch_up only in the middle of a run saw what rang by then.
std::vector<DueNote> CatchUp::takeOver(LocalMinute now) {
  if (std::exchange(tookOver_, true)) return {};
  known_ = stored(L"");
  beforeJump_ = stored(kBeforeJump);
  jumpedTo_ = textToMoment(take(kJumpedTo, L""));
  std::vector<DueNote> waiting = textToDueNotes(take(kWaiting, L""), now);
  // They rang, too: the run before may have come to its end before it could say so. What is still
  // to come rang while the clock was wrong.
  for (const DueNote& note : waiting) {
    if (note.moment <= std::max(now, known_.seen.value_or(now))) known_.rung.insert(note);
  }
  if (!known_.seen) begin(now);
  return waiting;
}

CatchUp::Known CatchUp::stored(std::wstring_view suffix) {
  Known known;
  known.seen = textToMoment(take(kSeen, suffix));
  for (DueNote& note : textToDueNotes(take(kRung, suffix), std::nullopt)) {
    known.rung.insert(std::move(note));
  }
  for (DueNote& note : textToDueNotes(take(kUnread, suffix), std::nullopt)) {
    known.unread.emplace(std::move(note.fileName), note.moment);
  }
  return known;
}

/// By a jump back from a wrong clock, or forward to the right one, what was known before counts.
void CatchUp::followJump(LocalMinute now) {
  if (!known_.seen) return;
  const bool back = isFar(now, *known_.seen);
  if (!back && !isFar(*known_.seen, now)) return;
  Known left{known_.seen, allRung(), known_.unread};
  const std::optional<LocalMinute>& before = beforeJump_.seen;
  if (before && *before <= now && (back || *before > *known_.seen)) {
    known_ = std::move(beforeJump_);
    rungThisRun_.clear();
  } else if (back) {
    begin(now);
  }
  beforeJump_ = std::move(left);
  jumpedTo_ = now;
}

/// Nobody knows when it was looked last: not before what rang by now.
void CatchUp::begin(LocalMinute now) {
  const auto isStillToCome = [now](const DueNote& note) { return note.moment > now; };
  std::erase_if(known_.rung, isStillToCome);
  std::erase_if(rungThisRun_, isStillToCome);
  std::erase_if(known_.unread, [now](const auto& entry) { return entry.second >= now; });
  known_.seen.reset();
  const std::set<DueNote> rung = allRung();
  if (!rung.empty()) known_.seen = rung.rbegin()->moment;
}

/// A later tick must not find what is old by then, be it of the run before.
void CatchUp::forget(LocalMinute now) {
  takeOver(now);
  known_ = {};
  rungThisRun_.clear();
  beforeJump_ = {};
  jumpedTo_.reset();
  for (const auto& [key, text] : std::map(inStore_)) store(key, L"");
}

std::vector<DueNote> CatchUp::lookForUnread(LocalMinute now, const ReadNotes& read) {
  if (known_.unread.empty()) return {};
  const Unread unread = std::exchange(known_.unread, {});
  const auto all = unread.find(kAllNotes);
  std::vector<std::wstring> names;
  LocalMinute first = now;
  for (const auto& [name, after] : unread) {
    if (all == unread.end()) names.push_back(name);
    first = std::min(first, after);
  }
  AlarmNoteReader notes = read(names);
  if (notes.folderIsAway()) {
    known_.unread = unread;
    return {};
  }
  const auto since = [&](const std::wstring& name) {
    const auto own = unread.find(name);
    const LocalMinute ofAll = all == unread.end() ? now : all->second;
    return own == unread.end() ? ofAll : std::min(ofAll, own->second);
  };
  first = std::max(first, now - kLongestCatchUp);
  std::vector<DueNote> found = dueBetween(notes, first, now - kMinute);
  std::erase_if(found,
                [&](const DueNote& due) { return due.moment <= since(due.fileName) || rang(due); });
  for (const std::wstring& name : notes.takeUnread()) add(name, since(name));
  return found;
}

void CatchUp::add(const std::wstring& name, LocalMinute after) {
  const auto [entry, isNew] = known_.unread.try_emplace(name, after);
  if (!isNew) entry->second = std::min(entry->second, after);
}

bool CatchUp::rang(const DueNote& note) const {
  return known_.rung.contains(note) || rungThisRun_.contains(note);
}

std::set<DueNote> CatchUp::allRung() const {
  std::set<DueNote> both = known_.rung;
  both.insert(rungThisRun_.begin(), rungThisRun_.end());
  return both;
}

AlarmQueue CatchUp::stillToRing(LocalMinute moment, AlarmQueue due) {
  if (!comfort_.Catch_up) return due;
  AlarmQueue ringing;
  std::set<DueNote> wholeDay;
  while (due.pending() > 0) {
    DueNote note{moment, due.takeNext()};
    const bool allDay = isDueAllDay(note.fileName);
    if (allDay) note.moment = beginOfDay(moment);
    if (known_.rung.contains(note)) continue;
    ringing.append(note.fileName);
    (allDay ? wholeDay : rungThisRun_).insert(std::move(note));
  }
  // Only now: a note can be in the queue of its day more than once.
  known_.rung.merge(wholeDay);
  return ringing;
}

void CatchUp::checked(LocalMinute now) {
  if (!comfort_.Catch_up) return;
  known_.seen = now;
  // What rings while a note cannot be read is not shown again once it can.
  LocalMinute unreadSince = now;
  for (const auto& [name, after] : known_.unread) unreadSince = std::min(unreadSince, after);
  unreadSince = std::max(unreadSince, now - kLongestCatchUp);
  const auto isOver = [&](const DueNote& note) {
    const bool isAsked = note.moment > unreadSince && note.moment <= now;
    return !isAsked && !canComeAgain(note, now);
  };
  std::erase_if(known_.rung, isOver);
  std::erase_if(rungThisRun_, isOver);
  // A day later the clock is what everybody goes by.
  if (jumpedTo_ && (isFar(*jumpedTo_, now) || isFar(now, *jumpedTo_))) {
    beforeJump_ = {};
    jumpedTo_.reset();
  }
  store(beforeJump_, kBeforeJump);
  store(std::wstring(kJumpedTo), jumpedTo_ ? momentToText(*jumpedTo_) : L"");
  store({known_.seen, allRung(), known_.unread}, L"");
}

void CatchUp::couldNotRead(LocalMinute moment, const std::vector<std::wstring>& names) {
  if (!comfort_.Catch_up) return;
  if (names.empty()) add(kAllNotes, moment - kMinute);
  for (const std::wstring& name : names) add(name, moment - kMinute);
}

void CatchUp::noteCopied(std::wstring_view from, std::wstring_view to) {
  copyRung(known_.rung, from, to);
  copyRung(rungThisRun_, from, to);
}

void CatchUp::noteRenamed(std::wstring_view from, std::wstring_view to) {
  noteCopied(from, to);
  for (const auto& [name, after] : Unread(known_.unread)) {
    if (equalIgnoringCase(name, from)) add(std::wstring(to), after);
  }
  // Only the letters' case can have changed.
  if (!equalIgnoringCase(from, to)) noteDeleted(from);
}

void CatchUp::noteDeleted(std::wstring_view name) {
  dropRung(known_.rung, name);
  dropRung(rungThisRun_, name);
  std::erase_if(known_.unread,
                [name](const auto& entry) { return equalIgnoringCase(entry.first, name); });
}

void CatchUp::remember(const std::vector<DueNote>& waiting) {
  // What the run before left is still to be taken over.
  if (!tookOver_) return;
  store(std::wstring(kWaiting), textThatFits(waiting));
  store(std::wstring(kRung), textThatFits(toVector(allRung())));
}

/// What stands in the store, which is known from then on.
std::wstring CatchUp::take(std::wstring_view key, std::wstring_view suffix) {
  const std::wstring name = std::wstring(key) + std::wstring(suffix);
  return inStore_[name] = store_.get(kComfortSection, name, L"");
}

/// The minute last: whatever it is stored with counts up to it.
void CatchUp::store(const Known& known, std::wstring_view suffix) {
  const auto keyOf = [suffix](std::wstring_view key) {
    return std::wstring(key) + std::wstring(suffix);
  };
  std::vector<DueNote> unread;
  for (const auto& [name, after] : known.unread) unread.push_back({after, name});
  store(keyOf(kRung), textThatFits(toVector(known.rung)));
  store(keyOf(kUnread), textThatFits(std::move(unread)));
  store(keyOf(kSeen), known.seen ? momentToText(*known.seen) : L"");
}

/// The reminders go on all the same.
void CatchUp::store(const std::wstring& key, const std::wstring& text) {
  std::wstring& known = inStore_[key];
  if (text == known) return;
  try {
    store_.save(kComfortSection, key, text);
    known = text;
  } catch (const Failure& failure) {
    if (!std::exchange(faultHeard_, true)) fault_ = failure.message();
  }
}

std::wstring CatchUp::takeFault() {
  return std::exchange(fault_, {});
}

}  // namespace kalvora
