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
  follower_.noteWritten(file.filename().wstring());
}

Removal KeepingFileWriter::remove(const fs::path& file) {
  if (!isNote(file)) return writer_.remove(file);
  const Removal removal = removeKeeping(file);
  // One that is not there may come back, as with its drive.
  if (removal == Removal::Removed) follower_.noteDeleted(file.filename().wstring());
  return removal;
}

Removal KeepingFileWriter::removeRenamed(const fs::path& file, const fs::path& renamed) {
  if (!isNote(file) || !isNote(renamed)) return remove(file);
  const std::wstring oldName = file.filename().wstring();
  const std::wstring newName = renamed.filename().wstring();
  // A program that is killed in between leaves both files, and so does a removal that fails.
  follower_.noteCopied(oldName, newName);
  const Removal removal = removeKeeping(file);
  follower_.noteRenamed(oldName, newName);
  return removal;
}

Removal KeepingFileWriter::removeKeeping(const fs::path& note) {
  ++changes_;
  if (copies_.moveIn(note)) return Removal::Removed;
  // The copies may be on another disk.
  copies_.keepBeforeRemoving(note);
  return writer_.remove(note);
}

void KeepingFileWriter::move(const fs::path& from, const fs::path& to) {
  if (isNote(to)) ++changes_;
  writer_.move(from, to);
  if (isNote(from) && isNote(to)) {
    follower_.noteRenamed(from.filename().wstring(), to.filename().wstring());
  }
}

void KeepingFileWriter::createFolder(const fs::path& folder) {
  writer_.createFolder(folder);
}

}  // namespace kalvora
