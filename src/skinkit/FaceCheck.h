#pragma once

#include <filesystem>

#include "base/FileSystem.h"
#include "skin/Skin.h"
#include "skinkit/SkinFinding.h"

namespace kalvora {

/// What keeps a skin that could be loaded from having the face of a reminder, if there is a piece
/// of one: the program leaves such a face out without a word. Nothing where there is none at all.
SkinFindings checkFace(const FileSystem& files, const std::filesystem::path& skinFolder,
                       const Skin& skin);

}  // namespace kalvora
