#pragma once

#include <algorithm>
#include <string>

#include "Form1Fixture.h"

namespace kalvora {

/// A window of 200 × 161 pixels, 25 when rolled up, at home at (600, 300).
class WindowMotions : public Form1Test {
 protected:
  WindowMotions() {
    folder.write("skins/One/shapem.bmp", shape(161, 3).bytes());
    folder.write("skins/One/shapet.bmp", shape(25, 7).bytes());
    set(L"Window_X", L"600");
    set(L"Window_Y", L"300");
  }

  /// A shape picture with a corner of this many pixels cut away: the full outline begins at (3, 0),
  /// the rolled-up one at (7, 0).
  static BmpBuilder shape(int height, int corner) {
    BmpBuilder picture(201, height, 24, kInk);
    for (int x = 0; x < corner; ++x) picture.set(x, 0, kWhite);
    return picture;
  }

  void set(const std::wstring& key, const std::wstring& value) {
    store.values[L"Graph/" + key] = value;
  }

  int ticksUntilStopped(TimerId timer) {
    constexpr int kMany = 10000;
    int ticks = 0;
    for (; view.runs(timer) && ticks < kMany; ++ticks) tick(timer);
    return ticks;
  }

  void bringOut() {
    form().Form_Load();
    form().Nastepny_Load_Formy();
    ticksUntilStopped(TimerId::Timer1);
  }

  bool fieldsShown() const {
    return std::ranges::all_of(
        kAllFields, [&](FieldId field) { return view.at(field).visibility == Visibility::Shown; });
  }

  enum class Outline { Full, Rolled, None };
  Outline outline() const {
    if (!view.shape) return Outline::None;
    return view.shape->front().left == 3 ? Outline::Full : Outline::Rolled;
  }
};
}  // namespace kalvora
