#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>

#include "base/FileSystem.h"
#include "skin/Picture.h"
#include "skin/SkinDescription.h"
#include "skin/SkinError.h"

namespace kalvora {

/// The six pictures of a skin together, so that two skins can be in memory at a time.
inline constexpr std::int64_t kMaxSkinPixels = 4'000'000;

/// A skin as its folder holds it: the description and the six pictures.
struct Skin {
  SkinDescription description;
  /// "main1", the window with its buttons in their normal look, and "main2", in their pressed look.
  std::array<Picture, 2> Temp_Main;
  /// "titlebar": a skin must have it, nothing is drawn from it.
  Picture Temp_Titlebar;
  /// "text": the font strip.
  Picture Temp_Text;
  /// "shapem" and "shapet": the shape of the full window and of the rolled-up one. Only these two
  /// pictures keep their stored bits.
  std::array<Picture, 2> Temp_ShapeP;
};

/// Load skin picture: the picture `plik` ("main1" and so on) of a skin's folder, looked for as
/// .bmp, .gif and .jpg in this order. Throws SkinError where there is none or it cannot be read.
Picture Zaladuj_skore(const FileSystem& files, const std::filesystem::path& skinFolder,
                      std::wstring_view plik, StoredBits bits = StoredBits::Kept);

/// Loads a whole skin or nothing of it. Throws SkinError.
Skin loadSkin(const FileSystem& files, SkinValues& values, const std::filesystem::path& skinFolder);

}  // namespace kalvora
