#include "skinkit/FaceCheck.h"

#include <algorithm>
#include <array>

#include "skinkit/LayoutParts.h"
#include "skinkit/PictureCheck.h"

namespace kalvora {

namespace {

constexpr std::array<std::wstring_view, 2> kFacePictures = {L"remind1", L"remind2"};
constexpr std::wstring_view kNoFace = L": a reminder shows neither Snooze nor Done.";

SkinFinding noFace(std::wstring file, std::wstring key, std::wstring problem, std::wstring remedy) {
  return {Severity::Mistake, std::move(file), std::move(key), std::move(problem) += kNoFace,
          std::move(remedy)};
}

bool isThere(const FileSystem& files, const std::filesystem::path& skinFolder,
             std::wstring_view picture) {
  return !filesOfPicture(files, skinFolder, picture).empty();
}

bool isMentioned(const Skin& skin, ButtonId id) {
  return skin.description.button(id) != ButtonPlace{};
}

void checkPlace(const Skin& skin, ButtonId id, SkinFindings& findings) {
  const ButtonPlace& place = skin.description.button(id);
  if (!isMentioned(skin, id)) {
    findings.push_back(
        noFace(std::wstring(kDescriptionFile), sectionName(id), L"There is no such place",
               L"Add the section with its X, Y, W and H, or take the rest of the face away."));
  } else if (place.width <= 0 || place.height <= 0) {
    findings.push_back(noFace(std::wstring(kDescriptionFile), sectionName(id) + L" W, H",
                              L"It has no size", L"Write its width and height in pixels."));
  }
}

void checkPicture(const FileSystem& files, const std::filesystem::path& skinFolder,
                  const Skin& skin, std::wstring_view name, SkinFindings& findings) {
  if (!isThere(files, skinFolder, name)) {
    findings.push_back(
        noFace(std::wstring(name), {}, L"The picture is missing",
               L"Save it as large as \"main1\", or take the rest of the face away."));
    return;
  }
  const SkinFindings some = checkPictureFile(files, skinFolder, name);
  findings.insert(findings.end(), some.begin(), some.end());
  if (hasMistake(some)) return;
  const Size size = Zaladuj_skore(files, skinFolder, name, StoredBits::Dropped).image.size();
  const Size wanted = skin.Temp_Main[0].image.size();
  if (size == wanted) return;
  findings.push_back(noFace(std::wstring(name), {},
                            L"It is " + sizeText(size) + L", \"main1\" is " + sizeText(wanted),
                            L"Make both the same size."));
}

bool isBegun(const FileSystem& files, const std::filesystem::path& skinFolder, const Skin& skin) {
  return std::ranges::any_of(kFaceButtons, [&](ButtonId id) { return isMentioned(skin, id); }) ||
         std::ranges::any_of(kFacePictures, [&](std::wstring_view name) {
           return isThere(files, skinFolder, name);
         });
}

}  // namespace

SkinFindings checkFace(const FileSystem& files, const std::filesystem::path& skinFolder,
                       const Skin& skin) {
  if (!isBegun(files, skinFolder, skin)) return {};
  SkinFindings findings;
  for (const std::wstring_view name : kFacePictures) {
    checkPicture(files, skinFolder, skin, name, findings);
  }
  for (const ButtonId id : kFaceButtons) checkPlace(skin, id, findings);
  if (!skin.face && !hasMistake(findings)) {
    findings.push_back(noFace({}, {}, L"With \"remind1\" and \"remind2\" the skin is too large",
                              L"Make its pictures smaller."));
  }
  return findings;
}

}  // namespace kalvora
