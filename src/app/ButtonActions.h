#pragma once

#include "alarms/AlarmCheck.h"
#include "app/Form1View.h"
#include "app/NoteBrowser.h"
#include "app/ReminderDisplay.h"
#include "app/Sounds.h"
#include "app/WindowMotion.h"

namespace kalvora {

/// What the buttons of the main window do.
class ButtonActions {
 public:
  /// All must outlive this object.
  ButtonActions(Form1View& view, const Settings& settings, Sounds& sounds, NoteBrowser& notes,
                WindowMotion& motion, const ReminderDisplay& reminders, AlarmCheck& alarms);

  void act(ButtonId button);
  /// Snooze was clicked with the right mouse button, at `at` in pixels of the window.
  void snoozeMenu(Point at);

  /// Rolls the note area, with its sound.
  void rollNotes();
  /// Buttons_Close: the window goes back to the tray, or the next reminder comes.
  void minimize();
  /// Puts a reminder on show away: the next one comes, or the window goes, unless it was out before
  /// the reminder. Without one it goes.
  void dismissAndSlideOut();

 private:
  void deleteFast();
  void snooze();
  void actOnNotes(ButtonId button);
  void saveNote();
  void slideOut();

  Form1View& view_;
  const Settings& settings_;
  Sounds& sounds_;
  NoteBrowser& notes_;
  WindowMotion& motion_;
  const ReminderDisplay& reminders_;
  AlarmCheck& alarms_;
};

}  // namespace kalvora
