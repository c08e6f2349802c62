#pragma once

#include <filesystem>

#include "base/FileSystem.h"
#include "skin/SkinValues.h"
#include "skinkit/SkinFinding.h"

namespace kalvora {

/// What is wrong in the text of a skin's "config.ini": names that the program does not know, things
/// said twice or not at all, and values that are no numbers.
SkinFindings checkDescription(const FileSystem& files, SkinValues& values,
                              const std::filesystem::path& skinFolder);

}  // namespace kalvora
