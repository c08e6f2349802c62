#include "win32/ProgramWindows.h"

namespace kalvora {

namespace {

std::filesystem::path programFolder() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return std::filesystem::path(path).parent_path();
}

}  // namespace

ProgramWindows::ProgramWindows() : folders_(programFolder()) {}

int ProgramWindows::run() {
  mainWindow_.takeEvents();
  mainWindow_.deliver([this] { form1_.Form_Load(); });
  if (!form1_.started()) return 1;
  for (const auto& folder : {folders_.notes(), folders_.backup()}) {
    disk_.removeLeftovers(files_, folder);
  }
  mainWindow_.deliver([this] { form1_.tellUnreadableSettings(); });
  return mainWindow_.runMessageLoop(dialogs_);
}

void ProgramWindows::saveMainWindow() {
  mainWindow_.deliver([this] { form1_.saveMainWindow(); });
}

bool ProgramWindows::leave() {
  bool left = true;
  deliverToEditor_([&] { left = notes_.leave(); });
  return left;
}

void ProgramWindows::Update_All_Al() {
  mainWindow_.deliver([this] { form1_.Update_All_Al(); });
}

void ProgramWindows::showFirstNote() {
  mainWindow_.deliver([this] { form1_.showFirstNote(); });
}

ComingMarks ProgramWindows::comingMarks() {
  return {.snoozed = form1_.remindersPutOff(), .missed = form1_.remindersNotSeen()};
}

void ProgramWindows::openNoteAt(NoteKind kind, std::wstring_view title, const PlaceInNote& place) {
  editor_.open();
  // Nothing is changed under a question that the editor asks.
  if (!IsWindowEnabled(editor_.window())) return;
  deliverToEditor_([&] { notes_.showNote(kind, title, place); });
}

void ProgramWindows::noteRenamed(std::wstring_view from, std::wstring_view to) {
  form1_.noteRenamed(from, to);
  notes_.noteRenamed(from, to);
}

void ProgramWindows::noteDeleted(std::wstring_view name) {
  form1_.noteDeleted(name);
  notes_.noteDeleted(name);
}

void ProgramWindows::noteWritten(std::wstring_view name) {
  form1_.noteWritten(name);
  notes_.noteWritten(name);
}

void ProgramWindows::unloadAll() {
  comes_.unload();
  find_.unload();
  notes_.unload();
  about_.unload();
  options_.unload();
}

}  // namespace kalvora
