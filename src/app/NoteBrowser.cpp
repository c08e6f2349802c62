#include "app/NoteBrowser.h"

#include <algorithm>

#include "base/Numbers.h"
#include "notes/NoteKind.h"
#include "notes/NoteReader.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kUntitled = L"Untiled";
constexpr std::wstring_view kNoNotes = L"Ther's no notes";
constexpr std::wstring_view kNoDate = L"                    ";

std::wstring_view captionOf(HalfOfDay half) {
  return half == HalfOfDay::Am ? L"AM" : L"PM";
}

}  // namespace

NoteBrowser::NoteBrowser(const Form1Ports& ports, const Settings& settings, SkinnedWindow& window,
                         TitleScroller& scroller)
    : ports_(ports),
      settings_(settings),
      window_(window),
      scroller_(scroller),
      notesPath_(ports.programFolder / L"notes"),
      currentName_(kKeepFileName) {}

void NoteBrowser::refresh() {
  File1_ = ports_.files.files(notesPath_, L"*");
}

void NoteBrowser::goToPrevious() {
  currentIndex_ = add16(currentIndex_, -1);
}

void NoteBrowser::goToNext() {
  currentIndex_ = add16(currentIndex_, 1);
}

void NoteBrowser::Odczytaj_na_przycisku() {
  const int count = static_cast<int>(File1_.size());
  currentIndex_ = toInt16(std::max(std::min<int>(currentIndex_, count - 1), 0));
  if (count == 0) {
    showNoNotes();
    return;
  }
  const std::wstring name = File1_[static_cast<std::size_t>(currentIndex_)];
  const std::wstring position = positionText();
  odczytaj(name);
  scroller_.Aktualizuj_Scrool(name, ScrollText::FileName);
  window_.Pokaz_Tekst(RowId::lit_xof, position);
}

void NoteBrowser::showNoNotes() {
  currentName_ = kKeepFileName;
  window_.Pokaz_Tekst(RowId::lit_czas, kNoDate);
  ports_.view.setFieldText(FieldId::Text2, L"");
  ports_.view.setFieldText(FieldId::Text1, kUntitled);
  ports_.view.setFieldText(FieldId::Text3, L"");
  window_.Pokaz_Tekst(RowId::lit_xof, L"0 of 0");
  ports_.view.setFieldEditing(FieldId::Text1, Editing::Allowed);
  scroller_.Aktualizuj_Scrool(kNoNotes, ScrollText::Plain);
}

std::wstring NoteBrowser::positionText() const {
  return numberToText(currentIndex_ + 1) + L" of " +
         numberToText(static_cast<std::int32_t>(File1_.size()));
}

void NoteBrowser::odczytaj(std::wstring_view name) {
  const std::filesystem::path file = notesPath_ / name;
  // Set before the tests, so that a refused file can still be deleted.
  currentName_ = file.wstring();
  if (!fileExists(ports_.files, notesPath_, name)) {
    refresh();
    return;
  }
  if (ports_.files.size(file).value_or(0) > kLargestNoteSize) {
    ports_.view.showError(L"Error!", L"The file: " + currentName_ + L" is too large to open!");
    return;
  }
  showFile(name);
}

void NoteBrowser::showFile(std::wstring_view name) {
  const std::filesystem::path file = notesPath_ / name;
  const std::string bytes = ports_.files.read(file, kLargestNoteSize);
  const ShownNote note = readNote(name, bytes, ports_.codePage, hourFormatOf(settings_.AmPm));
  window_.Pokaz_Tekst(RowId::lit_xof, positionText());
  window_.Pokaz_Tekst(RowId::lit_czas,
                      ports_.dateTexts.dateAndTime(ports_.files.lastWritten(file)));
  ports_.view.setFieldText(FieldId::Text1, note.title);
  ports_.view.setFieldText(FieldId::Text2, note.text);
  ports_.view.setFieldText(FieldId::Text3, note.time);
  // A note without a time leaves the half of the day that the user last saw.
  if (note.half) ports_.view.setFieldText(FieldId::AmPmLabel, captionOf(*note.half));
  if (!settings_.AmPm) ports_.view.setFieldText(FieldId::AmPmLabel, L"");
}

}  // namespace kalvora
