#pragma once

#include <filesystem>

#include "base/FileSystem.h"
#include "base/Image.h"
#include "skin/SkinValues.h"

namespace kalvora {

/// The main window as it looks in the skin of a folder, with sample texts, no larger than `room`
/// and with `ground` where the window is transparent. Throws SkinError.
Image skinPreview(const FileSystem& files, SkinValues& values,
                  const std::filesystem::path& skinFolder, Size room, Pixel ground);

}  // namespace kalvora
