// What becomes of what was typed on a page when it is left, for who wants it saved.

#include <algorithm>
#include <exception>

#include "base/Errors.h"
#include "base/Text.h"
#include "notes/All_Notes_frm.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kEmptyNotice =
    L"There is nothing to save yet: give it a name or words.";

}  // namespace

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
  try {
    saveTypedOn(kind, Attendance::Attended);
    return true;
  } catch (const Failure& failure) {
    draft(kind).keep();
    if (!view_.ask(kNotSavedTitle, notSavedQuestion(failure, !draft(kind).isMissing()))) {
      return false;
    }
    draft(kind).giveUp();
    return true;
  }
}

void All_Notes_frm::savePage(NoteKind kind) {
  if (!isWorthSaving(kind)) return view_.setNotice(kEmptyNotice);
  saveTypedOn(kind, Attendance::Attended);
}

void All_Notes_frm::saveTypedOn(NoteKind kind, Attendance attendance) {
  const LeftNote left{writer_.typed(kind), draft(kind).begun(), state_.read(kind),
                      state_.oldName(kind)};
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
