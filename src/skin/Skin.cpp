#include "skin/Skin.h"

#include <optional>
#include <span>
#include <string>
#include <utility>

namespace kalvora {

namespace {

constexpr int kMaxWindowSide = 2184;

constexpr std::array<std::wstring_view, 3> kExtensions = {L".bmp", L".gif", L".jpg"};

[[noreturn]] void throwUnreadable(const std::filesystem::path& file) {
  throw SkinError(L"The skin picture cannot be read: " + file.wstring());
}

Picture readPicture(const FileSystem& files, const std::filesystem::path& file, StoredBits bits) {
  const std::optional<std::uintmax_t> size = files.size(file);
  if (!size || *size > kMaxPictureBytes) throwUnreadable(file);
  try {
    return decodePicture(files.read(file, static_cast<std::size_t>(*size)), bits);
  } catch (const FileError&) {
    throwUnreadable(file);
  } catch (const PictureError&) {
    throwUnreadable(file);
  }
}

std::int64_t pixelsOf(Size size) {
  return std::int64_t{size.width} * size.height;
}

std::int64_t pixelsTogether(const Skin& skin) {
  std::int64_t pixels = 0;
  for (const Picture* picture : {&skin.Temp_Main[0], &skin.Temp_Main[1], &skin.Temp_Titlebar,
                                 &skin.Temp_Text, &skin.Temp_ShapeP[0], &skin.Temp_ShapeP[1]}) {
    pixels += pixelsOf(picture->image.size());
  }
  return pixels;
}

void checkTogether(const Skin& skin, const std::filesystem::path& skinFolder) {
  if (pixelsTogether(skin) > kMaxSkinPixels) {
    throw SkinError(L"The pictures of this skin are too large: " + skinFolder.wstring());
  }
}

/// A larger window has no place in 16 bits of twips and could never be shown.
void checkWindow(const Skin& skin, const std::filesystem::path& skinFolder) {
  for (const Picture& shape : skin.Temp_ShapeP) {
    if (shape.width() > kMaxWindowSide || shape.height() > kMaxWindowSide) {
      throw SkinError(L"The window of this skin is too large: " + skinFolder.wstring());
    }
  }
}

/// The platform reads a description whole for every key.
void checkDescriptionFile(const FileSystem& files, const std::filesystem::path& skinFolder) {
  const std::filesystem::path file = skinFolder / kDescriptionFile;
  if (files.size(file).value_or(0) > kMostDescriptionBytes) {
    throw SkinError(L"The description of this skin is too large: " + file.wstring());
  }
}

/// Each button keeps pieces of the pictures of its own.
std::int64_t pixelsOfButtons(const Skin& skin, std::span<const ButtonId> buttons) {
  std::int64_t pixels = 0;
  for (const ButtonId id : buttons) {
    const ButtonPlace& place = skin.description.button(id);
    const Rect piece = intersection({place.x, place.y, place.width, place.height},
                                    skin.Temp_Main[0].image.bounds());
    pixels += pixelsOf({piece.width, piece.height});
  }
  return pixels;
}

void checkButtons(const Skin& skin, const std::filesystem::path& skinFolder) {
  if (pixelsOfButtons(skin, kEverySkinsButtons) > kMaxPicturePixels) {
    throw SkinError(L"The buttons of this skin are too large: " + skinFolder.wstring());
  }
}

/// What holds for a skin holds with its face, too.
bool faceHasRoom(const Skin& skin) {
  const std::int64_t face = 2 * pixelsOf(skin.Temp_Main[0].image.size());
  return pixelsTogether(skin) + face <= kMaxSkinPixels &&
         pixelsOfButtons(skin, kAllButtons) <= kMaxPicturePixels;
}

/// A reminder is seen without its face, too: whatever is wrong with that must not cost the skin.
std::optional<ReminderFace> loadFace(const FileSystem& files,
                                     const std::filesystem::path& skinFolder, const Skin& skin) {
  if (!skin.description.placesFace() || !faceHasRoom(skin)) return std::nullopt;
  const auto take = [&](std::wstring_view plik) {
    return Zaladuj_skore(files, skinFolder, plik, StoredBits::Dropped).image;
  };
  try {
    ReminderFace face{take(L"remind1"), take(L"remind2")};
    const Size size = skin.Temp_Main[0].image.size();
    if (face.atRest.size() != size || face.pressed.size() != size) return std::nullopt;
    return face;
  } catch (const SkinError&) {
    return std::nullopt;
  }
}

}  // namespace

Picture Zaladuj_skore(const FileSystem& files, const std::filesystem::path& skinFolder,
                      std::wstring_view plik, StoredBits bits) {
  for (const std::wstring_view extension : kExtensions) {
    const std::wstring name = std::wstring(plik) + std::wstring(extension);
    if (files.fileExists(skinFolder, name)) return readPicture(files, skinFolder / name, bits);
  }
  // The message names the .bmp, whatever else was looked for.
  throw SkinError(L"Ther's no Skin in this Directory \r\n" + skinFolder.wstring() + L"\\" +
                  std::wstring(plik) + L".bmp");
}

Skin loadSkin(const FileSystem& files, SkinValues& values,
              const std::filesystem::path& skinFolder) {
  Skin skin;
  // Only a shape is ever looked at bit by bit.
  const auto take = [&](Picture& place, std::wstring_view plik, StoredBits bits) {
    place = Zaladuj_skore(files, skinFolder, plik, bits);
    checkTogether(skin, skinFolder);
  };
  take(skin.Temp_Main[0], L"main1", StoredBits::Dropped);
  take(skin.Temp_Main[1], L"main2", StoredBits::Dropped);
  take(skin.Temp_Titlebar, L"titlebar", StoredBits::Dropped);
  take(skin.Temp_Text, L"text", StoredBits::Dropped);
  take(skin.Temp_ShapeP[0], L"shapem", StoredBits::Kept);
  take(skin.Temp_ShapeP[1], L"shapet", StoredBits::Kept);
  checkWindow(skin, skinFolder);
  checkDescriptionFile(files, skinFolder);
  skin.description = Odczytaj_ini(values, skinFolder);
  checkButtons(skin, skinFolder);
  skin.face = loadFace(files, skinFolder, skin);
  return skin;
}

}  // namespace kalvora
