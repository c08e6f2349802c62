#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "alarms/AlarmNoteReader.h"

namespace kalvora {

/// Whether a note that is too large is told of once more.
enum class TellTooLarge { EachTime, Once };

/// Tells the user about the notes that one kind of rebuild found faulty: one message for each note
/// that was refused for its length, at each rebuild that the user asked for; and one for all that
/// cannot be read. Such a note is told of once: again only after a rebuild that could read it.
class FaultTeller {
 public:
  /// Takes in all that a rebuild found.
  void hear(const std::vector<FaultyNote>& faults, TellTooLarge told = TellTooLarge::EachTime);
  /// Takes in what was found of a few notes since the rebuild.
  void hearMore(const std::vector<FaultyNote>& faults, TellTooLarge told = TellTooLarge::EachTime);

  /// Hands over the messages for what was heard since the last call, in the order of telling.
  std::vector<std::wstring> takeMessages() { return std::exchange(messages_, {}); }

 private:
  // Since the last rebuild.
  std::set<std::wstring> unreadable_;
  std::set<std::wstring> tooLarge_;
  std::vector<std::wstring> messages_;
};

}  // namespace kalvora
