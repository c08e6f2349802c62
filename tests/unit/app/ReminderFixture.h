#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Form1Fixture.h"
#include "skin/BitmapFont.h"

namespace kalvora {

/// Reminders in the whole program: where they come from, and by which ways they are dismissed. It
/// is Saturday, 21 November 2026; the window comes out rolled down.
class Form1Reminders : public Form1Test {
 protected:
  using Titles = std::vector<std::wstring>;

  Form1Reminders() {
    store.values[L"Graph/WysRZF1"] = L"True";
    store.values[L"Sounds/Use_Sounds"] = L"True";
    store.values[L"Sounds/Snd_Alarm"] = L"ring.wav";
    store.values[L"Sys/AmPm"] = L"False";
    setTime(6, 0, 30);
  }

  void setTime(int hour, int minute, int second) {
    clock.time.hour = hour;
    clock.time.minute = minute;
    clock.time.second = second;
  }
  void minuteCheckAt(int hour, int minute, int second = 1) {
    setTime(hour, minute, second);
    tick(TimerId::Spr1m);
  }
  void doubleClickTray() { form().pichook_MouseMove(515); }
  /// The window out and at rest, showing the note of normal browsing.
  void openWindow() {
    doubleClickTray();
    settle();
  }

  bool reminderOnShow() const {
    return view.visible && view.at(FieldId::Text1).editing == Editing::Locked;
  }
  /// Puts away the reminder on show and each that comes after it. Their titles, in their order.
  Titles putAwayAll() { return putAwayAll(form()); }
  Titles putAwayAll(Form1& program) {
    constexpr std::size_t kMoreThanAnyTestHas = 10;
    Titles titles;
    for (settle(program); reminderOnShow() && titles.size() < kMoreThanAnyTestHas;
         settle(program)) {
      titles.push_back(text(FieldId::Text1));
      program.pressButton(ButtonId::Buttons_Close);
    }
    return titles;
  }

  std::ptrdiff_t timesBroughtOut() const { return std::ranges::count(view.calls, "show"); }

  bool titleStripReads(std::wstring_view text) {
    const SkinnedWindow& window = form().window();
    for (int cell = 0; cell < window.rowLength(RowId::lit); ++cell) {
      const auto place = static_cast<std::size_t>(cell);
      const wchar_t character = place < text.size() ? text[place] : L' ';
      const int glyph = window.glyphAt(RowId::lit, cell);
      const bool blank = character == L' ' && glyph == kBlankGlyph;
      if (!blank && glyph != glyphOf(character)) return false;
    }
    return window.rowLength(RowId::lit) > 0;
  }

  void expectReminder(std::wstring_view title, std::wstring_view content) {
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_EQ(text(FieldId::Text2), content);
    EXPECT_TRUE(titleStripReads(L" REMINDER"));
    expectFields(Editing::Locked);
    expectMainButtons(false);
  }
  void expectBrowsing(std::wstring_view title) {
    EXPECT_EQ(text(FieldId::Text1), title);
    expectFields(Editing::Allowed);
    expectMainButtons(true);
    tick(TimerId::scrool, 40);
    EXPECT_FALSE(titleStripReads(L" REMINDER"));
  }
  void expectFields(Editing editing) {
    for (const FieldId field : {FieldId::Text1, FieldId::Text2, FieldId::Text3}) {
      EXPECT_EQ(view.at(field).editing, editing) << static_cast<int>(field);
    }
  }
  void expectMainButtons(bool visible) {
    for (const ButtonId button : kEverySkinsButtons) {
      const bool main = button >= ButtonId::Buttons_main_01;
      EXPECT_EQ(form().window().buttonVisible(button), visible || !main)
          << static_cast<int>(button);
    }
  }
};

}  // namespace kalvora
