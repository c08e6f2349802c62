#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "alarms/AlarmHost.h"

namespace kalvora {

/// A main window that records what the alarms ask of it, one line a call.
class FakeAlarmHost : public AlarmHost {
 public:
  bool shown() const override { return isShown; }
  bool comingOut() const override { return sliding; }
  void comeOut() override { record(L"come out"); }
  void odczytaj(std::wstring_view fileName) override {
    onShow = fileName;
    shownNotes.emplace_back(fileName);
    record(L"load " + std::wstring(fileName));
  }
  void holdTitle(std::wstring_view title, std::wstring_view fileName) override {
    record(L"title [" + std::wstring(title) + L"] over " + std::wstring(fileName));
  }
  void showMoment(const DueNote& note) override {
    record(L"due " + momentToText(note.moment) + L" " + note.fileName);
  }
  void Odczytaj_na_przycisku() override {
    onShow.clear();
    record(L"browse");
  }
  void lockNote() override {
    locked = true;
    record(L"lock");
  }
  void unlockNote() override {
    locked = false;
    record(L"unlock");
  }
  void showError(std::wstring_view text, std::wstring_view title) override {
    record(std::wstring(title) + L" " + std::wstring(text));
  }

  /// The calls since it was last asked.
  std::vector<std::wstring> takeCalls() { return std::exchange(calls, {}); }
  /// Puts away the reminder on show and each that waits. The notes that were shown since it was
  /// last asked, in their order.
  std::vector<std::wstring> putAwayAll(AlarmCheck& alarms) {
    while (alarms.hasReminders()) alarms.Sprawdz_jeden_alarm();
    return std::exchange(shownNotes, {});
  }

  bool isShown = false;
  bool sliding = false;
  bool locked = false;
  std::wstring onShow;  // the note of the reminder
  std::vector<std::wstring> shownNotes;
  std::vector<std::wstring> calls;
  std::function<void(const std::wstring&)> during;  // what else happens while a call runs

 private:
  void record(const std::wstring& call) {
    calls.push_back(call);
    if (during) during(call);
  }
};

}  // namespace kalvora
