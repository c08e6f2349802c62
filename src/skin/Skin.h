#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "base/FileSystem.h"
#include "skin/Picture.h"
#include "skin/SkinDescription.h"
#include "skin/SkinError.h"

namespace kalvora {

/// The pictures of a skin together, so that two skins can be in memory at a time.
inline constexpr std::int64_t kMaxSkinPixels = 4'000'000;

/// What a skin may bring for a reminder on show: pictures as large as "main1".
struct ReminderFace {
  /// "remind1": the two buttons in their normal look, and the ground where the five main ones are
  /// not.
  Image atRest;
  /// "remind2": the two buttons in their pressed look.
  Image pressed;
};

/// A skin as its folder holds it: the description and the pictures.
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
  /// Nothing where the skin has no whole one.
  std::optional<ReminderFace> face;
};

/// Load skin picture: the picture `plik` ("main1" and so on) of a skin's folder, looked for as
/// .bmp, .gif and .jpg in this order. Throws SkinError where there is none or it cannot be read.
Picture Zaladuj_skore(const FileSystem& files, const std::filesystem::path& skinFolder,
                      std::wstring_view plik, StoredBits bits = StoredBits::Kept);

/// Loads a whole skin or nothing of it. Throws SkinError, but never for the face of a reminder: one
/// that is not whole is left out.
Skin loadSkin(const FileSystem& files, SkinValues& values, const std::filesystem::path& skinFolder);

}  // namespace kalvora
