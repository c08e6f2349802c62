// What somebody else made of the notes on the pages meanwhile, for who wants typing kept.

#include <exception>

#include "base/Text.h"
#include "notes/All_Notes_frm.h"

namespace kalvora {

/// The page of a note's kind, while the editor is open.
std::optional<NoteKind> All_Notes_frm::pageFor(std::wstring_view fileName) {
  if (!host_.keepsTyping()) return std::nullopt;
  const std::optional<NoteKind> kind = kindOfFileName(fileName, state_.kinds);
  return kind && draft(*kind).begun() ? kind : std::nullopt;
}

bool All_Notes_frm::isOnPage(NoteKind kind, std::wstring_view fileName) {
  return equalIgnoringCase(state_.oldName(kind), titleOf(fileName));
}

void All_Notes_frm::noteWritten(std::wstring_view fileName) {
  const std::optional<NoteKind> kind = pageFor(fileName);
  if (!kind || !isOnPage(*kind, fileName) || draft(*kind).changed()) return;
  try {
    readNote(*kind, std::wstring(titleOf(fileName)));
  } catch (const std::exception&) {
    // What is typed over it will be saved with what its file holds then.
  }
}

void All_Notes_frm::noteRenamed(std::wstring_view from, std::wstring_view to) {
  const std::optional<NoteKind> kind = pageFor(from);
  if (!kind || kindOfFileName(to, state_.kinds) != kind) return;
  std::optional<std::wstring> chosen = chosenName(*kind);
  if (chosen && equalIgnoringCase(*chosen, titleOf(from))) chosen = titleOf(to);
  if (isOnPage(*kind, from)) {
    const EditorControl FName = controlOf(ControlArray::FName, *kind);
    const bool isTyped = view_.text(FName) != draft(*kind).begun()->name;
    state_.oldName(*kind) = titleOf(to);
    if (!isTyped) view_.setText(FName, titleOf(to));
    draft(*kind).renamed(titleOf(to));
  }
  updateList(*kind);
  if (chosen) choose(*kind, *chosen);
}

void All_Notes_frm::noteDeleted(std::wstring_view fileName) {
  const std::optional<NoteKind> kind = pageFor(fileName);
  if (!kind) return;
  const std::optional<std::wstring> chosen = chosenName(*kind);
  if (isOnPage(*kind, fileName)) leaveFile(*kind);
  updateList(*kind);
  if (chosen) choose(*kind, *chosen);
}

/// What was typed goes with it, and is typed anew where it is to be kept.
void All_Notes_frm::leaveFile(NoteKind kind) {
  state_.oldName(kind) = kKeepFileName;
  if (host_.keepsTyping()) draft(kind).giveUp();
}

}  // namespace kalvora
