#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileSystem.h"
#include "skin/Skin.h"
#include "skinkit/SkinFinding.h"

namespace kalvora {

/// "300 x 200", as a finding says it.
std::wstring sizeText(Size size);

/// The files that could be a picture of a skin's folder, the one that is taken first.
std::vector<std::wstring> filesOfPicture(const FileSystem& files,
                                         const std::filesystem::path& skinFolder,
                                         std::wstring_view picture);

/// Looks for one picture of a skin's folder, "main1" and so on, and reads it.
SkinFindings checkPictureFile(const FileSystem& files, const std::filesystem::path& skinFolder,
                              std::wstring_view picture);

/// The same for the six pictures that a skin must have, so that all that cannot be read are told at
/// once.
SkinFindings checkPictureFiles(const FileSystem& files, const std::filesystem::path& skinFolder);

/// What is wrong with the pictures of a skin that could be loaded: their sizes beside each other,
/// what the shapes leave of the window, the strip of the font.
SkinFindings checkPictures(const Skin& skin);

}  // namespace kalvora
