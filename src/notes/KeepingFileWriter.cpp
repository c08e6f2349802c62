#include "notes/KeepingFileWriter.h"

namespace kalvora {

namespace fs = std::filesystem;

void KeepingFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  const auto copy = isNote(file) ? copies_.keepBeforeWriting(file, bytes) : std::nullopt;
  try {
    writer_.writeSafely(file, bytes);
  } catch (const DiskFullError&) {
    // The copy may have taken the room that the note needs, and the note goes first.
    if (!copy || !copies_.drop(*copy)) throw;
    writer_.writeSafely(file, bytes);
  }
}

Removal KeepingFileWriter::remove(const fs::path& file) {
  if (isNote(file)) copies_.keepBeforeRemoving(file);
  return writer_.remove(file);
}

void KeepingFileWriter::createFolder(const fs::path& folder) {
  writer_.createFolder(folder);
}

}  // namespace kalvora
