// What is in the main window when a reminder comes into it, and afterwards again.

#include <utility>

#include "app/NoteBrowser.h"
#include "base/Errors.h"
#include "base/Numbers.h"
#include "notes/NoteContent.h"
#include "notes/NoteKind.h"

namespace kalvora {

void NoteBrowser::putAside() {
  if (aside_) return;
  const auto field = [this](FieldId id) {
    return NoteAside::Field{id, view_.text(id), view_.selection(id)};
  };
  aside_ = NoteAside{onShow_,           {field(FieldId::Text1), field(FieldId::Text2)},
                     alarmLine_.time(), view_.selection(FieldId::Text3),
                     draft_.pause(),    scroller_.text()};
}

void NoteBrowser::keepAside() noexcept {
  if (aside_) draft_.keepPaused(aside_->draft);
}

bool NoteBrowser::bringBack() {
  const std::optional<NoteAside> aside = std::exchange(aside_, std::nullopt);
  if (!aside) return false;
  refresh();
  const bool there = goTo(aside->onShow.name);
  const bool wasNote = aside->onShow.name != kKeepFileName;
  // What was not typed may have been changed or deleted meanwhile.
  if (aside->draft.changed() || !wasNote) {
    showAgain(*aside);
    const bool isOther = !settings_.comfort.Keep_typing && isOtherThan(aside->onShow);
    if (!there || isOther) onShow_.isShown = false;
    // The deleted note's place is another's now.
    if (!there) onShow_.name = kKeepFileName;
    // What was not typed over may be another by now.
    noteWritten(std::filesystem::path(onShow_.name).filename().wstring());
  } else if (open(std::filesystem::path(aside->onShow.name).filename().wstring()) !=
             NoteOpening::Shown) {
    return false;
  }
  for (const NoteAside::Field& field : aside->fields) view_.setSelection(field.id, field.selection);
  view_.setSelection(FieldId::Text3, aside->timeSelection);
  scroller_.Aktualizuj_Scrool(aside->scrollingTitle, ScrollText::Plain);
  return true;
}

/// Makes a file the current one of the list, where it is listed.
bool NoteBrowser::goTo(const std::filesystem::path& file) {
  for (std::size_t i = 0; i < File1_->size(); ++i) {
    if (storage_.folder / File1_->name(i) != file) continue;
    currentIndex_ = toInt16(static_cast<double>(i));
    return true;
  }
  return false;
}

/// Whether the file of a note holds another text by now.
bool NoteBrowser::isOtherThan(const NoteOnShow& note) const {
  const std::optional<NoteKind> kind = kindOfFileName(note.name, knownKinds(settings_.comfort));
  if (!note.isShown || !kind) return true;
  try {
    const std::string bytes = storage_.files.read(note.name, kLargestNoteSize);
    return storedContentOf(*kind, bytes, storage_.codePage) != note.read.content;
  } catch (const FileError&) {
    return true;
  }
}

void NoteBrowser::showAgain(const NoteAside& aside) {
  onShow_ = aside.onShow;
  if (onShow_.name != kKeepFileName) onShow_.position = positionText();
  for (const NoteAside::Field& field : aside.fields) view_.setText(field.id, field.text);
  alarmLine_.showAgain(aside.time);
  drawRows();
  draft_.resume(aside.draft);
  // What was given up meanwhile is not typed any more.
  if (!draft_.begun()) draft_.begin();
}

}  // namespace kalvora
