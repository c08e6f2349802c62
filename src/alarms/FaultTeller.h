#pragma once

#include <set>
#include <string>
#include <vector>

#include "alarms/AlarmHost.h"
#include "alarms/AlarmNoteReader.h"

namespace kalvora {

/// Tells the user about the notes that one kind of rebuild found faulty.
class FaultTeller {
 public:
  /// One message for each note that was refused for its length, every time; and one for all that
  /// cannot be read. Such a note is told of once: again only after a rebuild that could read it.
  void tell(const std::vector<FaultyNote>& faults, AlarmHost& host);

 private:
  std::set<std::wstring> unreadable_;  // of the last rebuild
};

}  // namespace kalvora
