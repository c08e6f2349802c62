// What becomes of what was typed when its note is left, for who wants it saved.

#include "app/NoteBrowser.h"
#include "base/Errors.h"

namespace kalvora {

/// Nobody types into a reminder.
bool NoteBrowser::hasTypedNote() const {
  return settings_.comfort.Keep_typing && titleEditing_ == Editing::Allowed && draft_.changed() &&
         isWorthSaving(draft_.typed(), oldNameOf(onShow_));
}

std::wstring NoteBrowser::oldNameOf(const NoteOnShow& note) const {
  return std::wstring(note.isShown ? titleOf(std::filesystem::path(note.name).filename().wstring())
                                   : kKeepFileName);
}

bool NoteBrowser::leave() {
  if (!hasTypedNote()) return true;
  try {
    requireNoteOnShow();
    if (saveAttended(draft_.typed()) != AttendedSave::Done) return false;
    showSaved();
    return true;
  } catch (const Failure& failure) {
    return userLeavesUnsaved(failure);
  }
}

bool NoteBrowser::userLeavesUnsaved(const Failure& failure) {
  draft_.keep();
  const std::wstring onShow = onShow_.name;
  const Answer answer = view_.ask(kNotSavedTitle, notSavedQuestion(failure, !draft_.isMissing()));
  // cppcheck-suppress knownConditionTrueFalse ; another note can come on show during the question
  return answer == Answer::Ok && onShow_.name == onShow;
}

void NoteBrowser::saveQuietly() noexcept {
  try {
    if (!hasTypedNote() || !onShow_.standIn.empty()) return;
    const TypedNote typed = draft_.typed();
    takeSaved(typed.kind, save(typed, onShow_, Attendance::Unattended));
    showSaved();
  } catch (const std::exception&) {
    // It stays what it would have been without the wish to save it: a draft.
    draft_.keep();
  }
}

void NoteBrowser::saveQuietly(NoteAside& aside) noexcept {
  try {
    TypedNote& typed = aside.draft.typed;
    const bool isNote = aside.onShow.standIn.empty() && typed.kind == aside.onShow.read.kind &&
                        isWorthSaving(typed, oldNameOf(aside.onShow));
    if (!settings_.comfort.Keep_typing || !aside.draft.changed() || !isNote) return;
    const SavedNote saved = save(typed, aside.onShow, Attendance::Unattended);
    take(typed.kind, saved, aside.onShow);
    typed.name = saved.name;
    typed.storedContent = aside.onShow.read.content;
    aside.fields.front().text = saved.name;
    draft_.savedPaused(aside.draft);
  } catch (const std::exception&) {
    // As above; the draft was kept when it was put aside.
  }
}

bool NoteBrowser::saveInOwnKind(std::wstring_view title) {
  requireNoteOnShow();
  TypedNote typed = draft_.typed();
  typed.name = title;
  if (!isWorthSaving(typed, oldNameOf(onShow_))) return false;
  return saveAttended(typed) != AttendedSave::Declined;
}

NoteBrowser::AttendedSave NoteBrowser::saveAttended(const TypedNote& typed) {
  // While the question is open, another note can come on show.
  const NoteOnShow from = onShow_;
  if (!userAcceptsReplacedCharacters()) return AttendedSave::Declined;
  const SavedNote saved = save(typed, from, Attendance::Attended);
  // cppcheck-suppress knownConditionTrueFalse ; see above
  if (onShow_.name != from.name) return AttendedSave::OfNoteBefore;
  takeSaved(typed.kind, saved);
  return AttendedSave::Done;
}

SavedNote NoteBrowser::save(const TypedNote& typed, const NoteOnShow& from, Attendance attendance) {
  SavedNote saved = saveTyped(folder_, storage_.codePage, typed, oldNameOf(from), attendance);
  saved_ = true;
  return saved;
}

void NoteBrowser::takeSaved(NoteKind kind, const SavedNote& saved) {
  take(kind, saved, onShow_);
  view_.setText(FieldId::Text1, saved.name);
  draft_.saved();
}

void NoteBrowser::take(NoteKind kind, const SavedNote& saved, NoteOnShow& note) const {
  note.name = folder_.file(kind, saved.name).wstring();
  note.isShown = true;
  note.read = noteAsRead(kind, saved.bytes, storage_.codePage);
}

/// As its file holds it, and at its place in the list.
void NoteBrowser::showSaved() {
  refresh();
  goTo(onShow_.name);
  const NoteOnShow saved = onShow_;
  const std::wstring name = std::filesystem::path(saved.name).filename().wstring();
  if (open(name) != NoteOpening::Shown) {
    // What was typed stays on show; it is saved.
    onShow_ = saved;
    return;
  }
  scroller_.Aktualizuj_Scrool(name, ScrollText::FileName);
}

void NoteBrowser::followOptions() {
  alarmLine_.followOptions();
  draft_.followOptions();
}

void NoteBrowser::showAfterSave() {
  if (settings_.comfort.Keep_typing) goTo(onShow_.name);
  Odczytaj_na_przycisku();
}

}  // namespace kalvora
