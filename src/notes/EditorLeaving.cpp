// What becomes of what was typed on a page when it is left, for who wants it saved.

#include <algorithm>
#include <exception>

#include "base/Errors.h"
#include "base/Text.h"
#include "notes/All_Notes_frm.h"
#include "notes/NoteContent.h"

namespace kalvora {

bool All_Notes_frm::leave() {
  return std::ranges::all_of(state_.kinds, [this](NoteKind kind) { return leave(kind); });
}

bool All_Notes_frm::hasTypedNote(NoteKind kind) {
  return host_.keepsTyping() && draft(kind).changed() &&
         isWorthSaving(writer_.typed(kind), state_.oldName(kind));
}

bool All_Notes_frm::leave(NoteKind kind) {
  if (!hasTypedNote(kind)) return true;
  if (tab_ != kind) showTab(kind);
  const std::wstring text = view_.text(controlOf(ControlArray::Zawartosc, kind));
  if (!userAcceptsReplacedCharacters(text)) return false;
  try {
    saveLeft(kind, Attendance::Attended);
    return true;
  } catch (const Failure& failure) {
    draft(kind).keep();
    return view_.ask(kNotSavedTitle, notSavedQuestion(failure, !draft(kind).isMissing()));
  }
}

void All_Notes_frm::saveLeft(NoteKind kind, Attendance attendance) {
  const TypedNote typed = writer_.typed(kind);
  const SavedNote saved = saveTyped(folder_, codePage_, typed, state_.oldName(kind), attendance);
  state_.oldName(kind) = saved.name;
  state_.storedContent(kind) = storedContentOf(kind, saved.bytes, codePage_);
  view_.setText(controlOf(ControlArray::FName, kind), saved.name);
  draft(kind).saved();
  updateList(kind);
  // Some of its letters were replaced: what is on the page is what is stored.
  if (draft(kind).changed()) readPage(kind);
}

void All_Notes_frm::saveQuietly() noexcept {
  for (const NoteKind kind : state_.kinds) {
    try {
      if (hasTypedNote(kind)) saveLeft(kind, Attendance::Unattended);
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
  if (chosen) {
    view_.select(controlOf(ControlArray::File_list_box, kind),
                 positionOf(kind, isSame ? state_.oldName(kind) : *chosen));
  }
  return true;
}

}  // namespace kalvora
