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
  motion_.slideIn(Activation::LeaveKeyboard);
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

void ReminderDisplay::lockNote() {
  notes_.setEditing(Editing::Locked);
  window_.setMainButtonsVisible(Visible::No);
}

void ReminderDisplay::unlockNote() {
  notes_.setEditing(Editing::Allowed);
  window_.setMainButtonsVisible(Visible::Yes);
}

void ReminderDisplay::drawTitle() {
  if (holdsTitle()) window_.Pokaz_Tekst(RowId::lit, heldTitle_);
}

void ReminderDisplay::Odczytaj_na_przycisku() {
  releaseTitle();
  notes_.Odczytaj_na_przycisku();
}

void ReminderDisplay::showError(std::wstring_view text, std::wstring_view title) {
  view_.showError(title, text);
}

}  // namespace kalvora
