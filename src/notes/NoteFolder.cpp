#include "notes/NoteFolder.h"

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"
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

void NoteFolder::save(NoteKind kind, std::wstring_view name, std::wstring_view oldName,
                      std::string_view bytes) {
  const fs::path target = file(kind, name);
  requireNoteSize(target, bytes);
  const bool hadFile = oldName != kKeepFileName;
  if (name == oldName || (hadFile && equalIgnoringCase(name, oldName))) {
    writer_.writeSafely(target, bytes);
    return;
  }
  const std::optional<std::string> before = contentToWriteOver(target);
  writer_.writeSafely(target, bytesAfterWritingInPlace(before.value_or(""), bytes));
  if (!hadFile) return;
  try {
    writer_.remove(file(kind, oldName));
  } catch (const FileError&) {
    // Otherwise the note would be there twice, and ring twice.
    putBack(target, before);
    throw;
  }
}

void NoteFolder::add(NoteKind kind, std::wstring_view name, std::string_view bytes) {
  writer_.writeSafely(freePlaceFor(kind, name), bytes);
}

fs::path NoteFolder::freePlaceFor(NoteKind kind, std::wstring_view name) const {
  fs::path place = file(kind, name);
  for (int number = 2; files_.size(place); ++number) {
    place = file(kind, std::wstring(name) + L" (" + numberToText(number) + L")");
  }
  return place;
}

void NoteFolder::remove(NoteKind kind, std::wstring_view name) {
  writer_.remove(file(kind, name));
}

std::optional<std::string> NoteFolder::contentToWriteOver(const fs::path& file) const {
  const auto size = files_.size(file);
  if (!size) return std::nullopt;
  if (*size > kLargestNoteSize) {
    throw Failure(L"There is already a note of this name, and it is too large to be opened: " +
                  file.wstring());
  }
  return files_.read(file, kLargestNoteSize);
}

void NoteFolder::putBack(const fs::path& file, const std::optional<std::string>& content) noexcept {
  try {
    if (content) {
      writer_.writeSafely(file, *content);
    } else {
      writer_.remove(file);
    }
  } catch (const std::exception&) {
    // The user is told of the failure that led here; nothing typed is lost by a file too many.
  }
}

}  // namespace kalvora
