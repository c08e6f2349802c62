#include "notes/KeepingFileWriter.h"

namespace kalvora {

namespace fs = std::filesystem;

void KeepingFileWriter::writeSafely(const fs::path& file, std::string_view bytes) {
  if (isNote(file)) copies_.keepBeforeWriting(file, bytes);
  writer_.writeSafely(file, bytes);
}

Removal KeepingFileWriter::remove(const fs::path& file) {
  if (isNote(file)) copies_.keepBeforeRemoving(file);
  return writer_.remove(file);
}

void KeepingFileWriter::createFolder(const fs::path& folder) {
  writer_.createFolder(folder);
}

}  // namespace kalvora
