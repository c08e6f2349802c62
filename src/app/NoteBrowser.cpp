#include "app/NoteBrowser.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "notes/NoteContent.h"
#include "notes/NoteKind.h"
#include "notes/NoteReader.h"
#include "notes/NoteSaving.h"
#include "notes/NoteWriter.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kUntitled = L"Untiled";
constexpr std::wstring_view kGone = L"This note is gone.";
constexpr std::wstring_view kUnreadable =
    L"This note cannot be read. Another program may have it open, or Windows keeps its name for a "
    L"device.";
constexpr std::wstring_view kTooLarge = L"This note is too large to be opened.";
constexpr std::wstring_view kNoNotes = L"Ther's no notes";
constexpr std::wstring_view kNoDate = L"                    ";

std::wstring_view sentenceFor(NoteOpening opening) {
  switch (opening) {
    case NoteOpening::TooLarge:
      return kTooLarge;
    case NoteOpening::Unreadable:
      return kUnreadable;
    default:
      return kGone;
  }
}

}  // namespace

NoteBrowser::NoteBrowser(const NoteStorage& storage, const Clock& clock, const DateTexts& dateTexts,
                         Form1View& view, const Settings& settings, SkinnedWindow& window,
                         TitleScroller& scroller)
    : storage_(storage),
      folder_(storage.folder, storage.files, storage.writer),
      dateTexts_(dateTexts),
      view_(view),
      settings_(settings),
      window_(window),
      scroller_(scroller),
      alarmLine_(view, settings),
      draft_(storage, clock, view, settings, alarmLine_, onShow_.read) {}

void NoteBrowser::refresh() {
  FolderListing listing = storage_.files.list(storage_.folder, L"*");
  listing.eraseWhere(isTemporaryName);
  File1_ = std::make_shared<const FolderListing>(std::move(listing));
  listIsOld_ = false;
}

const SharedListing& NoteBrowser::listOfNow() {
  if (listIsOld_) refresh();
  return File1_;
}

// While no note is listed, the place is kept for the time when the folder is back.
void NoteBrowser::goToPrevious() {
  if (!File1_->empty()) currentIndex_ = add16(currentIndex_, -1);
}

void NoteBrowser::goToNext() {
  if (!File1_->empty()) currentIndex_ = add16(currentIndex_, 1);
}

void NoteBrowser::Odczytaj_na_przycisku() {
  // The folder may have been away for a while, as one on a drive that was not plugged in.
  if (File1_->empty()) refresh();
  if (File1_->empty()) {
    currentIndex_ = std::max<std::int16_t>(currentIndex_, 0);
    showNoNotes();
    return;
  }
  const int count = static_cast<int>(File1_->size());
  currentIndex_ = toInt16(std::max(std::min<int>(currentIndex_, count - 1), 0));
  const std::wstring name = File1_->name(static_cast<std::size_t>(currentIndex_));
  const std::wstring position = positionText();
  odczytaj(name);
  // A message in there can have let another note come on show.
  if (onShow_.name != (storage_.folder / name).wstring()) return;
  scroller_.Aktualizuj_Scrool(name, ScrollText::FileName);
  showPosition(position);
}

void NoteBrowser::drawRows() {
  window_.Pokaz_Tekst(RowId::lit_xof, onShow_.position);
  window_.Pokaz_Tekst(RowId::lit_czas, onShow_.date);
}

void NoteBrowser::showPosition(std::wstring_view text) {
  onShow_.position = text;
  window_.Pokaz_Tekst(RowId::lit_xof, text);
}

void NoteBrowser::showDate(std::wstring_view text) {
  onShow_.date = text;
  window_.Pokaz_Tekst(RowId::lit_czas, text);
}

void NoteBrowser::showMoment(const LocalTime& time, ShownMoment shown) {
  showDate(shown == ShownMoment::Date ? dateTexts_.shortDate(time)
                                      : dateTexts_.dateAndMinute(time));
}

void NoteBrowser::showFirstAfterEditing() {
  refresh();
  goToFirst();
  view_.setFieldEditing(FieldId::Text2, File1_->empty() ? Editing::Allowed : Editing::Locked);
  Odczytaj_na_przycisku();
}

void NoteBrowser::showNoNotes() {
  const MainWindowDraft::Filling filling(draft_);
  onShow_.read = {};
  onShow_.name = kKeepFileName;
  onShow_.standIn = {};
  showDate(kNoDate);
  view_.setText(FieldId::Text2, L"");
  view_.setText(FieldId::Text1, kUntitled);
  alarmLine_.clear();
  showPosition(L"0 of 0");
  setTitleEditing(Editing::Allowed);
  scroller_.Aktualizuj_Scrool(kNoNotes, ScrollText::Plain);
}

std::wstring NoteBrowser::positionText() const {
  return numberToText(currentIndex_ + 1) + L" of " +
         numberToText(static_cast<std::int32_t>(File1_->size()));
}

void NoteBrowser::odczytaj(std::wstring_view name) {
  const NoteOpening opening = open(name);
  const std::wstring file = onShow_.name;
  if (opening == NoteOpening::TooLarge) {
    view_.showError(L"Error!", L"The file: " + file + L" is too large to open!");
    listIsOld_ = true;
  }
  // With Keep_typing the words of the note before would be saved as this one's.
  const bool isReplaced = opening == NoteOpening::Unreadable ||
                          (opening != NoteOpening::Shown && settings_.comfort.Keep_typing);
  // cppcheck-suppress knownConditionTrueFalse ; another note can come on show during the message
  if (isReplaced && onShow_.name == file) showInstead(name, opening);
}

NoteOpening NoteBrowser::open(std::wstring_view name) {
  const std::filesystem::path file = storage_.folder / name;
  // Set before the tests, so that a refused file can still be deleted.
  onShow_.name = file.wstring();
  onShow_.isShown = false;
  if (!storage_.files.fileExists(storage_.folder, name)) {
    refresh();
    return NoteOpening::Gone;
  }
  if (storage_.files.size(file).value_or(0) > kLargestNoteSize) return NoteOpening::TooLarge;
  try {
    showFile(name);
  } catch (const FileError&) {
    return NoteOpening::Unreadable;
  }
  return NoteOpening::Shown;
}

void NoteBrowser::showInstead(std::wstring_view name, NoteOpening opening) {
  const MainWindowDraft::Filling filling(draft_);
  onShow_.read = {};
  showPosition(L"");
  showDate(kNoDate);
  view_.setText(FieldId::Text1, titleOf(name));
  onShow_.standIn = sentenceFor(opening);
  view_.setText(FieldId::Text2, onShow_.standIn);
  alarmLine_.clear();
}

void NoteBrowser::showFile(std::wstring_view name) {
  const std::filesystem::path file = storage_.folder / name;
  const std::string bytes = storage_.files.read(file, kLargestNoteSize);
  const NoteKinds kinds = knownKinds(settings_.comfort);
  const ShownNote note =
      readNote(name, bytes, storage_.codePage, hourFormatOf(settings_.AmPm), kinds);
  const MainWindowDraft::Filling filling(draft_);
  onShow_.standIn = {};
  const LocalTime written = storage_.files.lastWritten(file);
  showPosition(positionText());
  showDate(dateTexts_.dateAndTime(written));
  view_.setText(FieldId::Text1, note.title);
  view_.setText(FieldId::Text2, note.text);
  alarmLine_.show(note);
  const std::optional<NoteKind> kind = kindOfFileName(name, kinds);
  onShow_.read = kind ? noteAsRead(*kind, bytes, storage_.codePage) : NoteAsRead();
  onShow_.isShown = kind.has_value();
}

void NoteBrowser::startNewNote() {
  const MainWindowDraft::Filling filling(draft_);
  onShow_.read = {};
  onShow_.name = kKeepFileName;
  onShow_.isShown = false;
  onShow_.standIn = {};
  view_.setText(FieldId::Text1, kUntitled);
  view_.setText(FieldId::Text2, L"");
  // Nobody typed it for this one, and it would ring.
  if (settings_.comfort.Keep_typing) alarmLine_.clear();
}

bool NoteBrowser::zapisz(std::wstring_view title) {
  const MainWindowDraft::Saving saving(draft_);
  if (settings_.comfort.Keep_typing) return saveInOwnKind();
  const std::filesystem::path file =
      storage_.folder / (std::wstring(title) + std::wstring(extensionOf(NoteKind::Fast)));
  const std::string bytes = bytesToSave(file);
  // All taken before the question: while it is open, another note can come on show.
  const auto oldFile =
      onShow_.isShown ? std::optional<std::filesystem::path>(onShow_.name) : std::nullopt;
  const std::wstring onShow = onShow_.name;
  if (!userAcceptsReplacedCharacters()) return false;
  saveNote(storage_.files, storage_.writer, file, oldFile, bytes);
  // cppcheck-suppress knownConditionTrueFalse ; another note can come on show during the question
  if (onShow_.name != onShow) return true;
  onShow_.name = file.wstring();
  onShow_.isShown = true;
  draft_.saved();
  return true;
}

void NoteBrowser::zapisz_temporay_do_zmazania____________OooooooO(
    const std::filesystem::path& path) {
  std::filesystem::path file = path;
  file += extensionOf(NoteKind::Fast);
  const std::string bytes = bytesToSave(file);
  if (titleEditing_ == Editing::Locked) deleteFile(file);
  setTitleEditing(Editing::Allowed);
  saveNote(storage_.files, storage_.writer, file, std::nullopt, bytes);
}

void NoteBrowser::requireNote(const NoteOnShow& note) {
  if (note.standIn.empty()) return;
  throw Failure(
      L"This is not saved: it stands in place of a note that cannot be shown. Press New to write "
      L"another one. What you typed is kept as a draft.");
}

std::string NoteBrowser::bytesToSave(const std::filesystem::path& file) const {
  requireNote(onShow_);
  const std::wstring text = view_.text(FieldId::Text2);
  std::string bytes =
      fastNoteBytes(view_.text(FieldId::Text3), text, alarmLine_.half(),
                    hourFormatOf(settings_.AmPm), storage_.codePage, onShow_.read.content);
  requireNoteSize(file, bytes);
  return bytes;
}

bool NoteBrowser::userAcceptsReplacedCharacters() const {
  const std::wstring text = view_.text(FieldId::Text2);
  const bool isHeld = settings_.comfort.Keep_typing ? isStorable(text, storage_.codePage)
                                                    : storage_.codePage.holds(text);
  return isHeld || view_.ask(kReplacedTitle, kReplacedQuestion) == Answer::Ok;
}

void NoteBrowser::deleteFile(const std::filesystem::path& file) {
  if (storage_.writer.remove(file) == Removal::WasMissing) {
    throw FileError(L"This file cannot be deleted, it is gone already: ", file);
  }
}

bool NoteBrowser::Del_na_przycisku(DeleteKind fast) {
  if (onShow_.name == kKeepFileName) return false;
  if (fast == DeleteKind::Fast) return deleteFast();
  deletePlain();
  return false;
}

bool NoteBrowser::deleteFast() {
  // What was on show when the question was asked, whatever happens while it is open.
  const std::wstring file = onShow_.name;
  if (settings_.Fast_delete_msg &&
      view_.ask(L"Delete", L"Are you sure you want delete this note ?") == Answer::Cancel) {
    return false;
  }
  deleteFile(file);
  refresh();
  return onShow_.name == file;
}

void NoteBrowser::deletePlain() {
  const auto index = static_cast<std::size_t>(currentIndex_);
  if (index >= File1_->size()) return;
  deleteFile(storage_.folder / File1_->name(index));
  refresh();
  currentIndex_ = add16(currentIndex_, -1);
  Odczytaj_na_przycisku();
}

void NoteBrowser::setEditing(Editing editing) {
  setTitleEditing(editing);
  view_.setFieldEditing(FieldId::Text2, editing);
  view_.setFieldEditing(FieldId::Text3, editing);
}

void NoteBrowser::setTitleEditing(Editing editing) {
  titleEditing_ = editing;
  view_.setFieldEditing(FieldId::Text1, editing);
}

}  // namespace kalvora
