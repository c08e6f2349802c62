// What somebody else made of the note on show, or of the one put aside, for who wants typing kept.

#include <exception>

#include "app/NoteBrowser.h"
#include "base/Text.h"
#include "notes/NoteReader.h"

namespace kalvora {

namespace {

/// It may have been deleted, and be back: what is typed over it belongs to it again.
void takeAsThere(NoteOnShow& note) {
  note.isShown = note.standIn.empty();
}

bool isSameText(TypedNote a, TypedNote b) {
  return *inFileOrder(a.fields).back() == *inFileOrder(b.fields).back();
}

bool isSameTime(const TypedNote& a, const TypedNote& b) {
  return shownFields(a.fields, HourFormat::Hours24).time ==
         shownFields(b.fields, HourFormat::Hours24).time;
}

}  // namespace

bool NoteBrowser::isFollowed(const NoteOnShow& note, std::wstring_view fileName) const {
  return settings_.comfort.Keep_typing &&
         equalIgnoringCase(note.name, (storage_.folder / fileName).wstring());
}

void NoteBrowser::noteWritten(std::wstring_view fileName) {
  if (aside_ && isFollowed(aside_->onShow, fileName)) takeAsThere(aside_->onShow);
  if (!isFollowed(onShow_, fileName) || titleEditing_ == Editing::Locked) return;
  try {
    if (draft_.changed()) {
      takeAsThere(onShow_);
      return readUnderTyped(fileName);
    }
    if (const NoteOpening opening = open(fileName); opening != NoteOpening::Shown) {
      showInstead(fileName, opening);
    }
  } catch (const std::exception&) {
    // What is typed over it will be saved with what its file holds then.
  }
}

/// What was not typed over is shown as the file has it by now; what was typed stays over it.
void NoteBrowser::readUnderTyped(std::wstring_view fileName) {
  const LeftNote left = noteOnShow();
  const NoteKind kind = left.typed.kind;
  if (!onShow_.isShown || kind != left.read.kind) return;
  const std::optional<std::string> bytes = folder_.read(kind, titleOf(fileName));
  // A time that no note can store is in no field.
  if (!bytes || !left.typed.unstorable.empty()) return;
  const TypedNote merged = mergedWith(left, noteAsRead(kind, *bytes, storage_.codePage));
  if (merged == mergedWith(left, left.read)) return;
  const NoteAside::Field title{FieldId::Text1, left.typed.name, view_.selection(FieldId::Text1)};
  const NoteAside::Field text{FieldId::Text2, view_.text(FieldId::Text2),
                              view_.selection(FieldId::Text2)};
  const AlarmLine::Time time = alarmLine_.time();
  PausedDraft typed = draft_.pause();
  const bool isNameTyped = typed.changedName();
  if (open(fileName) == NoteOpening::Shown) typed.editing.begun = draft_.begun();
  takeAsThere(onShow_);
  draft_.resume(typed);
  if (isNameTyped) showTyped(title);
  if (isSameText(merged, left.typed)) showTyped(text);
  if (isSameTime(merged, left.typed)) alarmLine_.showAgain(time);
  draft_.fieldChanged();
}

void NoteBrowser::showTyped(const NoteAside::Field& field) {
  view_.setText(field.id, field.text);
  view_.setSelection(field.id, field.selection);
}

void NoteBrowser::noteRenamed(std::wstring_view from, std::wstring_view to) {
  const std::wstring file = (storage_.folder / to).wstring();
  const std::wstring title(titleOf(to));
  if (aside_ && isFollowed(aside_->onShow, from)) {
    aside_->onShow.name = file;
    aside_->scrollingTitle = title;
    PausedDraft& draft = aside_->draft;
    if (!draft.changedName()) aside_->fields.front().text = draft.typed.name = title;
    if (draft.editing.begun) draft.editing.begun->name = title;
  }
  if (!isFollowed(onShow_, from)) return;
  onShow_.name = file;
  const bool isTyped = draft_.begun() && draft_.begun()->name != view_.text(FieldId::Text1);
  if (!isTyped) view_.setText(FieldId::Text1, title);
  draft_.renamed(title);
  if (titleEditing_ == Editing::Locked) return;
  refresh();
  if (goTo(onShow_.name)) showPosition(positionText());
  scroller_.Aktualizuj_Scrool(to, ScrollText::FileName);
  // It was written under its new name before it was followed there.
  noteWritten(to);
}

void NoteBrowser::noteDeleted(std::wstring_view fileName) {
  if (aside_ && isFollowed(aside_->onShow, fileName)) draft_.giveUpPaused(aside_->draft);
  if (!isFollowed(onShow_, fileName)) return;
  onShow_.isShown = false;
  draft_.giveUp();
}

}  // namespace kalvora
