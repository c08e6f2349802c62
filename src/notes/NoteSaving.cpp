#include "notes/NoteSaving.h"

#include <exception>
#include <string>

#include "base/Errors.h"
#include "base/Text.h"
#include "notes/NoteKind.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

/// Nothing where there is no such file.
std::optional<std::string> contentToWriteOver(const FileSystem& files, const fs::path& file) {
  const auto size = files.size(file);
  if (!size) return std::nullopt;
  if (*size > kLargestNoteSize) {
    throw Failure(L"There is already a note of this name, and it is too large to be opened: " +
                  file.wstring());
  }
  return files.read(file, kLargestNoteSize);
}

void putBack(FileWriter& writer, const fs::path& file,
             const std::optional<std::string>& content) noexcept {
  try {
    if (content) {
      writer.writeSafely(file, *content);
    } else {
      writer.remove(file);
    }
  } catch (const std::exception&) {
    // The user is told of the failure that led here; nothing typed is lost by a file too many.
  }
}

/// Writes, then goes on; where that cannot be done, what was there before comes back. Otherwise the
/// note would be there twice, and ring twice.
template <typename Rest>
void writeAnd(FileWriter& writer, const fs::path& file, std::string_view bytes,
              const std::optional<std::string>& before, const Rest& rest) {
  writer.writeSafely(file, bytes);
  try {
    rest();
  } catch (const FileError&) {
    putBack(writer, file, before);
    throw;
  }
}

}  // namespace

void saveNote(const FileSystem& files, FileWriter& writer, const fs::path& file,
              const std::optional<fs::path>& oldFile, std::string_view bytes) {
  if (oldFile == file) return writer.writeSafely(file, bytes);
  if (oldFile && equalIgnoringCase(oldFile->wstring(), file.wstring())) {
    const auto before = contentToWriteOver(files, *oldFile);
    return writeAnd(writer, *oldFile, bytes, before, [&] { writer.move(*oldFile, file); });
  }
  const auto before = contentToWriteOver(files, file);
  writeAnd(writer, file, bytesAfterWritingInPlace(before.value_or(""), bytes), before, [&] {
    if (oldFile) writer.removeRenamed(*oldFile, file);
  });
}

}  // namespace kalvora
