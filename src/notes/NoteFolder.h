#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// The note files of each kind, by the names that the user knows them by: without extension.
class NoteFolder {
 public:
  /// Both outlive this object.
  NoteFolder(std::filesystem::path folder, const FileSystem& files, FileWriter& writer)
      : folder_(std::move(folder)), files_(files), writer_(writer) {}

  /// The names of the notes of a kind, in the order of the folder.
  std::vector<std::wstring> names(NoteKind kind) const;
  std::filesystem::path file(NoteKind kind, std::wstring_view name) const;
  bool has(NoteKind kind, std::wstring_view name) const;
  /// The name, or where a note of the kind has it, the first free one of "Name (2)", "Name (3)" and
  /// so on.
  std::wstring freeName(NoteKind kind, std::wstring_view name) const;

  /// All bytes of a note; nothing for one of more than kLargestNoteSize bytes, which is not even
  /// opened. Throws FileError, also for one that is gone.
  std::optional<std::string> read(NoteKind kind, std::wstring_view name) const;

  /// Whether the file of a note can be read and holds just these bytes.
  bool holds(NoteKind kind, std::wstring_view name, std::string_view bytes) const;

  /// Writes a note that was loaded under `oldName`, the keep-file name for one that has no file.
  /// See saveNote(). Throws what that throws, and Failure where the file would be too large to be
  /// opened again.
  void save(NoteKind kind, std::wstring_view name, std::wstring_view oldName,
            std::string_view bytes);

  /// Writes a note that is not to touch any other one: under its name, or where that is taken under
  /// freeName(). Throws FileError.
  void add(NoteKind kind, std::wstring_view name, std::string_view bytes);

  /// Removes a note, if there is one. Throws FileError.
  Removal remove(NoteKind kind, std::wstring_view name);

 private:
  std::filesystem::path folder_;
  const FileSystem& files_;
  FileWriter& writer_;
};

}  // namespace kalvora
