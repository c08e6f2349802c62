#pragma once

#include "app/NoteBrowser.h"

namespace kalvora {

/// What a NoteBrowser asks of the rest of the program, which does nothing.
class FakeBrowserHost : public NoteBrowserHost, public ScrollTimers {
 public:
  bool remindersOnShow() const override { return false; }
  bool showsReminder() const override { return false; }
  bool Sprawdz_jeden_alarm() override { return true; }
  void slideOut() override {}
  void startScrool() override {}
  void stopScrool() override {}
  void startPoczekaj(int /*milliseconds*/) override {}
  void stopPoczekaj() override {}
};

}  // namespace kalvora
