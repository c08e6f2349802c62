#include "skin/SkinnedWindow.h"

#include <algorithm>
#include <utility>

#include "skin/ButtonGround.h"
#include "skin/WindowShape.h"

namespace kalvora {

namespace {

/// What is seen where a skin's picture is smaller than its window.
constexpr Pixel kBareWindow = pixelOf(240, 240, 240);

Rect around(const Rect& a, const Rect& b) {
  if (a.empty()) return b;
  if (b.empty()) return a;
  const int left = std::min(a.x, b.x);
  const int top = std::min(a.y, b.y);
  return {left, top, std::max(a.right(), b.right()) - left, std::max(a.bottom(), b.bottom()) - top};
}

void drawPiece(Image& picture, const PicturePiece& piece, const Rect& place, const Rect& clip) {
  picture.draw(piece.image, {place.x + piece.offset.x, place.y + piece.offset.y}, clip);
}

}  // namespace

SkinnedWindow::SkinnedWindow()
    : rows_{FontCells(mostCells(RowId::lit)), FontCells(mostCells(RowId::lit_czas)),
            FontCells(mostCells(RowId::lit_czas2)), FontCells(mostCells(RowId::lit_xof))} {}

void SkinnedWindow::wear(Skin skin) {
  const auto& [fullPicture, rolledPicture] = skin.Temp_ShapeP;
  fullSize_ = fullPicture.image.size();
  rolledSize_ = rolledPicture.image.size();
  fullShape_ = SkinShapeToRegion(fullPicture);
  rolledShape_ = SkinShapeToRegion(rolledPicture);
  description_ = skin.description;
  main1_ = std::move(skin.Temp_Main[0].image);
  PictureClip PicClip1;
  WczytajMain(PicClip1, main1_, skin.Temp_Main[1].image, kEverySkinsButtons);
  cutFace(PicClip1, skin.face);
  takeGrounds(skin.face);
  WczytajText(PicClip1, skin.Temp_Text.image);
  dirty_ = {0, 0, fullSize_.width, std::max(fullHeight(), rolledHeight())};
}

void SkinnedWindow::WczytajMain(PictureClip& PicClip1, const Image& normalLooks,
                                const Image& pressedLooks, std::span<const ButtonId> buttons) {
  PicClip1.setSource(pressedLooks);
  for (const ButtonId id : buttons) {
    const ButtonPlace& place = description_.button(id);
    Wytnij(PicClip1, button(id).pressedLook(), place.x, place.y, place.width, place.height);
  }
  PicClip1.setSource(normalLooks);
  for (const ButtonId id : buttons) {
    const ButtonPlace& place = description_.button(id);
    Przesun_Pic(PicClip1, button(id), place.x, place.y, place.width, place.height);
  }
}

void SkinnedWindow::cutFace(PictureClip& PicClip1, const std::optional<ReminderFace>& face) {
  hasFace_ = face.has_value();
  for (const ButtonId id : kFaceButtons) button(id) = {};
  if (face) WczytajMain(PicClip1, face->atRest, face->pressed, kFaceButtons);
}

void SkinnedWindow::takeGrounds(const std::optional<ReminderFace>& face) {
  std::array<Rect, kEverySkinsButtons.size()> places;
  std::ranges::transform(kEverySkinsButtons, places.begin(),
                         [&](ButtonId id) { return buttonRect(id); });
  for (const ButtonId id : kMainButtons) {
    const Rect place = buttonRect(id);
    button(id).setGround(face ? face->atRest.crop(place) : groundUnder(main1_, place, places));
  }
}

void SkinnedWindow::WczytajText(PictureClip& PicClip1, const Image& font) {
  const Size cell{description_.cellWidth, description_.cellHeight};
  PicClip1.setSource(font);
  literka01.cut(PicClip1, cell);
  for (const RowId id : kAllRows) row(id).layOut(description_.row(id), cell);
}

void SkinnedWindow::showNormal(ButtonId id) {
  if (button(id).showNormal() && buttonVisible(id)) touch(buttonRect(id));
}

void SkinnedWindow::showPressed(ButtonId id) {
  if (button(id).showPressed() && buttonVisible(id)) touch(buttonRect(id));
}

bool SkinnedWindow::buttonVisible(ButtonId id) const {
  if (isFaceButton(id)) {
    return hasFace_ && faceVisible_ && !mainButtonsVisible_ && !noteAreaHidden_;
  }
  return !isMainButton(id) || (mainButtonsVisible_ && !noteAreaHidden_);
}

std::optional<ButtonId> SkinnedWindow::buttonAt(Point point) const {
  const auto hit = std::find_if(kAllButtons.rbegin(), kAllButtons.rend(), [&](ButtonId id) {
    return buttonVisible(id) && buttonRect(id).contains(point);
  });
  if (hit == kAllButtons.rend()) return std::nullopt;
  return *hit;
}

void SkinnedWindow::setMainButtonsVisible(Visible visible) {
  const bool wanted = visible == Visible::Yes;
  if (std::exchange(mainButtonsVisible_, wanted) != wanted) touchNoteButtons();
}

void SkinnedWindow::setFaceVisible(Visible visible) {
  const bool wanted = visible == Visible::Yes;
  if (std::exchange(faceVisible_, wanted) != wanted) touchNoteButtons();
}

void SkinnedWindow::Ukryj_pics(Hide ukryj) {
  const bool wanted = ukryj == Hide::Yes;
  if (std::exchange(noteAreaHidden_, wanted) == wanted) return;
  touchNoteButtons();
  for (const RowId id : {RowId::lit_czas, RowId::lit_czas2, RowId::lit_xof}) touch(row(id).area());
}

void SkinnedWindow::PokazLiterke(wchar_t s, RowId id, int ob) {
  const std::optional<int> glyph = glyphOf(s);
  if (!glyph) return;
  if (row(id).show(ob, *glyph) && rowVisible(id)) touch(row(id).cellRect(ob));
}

void SkinnedWindow::blankCell(RowId id, int cell) {
  if (row(id).show(cell, kBlankGlyph) && rowVisible(id)) touch(row(id).cellRect(cell));
}

void SkinnedWindow::Pokaz_Tekst(RowId objekt, std::wstring_view jaki) {
  const int max_i = rowLength(objekt);
  for (int cell = 0; cell < max_i; ++cell) {
    const auto place = static_cast<std::size_t>(cell);
    PokazLiterke(place < jaki.size() ? jaki[place] : L' ', objekt, cell);
  }
}

Image SkinnedWindow::paint(Size window) const {
  Image picture(window.width, window.height);
  paintOver(picture, picture.bounds());
  return picture;
}

void SkinnedWindow::paintOver(Image& picture, const Rect& area) const {
  picture.fill(area, kBareWindow);
  picture.draw(main1_, {0, 0}, area);
  if (!mainButtonsVisible_ && !noteAreaHidden_) paintGrounds(picture, area);
  for (const RowId id : kAllRows) {
    if (!rowVisible(id)) continue;
    for (int cell = 0; cell < rowLength(id); ++cell) {
      drawPiece(picture, literka01.glyph(glyphAt(id, cell)), row(id).cellRect(cell), area);
    }
  }
  // The buttons lie above the cells, a later one above an earlier one.
  for (const ButtonId id : kAllButtons) {
    if (buttonVisible(id)) drawPiece(picture, button(id).shown(), buttonRect(id), area);
  }
}

void SkinnedWindow::paintGrounds(Image& picture, const Rect& area) const {
  for (const ButtonId id : kMainButtons) {
    const Rect place = intersection(buttonRect(id), main1_.bounds());
    picture.draw(button(id).ground(), {place.x, place.y}, area);
  }
}

void SkinnedWindow::Refresh_Form_Pic() {
  for (const ButtonId id : kAllButtons) touch(buttonRect(id));
}

Rect SkinnedWindow::takeDirty() {
  return std::exchange(dirty_, {});
}

void SkinnedWindow::touch(const Rect& area) {
  dirty_ = around(dirty_, area);
}

void SkinnedWindow::touchNoteButtons() {
  for (const ButtonId id : kMainButtons) touch(buttonRect(id));
  for (const ButtonId id : kFaceButtons) touch(buttonRect(id));
}

}  // namespace kalvora
