#pragma once

#include "app/AlarmLine.h"
#include "app/Form1View.h"
#include "app/Settings.h"
#include "base/Clock.h"
#include "notes/DraftTimer.h"
#include "notes/LiveDraft.h"
#include "notes/NoteStorage.h"

namespace kalvora {

/// Keeps what the user types in the main window and does not save: when something else comes into
/// the fields, when the program ends, and every few seconds for a program that is killed.
class MainWindowDraft {
 public:
  /// All must outlive this object. `read` is what the file of the note on show holds.
  MainWindowDraft(const NoteStorage& storage, const Clock& clock, Form1View& view,
                  const Settings& settings, const AlarmLine& alarmLine, const NoteAsRead& read);

  /// The fields are as the program begins: what they hold now is not typed.
  void begin() noexcept;
  /// The options were applied: what was not typed is not typed by them either.
  void followOptions();
  /// The user changed a field. Starts the timer that keeps it, unless it runs.
  void fieldChanged() { timer_.typed(); }
  /// Draft_Timer: keeps what is typed. Once; the next change starts it again, and so does a draft
  /// that could not be kept.
  void Draft_Timer();
  void keep() noexcept { live_.keep(); }
  /// Something comes over what is typed, and that is to come back.
  PausedDraft pause();
  void resume(const PausedDraft& paused);
  void keepPaused(PausedDraft& paused) noexcept { live_.keepPaused(paused); }
  /// Tells of a draft, of any window, that could not be kept: throws Failure. Of one editing it is
  /// told once, until its draft is kept again. For a moment at which nothing waits for the message.
  void tellLost();
  /// What the fields hold, as it is to be saved.
  TypedNote typed() const { return typed(inOwnKind_); }
  /// Whether that is not what the program put there.
  bool changed() const { return live_.changed(); }
  /// What the fields held at first.
  const std::optional<TypedNote>& begun() const { return live_.begun(); }
  /// By this number what the program put into the fields is known: another one where something else
  /// came on show. What comes back after a pause has its own again.
  unsigned filling() const { return filling_; }
  /// Whether what was typed could not be kept when that was tried last.
  bool isMissing() const { return live_.isMissing(); }
  /// What the fields hold was saved.
  void saved() noexcept { live_.saved(); }
  /// What is typed is not to be saved: it stays a draft, and counts as not typed from here on.
  void giveUp() noexcept;
  /// The note on show has another name, and was shown under that.
  void renamed(std::wstring_view name) { live_.renamed(name); }
  /// As saved() and giveUp(), of what was typed before a pause.
  void savedPaused(PausedDraft& paused) noexcept { live_.savedPaused(paused); }
  void giveUpPaused(PausedDraft& paused) noexcept { live_.giveUpPaused(paused); }

  /// The time in which the program fills the fields: what was typed is kept first, and what they
  /// hold at its end is not typed.
  class Filling {
   public:
    explicit Filling(MainWindowDraft& draft) : draft_(draft) {
      draft_.keep();
      draft_.filling_ = ++draft_.fillings_;
    }
    ~Filling() { draft_.begin(); }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

   private:
    MainWindowDraft& draft_;
  };

  /// The time of a save: what it did not save is kept at its end, however it ends.
  class Saving {
   public:
    explicit Saving(MainWindowDraft& draft) : draft_(draft) {}
    ~Saving() { draft_.keep(); }
    Saving(const Saving&) = delete;
    Saving& operator=(const Saving&) = delete;

   private:
    MainWindowDraft& draft_;
  };

 private:
  TypedNote typed(bool inOwnKind) const;

  SafetyCopies& copies_;
  Form1View& view_;
  const Settings& settings_;
  const AlarmLine& alarmLine_;
  const NoteAsRead& read_;
  bool inOwnKind_ = false;  // as Keep_typing was when the options were last followed
  unsigned fillings_ = 0;   // so far
  unsigned filling_ = 0;
  unsigned pausedFilling_ = 0;
  LiveDraft live_;
  DraftTimer timer_;
};

}  // namespace kalvora
