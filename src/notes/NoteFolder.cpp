#include "notes/NoteFolder.h"

#include "base/Numbers.h"
#include "notes/NoteSaving.h"
#include "notes/NoteWriter.h"

namespace kalvora {

namespace fs = std::filesystem;

std::vector<std::wstring> NoteFolder::names(NoteKind kind) const {
  std::vector<std::wstring> names = files_.files(folder_, L"*" + std::wstring(extensionOf(kind)));
  for (std::wstring& name : names) name.resize(titleOf(name).size());
  return names;
}

fs::path NoteFolder::file(NoteKind kind, std::wstring_view name) const {
  return folder_ / (std::wstring(name) + std::wstring(extensionOf(kind)));
}

std::optional<std::string> NoteFolder::read(NoteKind kind, std::wstring_view name) const {
  const fs::path path = file(kind, name);
  if (files_.size(path).value_or(0) > kLargestNoteSize) return std::nullopt;
  return files_.read(path, kLargestNoteSize);
}

bool NoteFolder::holds(NoteKind kind, std::wstring_view name, std::string_view bytes) const {
  try {
    return read(kind, name) == bytes;
  } catch (const FileError&) {
    return false;
  }
}

void NoteFolder::save(NoteKind kind, std::wstring_view name, std::wstring_view oldName,
                      std::string_view bytes) {
  const fs::path target = file(kind, name);
  requireNoteSize(target, bytes);
  const bool hadFile = oldName != kKeepFileName || name == oldName;
  saveNote(files_, writer_, target, hadFile ? std::optional(file(kind, oldName)) : std::nullopt,
           bytes);
}

void NoteFolder::add(NoteKind kind, std::wstring_view name, std::string_view bytes) {
  writer_.writeSafely(file(kind, freeName(kind, name)), bytes);
}

bool NoteFolder::has(NoteKind kind, std::wstring_view name) const {
  return files_.size(file(kind, name)).has_value();
}

std::wstring NoteFolder::freeName(NoteKind kind, std::wstring_view name) const {
  std::wstring free(name);
  for (int number = 2; has(kind, free); ++number) {
    free = std::wstring(name) + L" (" + numberToText(number) + L")";
  }
  return free;
}

Removal NoteFolder::remove(NoteKind kind, std::wstring_view name) {
  return writer_.remove(file(kind, name));
}

}  // namespace kalvora
