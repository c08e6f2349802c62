#pragma once

#include <string>

#include "alarms/AlarmHost.h"
#include "app/Form1View.h"
#include "app/NoteBrowser.h"
#include "app/Sounds.h"
#include "app/WindowMotion.h"
#include "skin/SkinnedWindow.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// Shows reminders in the main window: what the alarms want done with its parts.
class ReminderDisplay : public AlarmHost {
 public:
  /// All must outlive this object.
  ReminderDisplay(Form1View& view, const Settings& settings, Sounds& sounds, NoteBrowser& notes,
                  SkinnedWindow& window, TitleScroller& scroller, WindowMotion& motion);

  /// Whether the title strip says that this is a reminder. The note's own title, which its box
  /// shows too, does not scroll over it then.
  bool holdsTitle() const { return !heldTitle_.empty(); }

  /// Another note comes over the reminder on show. Its title scrolls, and no button offers what
  /// can be done with a reminder, until that comes again.
  void cover();

  /// Whether the reminder on show came into the window while that was out: it stays out after it.
  bool cameIntoOpenWindow() const { return notes_.hasAside(); }

  /// Draws that title again, in the row of a new skin.
  void drawTitle();

  bool shown() const override { return motion_.shown(); }
  bool comingOut() const override { return motion_.comingOut(); }
  /// The keyboard stays with what the user types in. With Ring_while_out a window that is out stays
  /// where it is: what was in it is put aside, and comes back after the last reminder.
  void comeOut() override;
  /// A message would be in its way, and under the title of a reminder the note shown before would
  /// pass for it: of a note that cannot be shown, whatever the reason, the title comes, and a
  /// sentence that says why.
  void odczytaj(std::wstring_view fileName) override;
  void holdTitle(std::wstring_view title, std::wstring_view fileName) override;
  void showMoment(const DueNote& note) override;
  void lockNote() override;
  void unlockNote() override;
  void Odczytaj_na_przycisku() override;
  void showError(std::wstring_view text, std::wstring_view title) override;

 private:
  Form1View& view_;
  const Settings& settings_;
  Sounds& sounds_;
  NoteBrowser& notes_;
  SkinnedWindow& window_;
  TitleScroller& scroller_;
  WindowMotion& motion_;
  bool goesIntoOpenWindow() const;
  void releaseTitle() { heldTitle_.clear(); }

  std::wstring heldTitle_;
  bool onShow_ = false;  // a reminder is
};

}  // namespace kalvora
