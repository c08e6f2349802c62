#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "alarms/AlarmHost.h"

namespace kalvora {

/// A main window that records what the alarms ask of it, one line a call.
class FakeAlarmHost : public AlarmHost {
 public:
  bool shown() const override { return isShown; }
  bool comingOut() const override { return sliding; }
  void playAlarmSound() override { record(L"sound"); }
  void Nastepny_Load_Formy() override { record(L"show window"); }
  void odczytaj(std::wstring_view fileName) override { record(L"load " + std::wstring(fileName)); }
  void Aktualizuj_Scrool(std::wstring_view fileName) override {
    record(L"scroll " + std::wstring(fileName));
  }
  void Pokaz_Tekst(std::wstring_view text) override {
    record(L"title [" + std::wstring(text) + L"]");
  }
  void Odczytaj_na_przycisku() override { record(L"browse"); }
  void lockTextBoxes() override {
    locked = true;
    record(L"lock");
  }
  void unlockTextBoxes() override {
    locked = false;
    record(L"unlock");
  }
  void hideMainButtons() override {
    buttonsHidden = true;
    record(L"hide buttons");
  }
  void showMainButtons() override {
    buttonsHidden = false;
    record(L"show buttons");
  }
  void showError(std::wstring_view text, std::wstring_view title) override {
    record(std::wstring(title) + L" " + std::wstring(text));
  }

  /// The calls since it was last asked.
  std::vector<std::wstring> takeCalls() { return std::exchange(calls, {}); }

  bool isShown = false;
  bool sliding = false;
  bool locked = false;
  bool buttonsHidden = false;
  std::vector<std::wstring> calls;
  std::function<void(const std::wstring&)> during;  // what else happens while a call runs

 private:
  void record(const std::wstring& call) {
    calls.push_back(call);
    if (during) during(call);
  }
};

}  // namespace kalvora
