// What becomes of what was typed on a page when it is left, for who wants it saved.

#include <algorithm>
#include <exception>

#include "base/Errors.h"
#include "base/Text.h"
#include "notes/All_Notes_frm.h"

namespace kalvora {

bool All_Notes_frm::leave() {
  return std::ranges::all_of(state_.kinds, [this](NoteKind kind) { return leave(kind); });
}

bool All_Notes_frm::isWorthSaving(NoteKind kind) {
  return kalvora::isWorthSaving(writer_.typed(kind), state_.oldName(kind));
}

bool All_Notes_frm::hasTypedNote(NoteKind kind) {
  return host_.keepsTyping() && draft(kind).changed() && isWorthSaving(kind);
}

bool All_Notes_frm::leave(NoteKind kind) {
  if (!hasTypedNote(kind)) return true;
  if (tab_ != kind) showTab(kind);
  if (!userAcceptsReplacedCharacters(view_.text(controlOf(ControlArray::Zawartosc, kind)))) {
    return false;
  }
  // While the question was open its note can have been deleted, and this is a draft.
  if (!hasTypedNote(kind)) return true;
  try {
    saveTypedOn(kind, Attendance::Attended);
    return true;
  } catch (const Failure& failure) {
    return userLeavesUnsaved(kind, failure);
  }
}

bool All_Notes_frm::userLeavesUnsaved(NoteKind kind, const Failure& failure) {
  draft(kind).keep();
  if (!view_.ask(kNotSavedTitle, notSavedQuestion(failure, !draft(kind).isMissing()))) return false;
  draft(kind).giveUp();
  showUntyped(kind);
  return true;
}

/// What was given up is not on the page any more.
void All_Notes_frm::showUntyped(NoteKind kind) {
  const std::wstring name = state_.oldName(kind);
  if (name == kKeepFileName) return showNewNote(kind);
  // Where it cannot be read the words stay to be seen, and count as not typed.
  tryReadNote(kind, name);
}

bool All_Notes_frm::tryReadNote(NoteKind kind, const std::wstring& name) {
  try {
    readNote(kind, name);
    return draft(kind).begun().has_value();
  } catch (const FileError&) {
    return false;
  }
}

void All_Notes_frm::savePage(NoteKind kind) {
  if (!isWorthSaving(kind)) return view_.setNotice(kNothingToSave);
  saveTypedOn(kind, Attendance::Attended, Untyped::AsShown);
}

LeftNote All_Notes_frm::noteOn(NoteKind kind, Untyped untyped) {
  return {writer_.typed(kind), draft(kind).begun(), state_.read(kind), state_.oldName(kind),
          untyped};
}

void All_Notes_frm::saveTypedOn(NoteKind kind, Attendance attendance, Untyped untyped) {
  const LeftNote left = noteOn(kind, untyped);
  const SavedNote saved = saveTyped(folder_, codePage_, left, attendance);
  state_.oldName(kind) = saved.name;
  state_.read(kind) = noteAsRead(kind, saved.bytes, codePage_);
  view_.setText(controlOf(ControlArray::FName, kind), saved.name);
  // What was replaced stays a draft.
  isStorable(left.typed, codePage_) ? draft(kind).saved() : draft(kind).giveUp();
  updateList(kind);
  if (!saved.isAsTyped) readNote(kind, saved.name);
}

void All_Notes_frm::saveQuietly() noexcept {
  for (const NoteKind kind : state_.kinds) {
    try {
      if (hasTypedNote(kind)) saveTypedOn(kind, Attendance::Unattended);
    } catch (const std::exception&) {
      // It stays what it would have been without the wish to save it: a draft.
      draft(kind).keep();
    }
  }
}

/// The list is another one where the page was saved under a new name.
bool All_Notes_frm::leaveForChosen(NoteKind kind) {
  const std::optional<std::wstring> chosen = chosenName(kind);
  const std::wstring before = state_.oldName(kind);
  if (!hasTypedNote(kind)) return true;
  if (!leave(kind)) return false;
  const bool isSame = chosen && equalIgnoringCase(*chosen, before);
  if (chosen) choose(kind, isSame ? state_.oldName(kind) : *chosen);
  return true;
}

}  // namespace kalvora
