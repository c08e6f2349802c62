#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <string>

#include "coming/WhatComes.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeComingHost.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/FakeWhatComesView.h"
#include "fakes/MemorySettingsStore.h"

namespace kalvora {

inline constexpr std::chrono::local_days kMondayOfNow{std::chrono::year(2026) / 11 / 23};

/// The window over a folder, a clock and a program of a test's own. It is Monday, 8:00.
class WhatComesTest : public testing::Test {
 protected:
  void setMinute(int day, int hour, int minute) {
    clock_.time.day = day;
    clock_.time.hour = hour;
    clock_.time.minute = minute;
  }
  std::wstring textOf(std::size_t row) {
    const ComingRow shown = form_.row(row).value();
    std::wstring text = momentToText(shown.moment).substr(0, 10);
    for (const ComingColumn column :
         {ComingColumn::Time, ComingColumn::Name, ComingColumn::Kind, ComingColumn::State}) {
      text += L"|" + form_.text(shown, column);
    }
    return text;
  }
  std::wstring selectedText() { return view_.selected ? textOf(*view_.selected) : L"none"; }
  void manyNotes() {
    for (int i = 0; i < 1000; ++i) folder_.notes[std::to_wstring(i) + L".tx1"] = "9|00|x";
  }

  FakeNoteFolder folder_;
  Windows1252 codePage_;
  FakeClock clock_{LocalTime{2026, 11, 23, 1, 8, 0, 30}};
  MemorySettingsStore settings_;
  FakeWhatComesView view_;
  FakeComingHost host_;
  WhatComes form_{{{folder_, codePage_, "notes"}, clock_, settings_, view_, host_}};
};

}  // namespace kalvora
