#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "app/ButtonActions.h"
#include "app/ButtonBar.h"
#include "app/ButtonNames.h"
#include "app/Form1Ports.h"
#include "app/MainCommands.h"
#include "app/MainWindowOptions.h"
#include "app/NoteBrowser.h"
#include "app/ReminderDisplay.h"
#include "app/ReminderSnooze.h"
#include "app/Sounds.h"
#include "app/TitleTimers.h"
#include "app/TrayMouse.h"
#include "app/WindowMotion.h"
#include "base/Image.h"
#include "base/InputFilters.h"
#include "notes/HourDisplay.h"
#include "notes/NoteKind.h"
#include "skin/SkinnedWindow.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// Whether a skin is put on at start-up or while the program runs.
enum class SkinChange { AtStart, WhileRunning };

/// The main window's presenter: brings the program up and down and gives each event to the part
/// that decides about it.
class Form1 : public NoteFollower, private TrayActions {
 public:
  /// All that `ports` refers to must outlive this object.
  explicit Form1(const Form1Ports& ports);

  OptionsHost& optionsHost() { return options_; }

  /// Load the form: brings the whole program up.
  void Form_Load();
  /// Whether the user can reach the program, which a start that failed early does not come to.
  bool started() const { return started_; }
  /// The end of the start: throws Failure for the guard to tell which settings could not be read.
  /// Apart from Form_Load, so that nothing of the start waits for the user to answer.
  void tellUnreadableSettings() const;
  /// Load the form the next time: shows the window at its saved place and slides it in.
  void Nastepny_Load_Formy();
  /// End of Kalvora: saves the window's place, removes the tray icon and ends the program.
  void Koniec_Kalvora();
  /// The same at the end of the session, where nobody would answer a message of drafts.
  void endWithSession();
  /// Load a skin to the form: the one that the setting "Last_skin" chooses. A skin that is not
  /// whole is told to the user; at start-up it ends the program.
  void Load_skin_to_form(SkinChange change);

  void Form_MouseDown(MouseButton button, Point at);
  /// The second press of a double click: a button that sends the window away, and acted at the
  /// first, does not take it.
  void Form_MouseDownAgain(MouseButton button, Point at);
  void mouseMove(MouseButton held, Point at);
  void mouseUp(MouseButton button, Point at);
  /// The mouse went to another window in the middle of a press.
  void mouseLost();
  /// The user closes the window by the keyboard: if it is out, it goes back to the tray.
  void closeByKeyboard();
  bool showsReminder() const { return alarms_.showsReminder(); }
  /// The reminder on show by its number; nothing while none can be seen.
  std::optional<unsigned> reminderOnShow() const { return alarms_.reminderToPutOff(); }
  /// Whether a key that asks for it means anything as things are.
  bool takes(MainCommand command) const;
  /// The user asks for it by a key. What a button does is done while the button is to be seen only,
  /// but a reminder is put off and away without a face, too.
  void act(MainCommand command);
  void AmPmLabel_Click();
  /// The user typed in the title: it keeps to what a note may be named with.
  void Text1_Change();
  /// The user typed or pasted in the text: each of its line ends is seen as one.
  void Text2_Change();
  /// The user typed in the time: it keeps to digits and ":".
  void Text3_Change();
  /// What is typed and not saved, here and in the note editor, is kept as drafts.
  void keepTyped();
  /// The same where the session may end at any moment: with Keep_typing the notes are saved.
  void saveTyped();
  /// With Keep_typing what is typed in the main window is saved.
  void saveMainWindow() noexcept;
  /// Monitors came, went or changed: what is out stays where it can be seen.
  void desktopChanged();
  /// The computer woke up, or its clock was set.
  void clockChanged();
  /// A button pressed without the mouse; one that is not to be seen does nothing.
  void pressButton(ButtonId button);
  /// The tray icon's mouse message `message`.
  void pichook_MouseMove(int message);
  void timerTick(TimerId timer);

  // What the note editor needs when it closes.
  HourFormat hourFormat() const { return hourFormatOf(settings_.AmPm); }
  /// The kinds of notes that the user has; the safety copies ask for them, too.
  NoteKinds noteKinds() const { return knownKinds(settings_.comfort); }
  void Update_All_Al() { alarms_.Update_All_Al(); }
  bool keepsTyping() const { return settings_.comfort.Keep_typing; }
  void showFirstNote();

  // What becomes of notes, by whomever.
  void noteCopied(std::wstring_view from, std::wstring_view to) override {
    alarms_.noteCopied(from, to);
  }
  void noteRenamed(std::wstring_view from, std::wstring_view to) override {
    alarms_.noteRenamed(from, to);
    notes_.noteRenamed(from, to);
  }
  void noteDeleted(std::wstring_view name) override {
    alarms_.noteDeleted(name);
    notes_.noteDeleted(name);
  }
  void noteWritten(std::wstring_view name) override {
    alarms_.noteWritten(name);
    notes_.noteWritten(name);
  }

  // What the window of what comes needs.
  std::vector<DueNote> remindersPutOff() { return alarms_.snoozed(); }
  std::vector<DueNote> remindersNotSeen() const { return alarms_.notSeen(); }
  std::optional<NoteTime> rememberedTime(NoteKind kind, const ListedFile& note) const {
    return alarms_.rememberedTime(kind, note);
  }

  const SkinnedWindow& window() const { return window_; }
  NamedButtons namedButtons() const { return kalvora::namedButtons(window_, settings_.comfort); }

  /// The window's picture at the size it has now.
  Image picture(Size window) const { return window_.paint(window); }
  /// The part of the picture that changed since the last call.
  Rect takeChanged() { return window_.takeDirty(); }

 private:
  void bringOutFromTray() override;
  void toggleFromTray() override;
  void openTrayMenu() override;

  void end();
  void loadIcon();
  void wearSkin(Skin skin);
  void dragWindow();
  void openMenuOverWindow();
  /// At its button, or in the middle of the window where the skin has none.
  void openSnoozeMenu();
  void slideOneStep();
  void drawCurrentDate();
  void drawTitle();

  Form1Ports ports_;
  Settings settings_;
  SkinnedWindow window_;
  TitleTimers scrollTimers_;
  TitleScroller scroller_;
  Sounds sounds_;
  NoteBrowser notes_;
  ButtonBar buttons_;
  WindowMotion motion_;
  ReminderDisplay reminders_;
  AlarmCheck alarms_;
  ReminderSnooze snoozing_;
  std::optional<unsigned> reminderUnderPress_;  // of the mouse
  ButtonActions buttonActions_;
  MainWindowOptions options_;
  TrayMouse trayMouse_;
  std::wstring unreadableSettings_;
  bool started_ = false;
  bool ended_ = false;
};

}  // namespace kalvora
