#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "alarms/DueNote.h"
#include "base/SettingsStore.h"

namespace kalvora {

/// The reminders that the user put off, each with the moment at which it comes back. One stands in
/// the settings until it came back and was put away, so that it outlives the program. Where
/// settings cannot be stored it holds for this run.
///
/// Moments are those of the clock on the wall. A note can be put off to several; names are compared
/// without regard to case.
class Snoozes {
 public:
  /// The store must outlive this object. What other copies of the program change in it is heeded.
  explicit Snoozes(SettingsStore& store) : store_(store) {}

  /// For how long a reminder is put off where nothing else is said: from a minute to a day, and ten
  /// minutes where the setting is no such number.
  std::chrono::minutes length() const;

  /// All, by moment.
  std::vector<DueNote> all();
  /// Those whose moment has come, by moment.
  std::vector<DueNote> dueBy(LocalMinute now);

  void add(const DueNote& note);
  /// The note of an entry comes at another moment instead. Stored at one stroke.
  void putOffAgain(const DueNote& note, LocalMinute moment);
  void remove(const std::vector<DueNote>& notes);
  /// Of these entries no note was found. One is dropped where its note is not there at a later
  /// minute either: who brings a newer version of a file may take the old one away first.
  void notFound(const std::vector<DueNote>& notes, LocalMinute now);
  void noteCopied(std::wstring_view from, std::wstring_view to);
  void noteRenamed(std::wstring_view from, std::wstring_view to);
  void noteDeleted(std::wstring_view name);

  /// What keeps it from storing, to be told once a run; empty where nothing does.
  std::wstring takeFault();

 private:
  void takeOver();
  void insert(const DueNote& note);
  std::vector<DueNote> entriesOfNote(std::wstring_view name) const;
  void store();

  SettingsStore& store_;
  std::set<DueNote> entries_;
  std::map<DueNote, LocalMinute> missingSince_;  // entries whose notes were not found
  std::wstring stored_;                          // the text that was last known to be in the store
  std::wstring fault_;
  bool faultHeard_ = false;
};

}  // namespace kalvora
