#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "alarms/AlarmQueue.h"
#include "alarms/DueNote.h"
#include "base/Comfort.h"
#include "base/SettingsStore.h"

namespace kalvora {

/// What came due while the computer slept or the program was off, for a user who chose Catch_up. It
/// remembers in the settings, for the next run, up to which minute was looked ("Seen"), what could
/// not be read since ("Unread"), what rang and nobody put away yet ("Waiting"), and what rang
/// lately
/// ("Rung"). While Catch_up is off it does nothing.
///
/// Moments are those of the clock on the wall. Where that goes back, by hand or for the winter,
/// what rang in the time that comes again does not ring twice. One that jumps by more than a day
/// may be wrong: what was known before is kept for the next day, in which it may be put right.
class CatchUp {
 public:
  /// Reads the notes of these names, or all notes for none.
  using ReadNotes = std::function<AlarmNoteReader(const std::vector<std::wstring>& names)>;
  /// Whether somebody else looks for a monthly or yearly note that is due today.
  using IsQueuedToday = std::function<bool(const std::wstring& fileName)>;

  /// Both must outlive this object.
  CatchUp(const Comfort& comfort, SettingsStore& store) : comfort_(comfort), store_(store) {}

  /// Before the minute `now` is checked: what came due since the last one that was, each note once
  /// with its latest moment, the oldest first. The first time in a run that is with what the run
  /// before left.
  std::vector<DueNote> missedBefore(LocalMinute now, const ReadNotes& read,
                                    const IsQueuedToday& isQueuedToday);
  /// Those of the notes that are due at a moment that did not ring at it before this run, nor
  /// before the clock went back; takes note that they ring.
  AlarmQueue stillToRing(LocalMinute moment, AlarmQueue due);
  /// Whether this minute was the last one that was looked at.
  bool looked(LocalMinute now) const { return known_.seen == now; }
  /// The minute was checked.
  void checked(LocalMinute now);
  /// These notes could not be read, for none all of them, when those were looked for that are due
  /// at this moment: they are looked for again.
  void couldNotRead(LocalMinute moment, const std::vector<std::wstring>& names);
  /// What is known under one name is known under another as well, and does not ring again there.
  void noteCopied(std::wstring_view from, std::wstring_view to);
  /// What is known under one name is known under another.
  void noteRenamed(std::wstring_view from, std::wstring_view to);
  /// A new note of this name rings.
  void noteDeleted(std::wstring_view name);
  /// Remembers what nobody put away yet, and what rang.
  void remember(const std::vector<DueNote>& waiting);
  /// What keeps it from remembering, to be told once a run; empty where nothing does.
  std::wstring takeFault();

 private:
  /// File names, and after which minute each could not be read; one stands for all notes.
  using Unread = std::map<std::wstring, LocalMinute>;
  struct Known {
    std::optional<LocalMinute> seen;  // the last minute that was checked
    std::set<DueNote> rung;           // and do not ring again
    Unread unread;
  };

  std::vector<DueNote> takeOver(LocalMinute now);
  Known stored(std::wstring_view suffix);
  void followJump(LocalMinute now);
  void begin(LocalMinute now);
  void forget(LocalMinute now);
  std::vector<DueNote> lookForUnread(LocalMinute now, const ReadNotes& read);
  void add(const std::wstring& name, LocalMinute after);
  bool rang(const DueNote& note) const;
  std::set<DueNote> allRung() const;
  std::wstring take(std::wstring_view key, std::wstring_view suffix);
  void store(const Known& known, std::wstring_view suffix);
  void store(const std::wstring& key, const std::wstring& text);

  const Comfort& comfort_;
  SettingsStore& store_;
  bool tookOver_ = false;
  Known known_;
  // A save in its minute brings a note back, unless Once_a_minute says otherwise.
  std::set<DueNote> rungThisRun_;
  Known beforeJump_;
  std::optional<LocalMinute> jumpedTo_;
  std::map<std::wstring, std::wstring> inStore_;  // texts by keys
  std::wstring fault_;
  bool faultHeard_ = false;
};

}  // namespace kalvora
