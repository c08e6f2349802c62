#include "app/SkinPreview.h"

#include "base/ImageReduction.h"
#include "skin/Skin.h"
#include "skin/SkinnedWindow.h"
#include "skin/WindowPicture.h"

namespace kalvora {

namespace {

void writeSampleTexts(SkinnedWindow& window) {
  window.Pokaz_Tekst(RowId::lit, L" Kalvora");
  window.Pokaz_Tekst(RowId::lit_czas, L"7:30:00");
  window.Pokaz_Tekst(RowId::lit_czas2, L"2026-11-21");
  window.Pokaz_Tekst(RowId::lit_xof, L"1 of 5");
}

}  // namespace

Image skinPreview(const FileSystem& files, SkinValues& values,
                  const std::filesystem::path& skinFolder, Size room, Pixel ground) {
  SkinnedWindow window;
  window.wear(loadSkin(files, values, skinFolder));
  writeSampleTexts(window);
  Image picture = window.paint({window.windowWidth(), window.fullHeight()});
  fillFields(picture, window.description());
  return reducedToFit(cutOut(picture, window.fullShape(), ground), room);
}

}  // namespace kalvora
