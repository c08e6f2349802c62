#include "app/SkinPreview.h"

#include <cmath>

#include "base/ImageReduction.h"
#include "skin/Skin.h"
#include "skin/SkinnedWindow.h"

namespace kalvora {

namespace {

void writeSampleTexts(SkinnedWindow& window) {
  window.Pokaz_Tekst(RowId::lit, L" Kalvora");
  window.Pokaz_Tekst(RowId::lit_czas, L"7:30:00");
  window.Pokaz_Tekst(RowId::lit_czas2, L"2026-11-21");
  window.Pokaz_Tekst(RowId::lit_xof, L"1 of 5");
}

Pixel pixelOfColor(std::uint32_t redLow) {
  return pixelOf(redLow & 0xFFU, (redLow >> 8U) & 0xFFU, (redLow >> 16U) & 0xFFU);
}

/// The note fields are boxes of the system's, which a painted window leaves out.
void fillFields(Image& picture, const SkinDescription& description) {
  for (const FieldId id : kAllFields) {
    const FieldLook& look = description.field(id);
    if (!look.backgroundColor) continue;
    const auto whole = [](float value) { return static_cast<int>(std::lround(value)); };
    picture.fill({whole(look.left), whole(look.top), whole(look.width), whole(look.height)},
                 pixelOfColor(*look.backgroundColor));
  }
}

Image cutOut(const Image& picture, const std::optional<RowSpans>& shape, Pixel ground) {
  if (!shape) return picture;
  Image result(picture.width(), picture.height(), ground);
  for (const RowSpan& span : *shape) {
    result.draw(picture, {0, 0}, {span.left, span.y, span.right - span.left, 1});
  }
  return result;
}

}  // namespace

Image skinPreview(const FileSystem& files, SkinValues& values,
                  const std::filesystem::path& skinFolder, Size room, Pixel ground) {
  SkinnedWindow window;
  window.wear(loadSkin(files, values, skinFolder));
  writeSampleTexts(window);
  Image picture = window.paint({window.windowWidth(), window.fullHeight()});
  fillFields(picture, window.skin().description);
  return reducedToFit(cutOut(picture, window.fullShape(), ground), room);
}

}  // namespace kalvora
