// What somebody else made of the note on show, or of the one put aside, for who wants typing kept.

#include <exception>

#include "app/NoteBrowser.h"
#include "base/Text.h"

namespace kalvora {

bool NoteBrowser::isFollowed(const NoteOnShow& note, std::wstring_view fileName) const {
  return settings_.comfort.Keep_typing &&
         equalIgnoringCase(note.name, (storage_.folder / fileName).wstring());
}

void NoteBrowser::noteWritten(std::wstring_view fileName) {
  const bool isTyped = titleEditing_ == Editing::Locked || draft_.changed();
  if (!onShow_.isShown || isTyped || !isFollowed(onShow_, fileName)) return;
  try {
    if (const NoteOpening opening = open(fileName); opening != NoteOpening::Shown) {
      showInstead(fileName, opening);
    }
  } catch (const std::exception&) {
    // What is typed over it will be saved with what its file holds then.
  }
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
  goTo(onShow_.name);
}

void NoteBrowser::noteDeleted(std::wstring_view fileName) {
  if (aside_ && isFollowed(aside_->onShow, fileName)) draft_.giveUpPaused(aside_->draft);
  if (!isFollowed(onShow_, fileName)) return;
  onShow_.isShown = false;
  draft_.giveUp();
}

}  // namespace kalvora
