// The lists of names of the note editor.

#include <algorithm>

#include "base/Text.h"
#include "notes/All_Notes_frm.h"

namespace kalvora {

namespace {

constexpr int kNone = -1;

}  // namespace

void All_Notes_frm::Update_Files(NoteKind first, NoteKind last) {
  for (const NoteKind kind : state_.kinds) {
    if (kind >= first && kind <= last) updateList(kind);
  }
}

void All_Notes_frm::updateList(NoteKind kind) {
  auto& names = File_list_[static_cast<std::size_t>(kind)];
  names = folder_.names(kind);
  view_.setItems(controlOf(ControlArray::File_list_box, kind), names);
  markLoadedNote(kind);
}

/// The list shows which of its notes is on the page.
void All_Notes_frm::markLoadedNote(NoteKind kind) {
  const std::wstring& loaded = state_.oldName(kind);
  view_.select(controlOf(ControlArray::File_list_box, kind),
               loaded == kKeepFileName ? kNone : positionOf(kind, loaded));
}

/// With the same name chosen in it, also where that is not the note on the page.
void All_Notes_frm::renewList(NoteKind kind) {
  const std::optional<std::wstring> chosen = chosenName(kind);
  updateList(kind);
  if (chosen) choose(kind, *chosen);
}

void All_Notes_frm::choose(NoteKind kind, std::wstring_view name) {
  view_.select(controlOf(ControlArray::File_list_box, kind), positionOf(kind, name));
}

bool All_Notes_frm::isListed(NoteKind kind, std::wstring_view name) const {
  return positionOf(kind, name) != kNone;
}

int All_Notes_frm::positionOf(NoteKind kind, std::wstring_view name) const {
  const auto& names = File_list_[static_cast<std::size_t>(kind)];
  const auto found = std::ranges::find_if(
      names, [&](const std::wstring& title) { return equalIgnoringCase(title, name); });
  return found == names.end() ? kNone : static_cast<int>(found - names.begin());
}

std::optional<std::wstring> All_Notes_frm::chosenName(NoteKind kind) const {
  const auto& names = File_list_[static_cast<std::size_t>(kind)];
  const int selected = view_.selection(controlOf(ControlArray::File_list_box, kind));
  if (selected < 0 || selected >= static_cast<int>(names.size())) return std::nullopt;
  return names[static_cast<std::size_t>(selected)];
}

}  // namespace kalvora
