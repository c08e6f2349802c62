// What somebody else made of the notes on the pages meanwhile, for who wants typing kept.

#include <exception>

#include "base/Text.h"
#include "notes/All_Notes_frm.h"
#include "notes/EditorNotices.h"

namespace kalvora {

/// The page of a note's kind, while the editor is open.
std::optional<NoteKind> All_Notes_frm::pageFor(std::wstring_view fileName) {
  if (!host_.keepsTyping()) return std::nullopt;
  const std::optional<NoteKind> kind = kindOfFileName(fileName, state_.kinds);
  return kind && draft(*kind).begun() ? kind : std::nullopt;
}

/// Also one that was deleted, and is back.
bool All_Notes_frm::isOnPage(NoteKind kind, std::wstring_view fileName) {
  const std::wstring& name = state_.oldName(kind);
  return equalIgnoringCase(name == kKeepFileName ? state_.deletedName(kind) : name,
                           titleOf(fileName));
}

void All_Notes_frm::noteWritten(std::wstring_view fileName) {
  const std::optional<NoteKind> kind = pageFor(fileName);
  if (!kind) return;
  const std::wstring name(titleOf(fileName));
  if (isOnPage(*kind, fileName)) takeWritten(*kind, name);
  if (!isListed(*kind, name)) renewList(*kind);
}

void All_Notes_frm::takeWritten(NoteKind kind, const std::wstring& name) {
  try {
    if (!draft(kind).changed()) return readNote(kind, name);
    if (state_.oldName(kind) == kKeepFileName) state_.oldName(kind) = name;
    readUnderTyped(kind);
  } catch (const std::exception&) {
    // What is typed over it will be saved with what its file holds then.
  }
}

/// What was not typed over is shown as the file has it by now; what was typed stays over it.
void All_Notes_frm::readUnderTyped(NoteKind kind) {
  const LeftNote left = noteOn(kind);
  const std::optional<std::string> bytes = folder_.read(kind, left.oldName);
  // An hour that no note can store is in no field.
  if (!bytes || !left.typed.unstorable.empty()) return;
  const TypedNote merged = mergedWith(left, noteAsRead(kind, *bytes, codePage_));
  if (merged == mergedWith(left, left.read)) return;
  PausedDraft typed = draft(kind).pause();
  const bool isNameTyped = typed.changedName();
  const bool isRead = tryReadNote(kind, left.oldName);
  if (isRead) typed.editing.begun = draft(kind).begun();
  draft(kind).resume(typed);
  if (!isRead) return;
  showFields(kind, merged.fields);
  if (isNameTyped) view_.setText(controlOf(ControlArray::FName, kind), left.typed.name);
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
  // It was written under its new name before it was followed there.
  noteWritten(to);
}

void All_Notes_frm::noteDeleted(std::wstring_view fileName) {
  const std::optional<NoteKind> kind = pageFor(fileName);
  if (!kind) return;
  if (isOnPage(*kind, fileName)) {
    draft(*kind).keep();
    const bool isDraft = draft(*kind).changed() && !draft(*kind).isMissing();
    leaveFile(*kind);
    if (isDraft) view_.setNotice(typedOverDeletedNotice(titleOf(fileName)));
  }
  renewList(*kind);
}

/// What was typed goes with it, and is typed anew where it is to be kept.
void All_Notes_frm::leaveFile(NoteKind kind) {
  std::wstring& name = state_.oldName(kind);
  if (name != kKeepFileName) state_.deletedName(kind) = name;
  name = kKeepFileName;
  if (host_.keepsTyping()) draft(kind).giveUp();
}

}  // namespace kalvora
