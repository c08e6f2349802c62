#pragma once

#include "alarms/AlarmCheck.h"
#include "app/Form1View.h"
#include "app/Settings.h"
#include "base/Clock.h"
#include "base/Geometry.h"

namespace kalvora {

/// Puts the reminder on show off. Whether it then goes, and what comes, is left to the caller.
class ReminderSnooze {
 public:
  /// All must outlive this object.
  ReminderSnooze(Form1View& view, const Clock& clock, const Settings& settings, AlarmCheck& alarms)
      : view_(view), clock_(clock), settings_(settings), alarms_(alarms) {}

  /// For as long as the user usually wants. Returns whether there was one to be put off.
  bool putOff();
  /// Until a moment that the user chooses in a menu at this place, in pixels of the window. False
  /// also where none was chosen, or the reminder was put away meanwhile.
  bool putOffByMenu(Point at);

 private:
  LocalMinute now() const { return minuteOf(clock_.now()); }
  std::optional<LocalMinute> askMoment(Point at);
  std::optional<LocalMinute> askDate();

  Form1View& view_;
  const Clock& clock_;
  const Settings& settings_;
  AlarmCheck& alarms_;
};

}  // namespace kalvora
