#include "skinkit/SkinCheck.h"

#include <algorithm>

#include "skin/SkinError.h"
#include "skinkit/DescriptionCheck.h"
#include "skinkit/FaceCheck.h"
#include "skinkit/LayoutCheck.h"
#include "skinkit/PictureCheck.h"

namespace kalvora {

namespace {

void append(SkinFindings& all, SkinFindings more) {
  all.insert(all.end(), more.begin(), more.end());
}

/// The window can only be looked at where there is a whole skin to wear.
SkinFindings checkWorn(const FileSystem& files, SkinValues& values,
                       const std::filesystem::path& skinFolder) {
  try {
    SkinnedWindow window;
    const Skin skin = loadSkin(files, values, skinFolder);
    window.wear(skin);
    SkinFindings findings = checkPictures(skin);
    append(findings, checkLayout(skin, window));
    append(findings, checkFace(files, skinFolder, skin));
    return findings;
  } catch (const SkinError& error) {
    return {{Severity::Mistake, {}, {}, error.message() + L".", L"Make it smaller."}};
  }
}

}  // namespace

SkinFindings checkSkin(const FileSystem& files, SkinValues& values,
                       const std::filesystem::path& skinFolder) {
  SkinFindings findings = checkPictureFiles(files, skinFolder);
  const bool loads = !hasMistake(findings);
  append(findings, checkDescription(files, values, skinFolder));
  if (loads) append(findings, checkWorn(files, values, skinFolder));
  std::ranges::stable_sort(findings, {}, &SkinFinding::severity);
  return findings;
}

}  // namespace kalvora
