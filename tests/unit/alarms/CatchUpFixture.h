#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "fakes/AlarmWorld.h"

namespace kalvora {

/// The program, started anew as often as a test wants, with one note that is due daily at 7:30.
class CatchingUp : public AlarmWorld {
 protected:
  using Calls = std::vector<std::wstring>;

  CatchingUp() {
    comfort.Catch_up = true;
    folder.notes[L"Gym.tx1"] = "7|30|x";
  }

  void setDate(int month, int day) {
    using namespace std::chrono;
    clock.time.month = month;
    clock.time.day = day;
    const sys_days date = year{2026} / month / day;
    clock.time.weekday = static_cast<int>(weekday(date).c_encoding());
  }
  /// A start of the program; the one before was killed.
  void start() {
    program = std::make_unique<AlarmCheck>(ports(), host);
    program->updateAtStart(folder.listed());
  }
  void startAt(int day, int hour, int minute) {
    setDate(3, day);
    setTime(hour, minute, 30);
    start();
  }
  void checkAt(int hour, int minute) {
    setTime(hour, minute, 1);
    program->Spr1m();
  }
  /// All that is shown until nothing waits, each with the moment of one that was missed.
  Calls shows() {
    while (program->hasReminders()) program->Sprawdz_jeden_alarm();
    host.shownNotes.clear();
    Calls shown;
    for (const std::wstring& call : host.takeCalls()) {
      if (call.starts_with(L"load ")) shown.push_back(call.substr(5));
      if (call.starts_with(L"due ")) shown.back() = call.substr(4);
    }
    return shown;
  }

  std::unique_ptr<AlarmCheck> program;
};

}  // namespace kalvora
