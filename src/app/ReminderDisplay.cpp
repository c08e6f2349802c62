#include "app/ReminderDisplay.h"

namespace kalvora {

ReminderDisplay::ReminderDisplay(Form1View& view, NoteBrowser& notes, SkinnedWindow& window,
                                 TitleScroller& scroller, WindowMotion& motion,
                                 std::function<void()> playAlarm)
    : view_(view),
      notes_(notes),
      window_(window),
      scroller_(scroller),
      motion_(motion),
      playAlarm_(std::move(playAlarm)) {}

void ReminderDisplay::Aktualizuj_Scrool(std::wstring_view fileName) {
  scroller_.Aktualizuj_Scrool(fileName, ScrollText::FileName);
}

void ReminderDisplay::Pokaz_Tekst(std::wstring_view text) {
  heldTitle_ = text;
  drawTitle();
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
