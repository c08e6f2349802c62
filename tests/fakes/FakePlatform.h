#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/DateTexts.h"
#include "app/SoundPlayer.h"
#include "app/TrayIcon.h"
#include "base/Numbers.h"

namespace kalvora {

/// Remembers what became of the tray icon.
class FakeTrayIcon : public TrayIcon {
 public:
  void setPicture(const std::filesystem::path& iconFile) override { picture = iconFile; }
  void add(IconComes when) override {
    present = true;
    comes = when;
    ++adds;
  }
  void remove() override { present = false; }

  std::filesystem::path picture;
  bool present = false;
  int adds = 0;
  IconComes comes{};  // at the last add
};

/// Remembers what was played.
class FakeSounds : public SoundPlayer {
 public:
  void play(std::wstring_view waveFile) override { played.emplace_back(waveFile); }

  std::vector<std::wstring> played;
};

/// Dates as year-month-day, whatever the user's regional settings.
class FakeDateTexts : public DateTexts {
 public:
  std::wstring shortDate(const LocalTime& time) const override {
    return numberToText(time.year) + L"-" + numberToText(time.month) + L"-" +
           numberToText(time.day);
  }
  std::wstring dateAndTime(const LocalTime& time) const override {
    return dateAndMinute(time) + L":" + numberToText(time.second);
  }
  std::wstring dateAndMinute(const LocalTime& time) const override {
    return shortDate(time) + L" " + numberToText(time.hour) + L":" + numberToText(time.minute);
  }
};

}  // namespace kalvora
