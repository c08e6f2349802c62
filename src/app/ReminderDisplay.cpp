#include "app/ReminderDisplay.h"

namespace kalvora {

ReminderDisplay::ReminderDisplay(Form1View& view, const Settings& settings, Sounds& sounds,
                                 NoteBrowser& notes, SkinnedWindow& window, TitleScroller& scroller,
                                 WindowMotion& motion)
    : view_(view),
      settings_(settings),
      sounds_(sounds),
      notes_(notes),
      window_(window),
      scroller_(scroller),
      motion_(motion) {}

void ReminderDisplay::comeOut() {
  sounds_.Graj_dzwiek(settings_.Snd_Alarm);
  if (!goesIntoOpenWindow()) {
    // Before the reminder is taken from those that wait: it may be of this note, and get its name.
    notes_.saveQuietly();
    motion_.slideIn(Activation::LeaveKeyboard);
    return;
  }
  notes_.putAside();
  // As a window that comes out: its text is to be seen.
  if (settings_.WysRZF1) motion_.showRolledDown();
  view_.show(Activation::LeaveKeyboard);
}

/// One that follows another comes as that did.
bool ReminderDisplay::goesIntoOpenWindow() const {
  if (onShow_) return cameIntoOpenWindow();
  return settings_.comfort.Ring_while_out && motion_.shown() && !motion_.goingAway();
}

void ReminderDisplay::odczytaj(std::wstring_view fileName) {
  const NoteOpening opening = notes_.open(fileName);
  if (opening != NoteOpening::Shown) notes_.showInstead(fileName, opening);
}

void ReminderDisplay::holdTitle(std::wstring_view title, std::wstring_view fileName) {
  scroller_.Aktualizuj_Scrool(fileName, ScrollText::FileName);
  heldTitle_ = title;
  drawTitle();
}

void ReminderDisplay::showMoment(const DueNote& note) {
  notes_.showMoment(timeOf(note.moment),
                    isDueAllDay(note.fileName) ? ShownMoment::Date : ShownMoment::DateAndMinute);
}

void ReminderDisplay::cover() {
  releaseTitle();
  window_.setFaceVisible(Visible::No);
}

void ReminderDisplay::lockNote() {
  onShow_ = true;
  window_.setFaceVisible(Visible::Yes);
  notes_.setEditing(Editing::Locked);
  window_.setMainButtonsVisible(Visible::No);
}

void ReminderDisplay::unlockNote() {
  // No reminder came over what is typed, and the note is read anew next.
  if (!onShow_) notes_.saveQuietly();
  onShow_ = false;
  notes_.setEditing(Editing::Allowed);
  window_.setMainButtonsVisible(Visible::Yes);
}

void ReminderDisplay::drawTitle() {
  if (holdsTitle()) window_.Pokaz_Tekst(RowId::lit, heldTitle_);
}

void ReminderDisplay::Odczytaj_na_przycisku() {
  releaseTitle();
  if (!notes_.bringBack()) notes_.Odczytaj_na_przycisku();
}

void ReminderDisplay::showError(std::wstring_view text, std::wstring_view title) {
  view_.showError(title, text);
}

}  // namespace kalvora
