#include "notes/KeepingFileWriter.h"

#include "notes/RoomMaker.h"

namespace kalvora {

namespace fs = std::filesystem;

void KeepingFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  if (!isNote(file)) return writer_.writeSafely(file, bytes);
  RoomMaker room(copies_, copies_.keepBeforeWriting(file, bytes));
  for (;;) {
    try {
      writer_.writeSafely(file, bytes);
      return room.wasOfUse();
    } catch (const DiskFullError&) {
      // The copies may hold the room that the note needs, and the note goes first.
      if (!room.removeOne()) throw;
    }
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
