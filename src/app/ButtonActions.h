#pragma once

#include "alarms/AlarmCheck.h"
#include "app/Form1View.h"
#include "app/NoteBrowser.h"
#include "app/ReminderDisplay.h"
#include "app/ReminderSnooze.h"
#include "app/Sounds.h"
#include "app/WindowMotion.h"

namespace kalvora {

/// What the buttons of the main window do.
class ButtonActions {
 public:
  /// All must outlive this object.
  ButtonActions(Form1View& view, const Settings& settings, Sounds& sounds, NoteBrowser& notes,
                WindowMotion& motion, const ReminderDisplay& reminders, ReminderSnooze& snoozing,
                AlarmCheck& alarms);

  void act(ButtonId button);
  /// Rolls the note area, with its sound.
  void rollNotes();
  /// Buttons_Close: the window goes back to the tray, or the next reminder comes.
  void minimize();
  /// Puts a reminder on show away: the next one comes, or the window goes, unless it was out before
  /// the reminder. Without one it goes.
  void dismissAndSlideOut();
  /// Puts the reminder on show off for the minutes of the setting, and away as minimize() does.
  /// Without one it does nothing.
  void snooze();
  /// The same until a moment that the user chooses in a menu at this place of the window.
  void snoozeMenu(Point at);
  /// Puts the reminder on show away as minimize() does. Without one it does nothing.
  void done();

 private:
  void deleteFast();
  void afterPuttingOff();
  void actOnNotes(ButtonId button);
  void turnPage(void (NoteBrowser::*go)());
  void saveNote();
  void slideOut();

  Form1View& view_;
  const Settings& settings_;
  Sounds& sounds_;
  NoteBrowser& notes_;
  WindowMotion& motion_;
  const ReminderDisplay& reminders_;
  ReminderSnooze& snoozing_;
  AlarmCheck& alarms_;
};

}  // namespace kalvora
