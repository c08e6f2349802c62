#pragma once

#include <functional>

#include "alarms/AlarmHost.h"
#include "app/Form1View.h"
#include "app/NoteBrowser.h"
#include "app/WindowMotion.h"
#include "skin/SkinnedWindow.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// Shows reminders in the main window: what the alarms want done with its parts.
class ReminderDisplay : public AlarmHost {
 public:
  /// All must outlive this object. `playAlarm` plays the sound of a reminder.
  ReminderDisplay(Form1View& view, NoteBrowser& notes, SkinnedWindow& window,
                  TitleScroller& scroller, WindowMotion& motion, std::function<void()> playAlarm);

  /// Whether the title strip says that this is a reminder. The note's own title, which its box
  /// shows too, does not scroll over it then.
  bool holdsTitle() const { return !heldTitle_.empty(); }

  /// Lets the title of the note that is shown next scroll, whatever is on show.
  void releaseTitle() { heldTitle_.clear(); }

  /// Draws that title again, in the row of a new skin.
  void drawTitle();

  bool shown() const override { return motion_.shown(); }
  bool comingOut() const override { return motion_.comingOut(); }
  void playAlarmSound() override { playAlarm_(); }
  /// The keyboard stays with what the user types in.
  void Nastepny_Load_Formy() override { motion_.slideIn(Activation::LeaveKeyboard); }
  void odczytaj(std::wstring_view fileName) override { notes_.odczytajReminder(fileName); }
  void Aktualizuj_Scrool(std::wstring_view fileName) override;
  void Pokaz_Tekst(std::wstring_view text) override;
  void Odczytaj_na_przycisku() override;
  void lockTextBoxes() override { notes_.setEditing(Editing::Locked); }
  void unlockTextBoxes() override { notes_.setEditing(Editing::Allowed); }
  void hideMainButtons() override { window_.setMainButtonsVisible(Visible::No); }
  void showMainButtons() override { window_.setMainButtonsVisible(Visible::Yes); }
  void showError(std::wstring_view text, std::wstring_view title) override;

 private:
  Form1View& view_;
  NoteBrowser& notes_;
  SkinnedWindow& window_;
  TitleScroller& scroller_;
  WindowMotion& motion_;
  std::function<void()> playAlarm_;
  std::wstring heldTitle_;
};

}  // namespace kalvora
