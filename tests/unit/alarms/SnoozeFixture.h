#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "fakes/AlarmWorld.h"

namespace kalvora {

/// The program, started anew as often as a test wants, with one note that is due daily at 7:30. The
/// program before is killed: it stores nothing more.
class Snoozing : public AlarmWorld {
 protected:
  static constexpr std::wstring_view kStored = L"Snooze/Put_off";

  Snoozing() { folder.notes[L"Gym.tx1"] = "7|30|x"; }

  static LocalMinute at(int day, int hour, int minute) {
    using namespace std::chrono;
    return local_days(year(2026) / 3 / day) + hours(hour) + minutes(minute);
  }
  void setClock(LocalMinute moment, int second) {
    clock.time = timeOf(moment);
    clock.time.second = second;
  }
  void startAt(int day, int hour, int minute) {
    setClock(at(day, hour, minute), 30);
    host.isShown = false;
    host.shownNotes.clear();
    program = std::make_unique<AlarmCheck>(ports(), host);
    program->updateAtStart(folder.listed());
    if (program->pending() > 0) program->Sprawdz_jeden_alarm();
  }
  void checkAt(int day, int hour, int minute) {
    setClock(at(day, hour, minute), 1);
    program->Spr1m();
  }
  /// Puts the reminder on show off, and away.
  void putOff(LocalMinute moment) {
    const std::optional<unsigned> reminder = program->reminderToPutOff();
    ASSERT_TRUE(reminder);
    ASSERT_TRUE(program->putOff(*reminder, moment));
    program->Sprawdz_jeden_alarm();
  }
  /// The gym of the second of March rings at 7:30, and is put off.
  void putGymOff(LocalMinute moment) {
    startAt(2, 7, 29);
    checkAt(2, 7, 30);
    putOff(moment);
    host.shownNotes.clear();
  }
  Names comes() { return host.putAwayAll(*program); }
  Names comesAt(int day, int hour, int minute) {
    checkAt(day, hour, minute);
    return comes();
  }
  std::wstring stored() const {
    const auto found = store.values.find(std::wstring(kStored));
    return found == store.values.end() ? L"(never)" : found->second;
  }

  std::unique_ptr<AlarmCheck> program;
};

}  // namespace kalvora
