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

LeftNote NoteBrowser::noteOnShow() const {
  return {draft_.typed(), draft_.begun(), onShow_.read, oldNameOf(onShow_)};
}

bool NoteBrowser::leave() {
  if (!hasTypedNote()) return true;
  const unsigned filling = draft_.fillings();
  try {
    requireNoteOnShow();
    if (saveAttended() != AttendedSave::Done) return false;
    showSaved();
    return true;
  } catch (const Failure& failure) {
    // What was put aside is a draft, and comes back.
    return draft_.fillings() == filling && userLeavesUnsaved(failure);
  }
}

bool NoteBrowser::userLeavesUnsaved(const Failure& failure) {
  draft_.keep();
  const unsigned filling = draft_.fillings();
  const Answer answer = view_.ask(kNotSavedTitle, notSavedQuestion(failure, !draft_.isMissing()));
  // A reminder can have come during the question: it is not to be put away unseen.
  // cppcheck-suppress knownConditionTrueFalse ; see above
  if (answer != Answer::Ok || draft_.fillings() != filling) return false;
  draft_.giveUp();
  return true;
}

void NoteBrowser::saveQuietly() noexcept {
  try {
    if (!hasTypedNote() || !onShow_.standIn.empty()) return;
    const LeftNote left = noteOnShow();
    takeSaved(left.typed, save(left, Attendance::Unattended));
    showSaved();
  } catch (const std::exception&) {
    // It stays what it would have been without the wish to save it: a draft.
    draft_.keep();
  }
}

void NoteBrowser::saveAside() noexcept {
  try {
    saveAside(Attendance::Unattended);
  } catch (const std::exception&) {
    // As above; the draft was kept when it was put aside.
  }
}

void NoteBrowser::saveAside(Attendance attendance) {
  if (!settings_.comfort.Keep_typing || !aside_ || !aside_->draft.changed()) return;
  NoteOnShow& note = aside_->onShow;
  const TypedNote& typed = aside_->draft.typed;
  const LeftNote left{typed, aside_->draft.editing.begun, note.read, oldNameOf(note)};
  const bool isNote = note.standIn.empty() && typed.kind == note.read.kind;
  if (!isNote || !isWorthSaving(typed, left.oldName)) return;
  take(typed.kind, save(left, attendance), note);
  // From here on it is read from its file when it comes back.
  isStorable(typed, storage_.codePage) ? draft_.savedPaused(aside_->draft)
                                       : draft_.giveUpPaused(aside_->draft);
}

bool NoteBrowser::saveInOwnKind() {
  requireNoteOnShow();
  if (!isWorthSaving(draft_.typed(), oldNameOf(onShow_))) return false;
  return saveAttended() != AttendedSave::Declined;
}

NoteBrowser::AttendedSave NoteBrowser::saveAttended() {
  const LeftNote left = noteOnShow();
  const unsigned filling = draft_.fillings();
  if (!userAcceptsReplacedCharacters()) return AttendedSave::Declined;
  // While the question was open, another note can have come on show.
  // cppcheck-suppress knownConditionTrueFalse ; see above
  if (draft_.fillings() != filling) {
    if (aside_) {
      saveAside(Attendance::Attended);
    } else {
      save(left, Attendance::Attended);
    }
    return AttendedSave::OfNoteBefore;
  }
  takeSaved(left.typed, save(left, Attendance::Attended));
  return AttendedSave::Done;
}

SavedNote NoteBrowser::save(const LeftNote& left, Attendance attendance) {
  return saveTyped(folder_, storage_.codePage, left, attendance);
}

void NoteBrowser::takeSaved(const TypedNote& typed, const SavedNote& saved) {
  take(typed.kind, saved, onShow_);
  view_.setText(FieldId::Text1, saved.name);
  // What was replaced stays a draft.
  isStorable(typed, storage_.codePage) ? draft_.saved() : draft_.giveUp();
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
