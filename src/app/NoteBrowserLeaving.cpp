// What becomes of what was typed when its note is left, for who wants it saved.

#include "app/NoteBrowser.h"
#include "base/Errors.h"
#include "notes/NoteSaving.h"

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
  try {
    requireNote(onShow_);
    if (saveAttended() != AttendedSave::Done) return false;
    showSaved();
    return true;
  } catch (const Failure& failure) {
    // What was put aside is a draft, and comes back.
    return !aside_ && userLeavesUnsaved(failure);
  }
}

bool NoteBrowser::userLeavesUnsaved(const Failure& failure) {
  draft_.keep();
  const unsigned filling = draft_.filling();
  const Answer answer = view_.ask(kNotSavedTitle, notSavedQuestion(failure, !draft_.isMissing()));
  // A reminder can have come during the question: it is not to be put away unseen.
  // cppcheck-suppress knownConditionTrueFalse ; see above
  if (answer != Answer::Ok || draft_.filling() != filling) return false;
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

/// Nothing where there is nothing to save.
std::optional<LeftNote> NoteBrowser::noteAside() const {
  if (!settings_.comfort.Keep_typing || !aside_ || !aside_->draft.changed()) return std::nullopt;
  const NoteOnShow& note = aside_->onShow;
  LeftNote left{aside_->draft.typed, aside_->draft.editing.begun, note.read, oldNameOf(note)};
  const bool isNote = left.typed.kind == note.read.kind && isWorthSaving(left.typed, left.oldName);
  return isNote ? std::optional(std::move(left)) : std::nullopt;
}

void NoteBrowser::saveAside(Attendance attendance) {
  const std::optional<LeftNote> left = noteAside();
  if (!left) return;
  NoteAside& aside = *aside_;
  requireNote(aside.onShow);
  take(left->typed.kind, save(*left, attendance), aside.onShow);
  // From here on it is read from its file when it comes back.
  isStorable(left->typed, storage_.codePage) ? draft_.savedPaused(aside.draft)
                                             : draft_.giveUpPaused(aside.draft);
}

bool NoteBrowser::leaveAside() {
  const std::optional<LeftNote> left = noteAside();
  if (!left) return true;
  // What was brought back during a question is on show, and not left.
  if (!isStorable(left->typed, storage_.codePage) &&
      (view_.ask(kReplacedTitle, kReplacedQuestion) != Answer::Ok || !aside_)) {
    return false;
  }
  try {
    saveAside(Attendance::Attended);
    return true;
  } catch (const Failure& failure) {
    draft_.keepPaused(aside_->draft);
    const bool isDraft = !aside_->draft.editing.faultHeard;
    const Answer answer = view_.ask(kNotSavedTitle, notSavedQuestion(failure, isDraft));
    if (answer != Answer::Ok || !aside_) return false;
    draft_.giveUpPaused(aside_->draft);
    return true;
  }
}

bool NoteBrowser::saveInOwnKind() {
  requireNote(onShow_);
  if (!isWorthSaving(draft_.typed(), oldNameOf(onShow_))) {
    throw Failure(std::wstring(kNothingToSave));
  }
  return saveAttended() != AttendedSave::Declined;
}

NoteBrowser::AttendedSave NoteBrowser::saveAttended() {
  const bool wasTyped = hasTypedNote();
  const unsigned filling = draft_.filling();
  if (!userAcceptsReplacedCharacters()) return AttendedSave::Declined;
  // While the question was open, another note can have come on show.
  // cppcheck-suppress knownConditionTrueFalse ; see above
  if (draft_.filling() != filling) {
    saveAside(Attendance::Attended);
    return AttendedSave::OfNoteBefore;
  }
  // Its note can have been deleted, and this is a draft.
  if (wasTyped && !hasTypedNote()) return AttendedSave::Done;
  // Only now: its note can have another name.
  const LeftNote left = noteOnShow();
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
