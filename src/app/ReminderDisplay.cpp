#include "app/ReminderDisplay.h"

#include <utility>

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
    motion_.slideIn(Activation::LeaveKeyboard);
    return;
  }
  if (!aside_) aside_ = notes_.putAside();
  // As a window that comes out: its text is to be seen.
  if (settings_.WysRZF1) motion_.showRolledDown();
  view_.show(Activation::LeaveKeyboard);
}

/// One that follows another comes as that did.
bool ReminderDisplay::goesIntoOpenWindow() const {
  if (onShow_) return cameIntoOpenWindow();
  return settings_.comfort.Ring_while_out && motion_.shown() && !motion_.goingAway();
}

void ReminderDisplay::keepAside() noexcept {
  if (aside_) notes_.draft().keepPaused(aside_->draft);
}

void ReminderDisplay::saveAside() noexcept {
  if (aside_) notes_.saveQuietly(*aside_);
}

void ReminderDisplay::odczytaj(std::wstring_view fileName) {
  notes_.saveQuietly();
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
  onShow_ = false;
  notes_.setEditing(Editing::Allowed);
  window_.setMainButtonsVisible(Visible::Yes);
}

void ReminderDisplay::drawTitle() {
  if (holdsTitle()) window_.Pokaz_Tekst(RowId::lit, heldTitle_);
}

void ReminderDisplay::Odczytaj_na_przycisku() {
  releaseTitle();
  const std::optional<NoteAside> aside = std::exchange(aside_, std::nullopt);
  aside ? notes_.bringBack(*aside) : notes_.Odczytaj_na_przycisku();
}

void ReminderDisplay::showError(std::wstring_view text, std::wstring_view title) {
  view_.showError(title, text);
}

}  // namespace kalvora
