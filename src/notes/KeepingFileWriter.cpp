#include "notes/KeepingFileWriter.h"

#include "notes/RoomMaker.h"

namespace kalvora {

namespace fs = std::filesystem;

void KeepingFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  if (!isNote(file)) return writer_.writeSafely(file, bytes);
  ++changes_;
  // The copies may hold the room that the note needs, and the note goes first.
  writeMakingRoom(copies_, RoomFrom::DraftsAndCopies, bytes.size(),
                  copies_.keepBeforeWriting(file, bytes),
                  [&] { writer_.writeSafely(file, bytes); });
}

Removal KeepingFileWriter::remove(const fs::path& file) {
  if (!isNote(file)) return writer_.remove(file);
  ++changes_;
  if (copies_.moveIn(file)) return Removal::Removed;
  // The copies may be on another disk.
  copies_.keepBeforeRemoving(file);
  return writer_.remove(file);
}

void KeepingFileWriter::move(const fs::path& from, const fs::path& to) {
  if (isNote(to)) ++changes_;
  writer_.move(from, to);
}

void KeepingFileWriter::createFolder(const fs::path& folder) {
  writer_.createFolder(folder);
}

}  // namespace kalvora
