#pragma once

#include <filesystem>
#include <optional>

#include "base/FileSystem.h"
#include "skin/Skin.h"
#include "skinkit/SkinFinding.h"

namespace kalvora {

/// Looks for the six pictures of a skin and reads each, so that all that cannot be read are told
/// at once.
SkinFindings checkPictureFiles(const FileSystem& files, const std::filesystem::path& skinFolder);

/// What is wrong with the pictures of a skin that could be loaded: their sizes beside each other,
/// what the shapes leave of the window, the strip of the font.
SkinFindings checkPictures(const Skin& skin);

}  // namespace kalvora
