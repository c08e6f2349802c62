#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "skin/SkinValues.h"

namespace kalvora {

/// What the command works with. All must outlive it.
struct SkinCommandPorts {
  const FileSystem& files;
  FileWriter& writer;
  SkinValues& values;
  /// The skin that a new one is a copy of.
  std::filesystem::path templateFolder;
  /// Takes UTF-8.
  std::ostream& out;
};

/// How a run of the command ended, as its exit code.
enum class SkinCommandResult { Good = 0, MistakesFound = 1, Failed = 2 };

/// kalvora-skin: checks a skin, pictures it, makes a new one, or tells its version. `arguments` are
/// those after the program's name. Says on `out` what it did, what is wrong, or how it is used.
SkinCommandResult runSkinCommand(const SkinCommandPorts& ports,
                                 const std::vector<std::wstring>& arguments);

}  // namespace kalvora
