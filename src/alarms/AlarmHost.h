#pragma once

#include <string_view>

#include "alarms/DueNote.h"

namespace kalvora {

/// What the alarms need of the main window. Every call may show a message box, and so run timers
/// and button handlers before it returns; any may throw.
class AlarmHost {
 public:
  virtual ~AlarmHost() = default;

  /// Whether the window is out on the screen; not while it slides in.
  virtual bool shown() const = 0;
  /// Whether it slides in.
  virtual bool comingOut() const = 0;

  /// Plays the sound of the setting "Snd_Alarm", shows the window at its place and starts to slide
  /// it in.
  virtual void comeOut() = 0;
  /// Shows a note file in the window.
  virtual void odczytaj(std::wstring_view fileName) = 0;
  /// Has the title strip say `title`, and the name of the note file for whoever puts the title
  /// away.
  virtual void holdTitle(std::wstring_view title, std::wstring_view fileName) = 0;
  /// Shows when a note came due, in place of when it was written.
  virtual void showMoment(const DueNote& note) = 0;
  /// Text1, Text2 and Text3 are read-only, Buttons_main_01 to Buttons_main_05 hidden: nothing of a
  /// reminder is changed, nor is another note shown over it.
  virtual void lockNote() = 0;
  virtual void unlockNote() = 0;
  /// Shows the current note of normal browsing.
  virtual void Odczytaj_na_przycisku() = 0;

  /// A message box with the critical-stop icon.
  virtual void showError(std::wstring_view text, std::wstring_view title) = 0;
};

}  // namespace kalvora
