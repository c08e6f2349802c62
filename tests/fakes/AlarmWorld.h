#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "fakes/FakeAlarmHost.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"

namespace kalvora {

/// The reminders with a folder, a clock and a window of a test's own. It is Monday, 2 March 2026.
class AlarmWorld : public testing::Test {
 protected:
  using Names = std::vector<std::wstring>;
  enum Weekday { kSunday, kMonday, kTuesday, kWednesday, kThursday, kFriday, kSaturday };

  AlarmPorts ports() { return {folder, codePage, clock, "notes", comfort, store}; }
  void setTime(int hour, int minute, int second) {
    clock.time.hour = hour;
    clock.time.minute = minute;
    clock.time.second = second;
  }
  void tickAt(int hour, int minute, int second) {
    setTime(hour, minute, second);
    alarms.Spr1m();
  }
  /// The notes that rang since it was last asked, in their order; those that wait come out first.
  Names rang() { return host.putAwayAll(alarms); }
  /// What rings in this minute, after what rang before.
  Names rangAt(int hour, int minute) {
    tickAt(hour, minute, 1);
    return rang();
  }

  FakeNoteFolder folder;
  Windows1252 codePage;
  FakeClock clock{LocalTime{2026, 3, 2, kMonday, 6, 0, 30}};
  FakeAlarmHost host;
  Comfort comfort;
  MemorySettingsStore store;
  AlarmCheck alarms{ports(), host};
};

}  // namespace kalvora
