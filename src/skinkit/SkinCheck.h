#pragma once

#include <filesystem>

#include "base/FileSystem.h"
#include "skin/SkinValues.h"
#include "skinkit/SkinFinding.h"

namespace kalvora {

/// All that is wrong with the skin of a folder, mistakes first. Empty where nothing is.
SkinFindings checkSkin(const FileSystem& files, SkinValues& values,
                       const std::filesystem::path& skinFolder);

}  // namespace kalvora
