#pragma once

#include <filesystem>

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "notes/SafetyCopies.h"

namespace kalvora {

/// Where notes are kept, how their bytes become text, and what keeps copies and drafts of them. All
/// of it outlives those who are given it.
struct NoteStorage {
  std::filesystem::path folder;
  const FileSystem& files;
  FileWriter& writer;
  const CodePage& codePage;
  SafetyCopies& copies;
};

}  // namespace kalvora
