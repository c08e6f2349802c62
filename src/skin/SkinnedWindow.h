#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "base/Geometry.h"
#include "base/Image.h"
#include "skin/BitmapFont.h"
#include "skin/FontCells.h"
#include "skin/PictureClip.h"
#include "skin/Skin.h"
#include "skin/SkinnedButton.h"

namespace kalvora {

enum class Visible { No, Yes };
enum class Hide { No, Yes };

/// The look of the main window as a skin gives it: which looks its buttons show, what its rows of
/// cells say, its outline, and the picture of it all. All in pixels of the window.
class SkinnedWindow {
 public:
  SkinnedWindow();

  /// Puts on another skin: all buttons show their normal look, all cells are blank. What is hidden
  /// stays hidden. Of the skin's pictures only what is painted is kept: they would be most of the
  /// program's memory.
  void wear(Skin skin);
  const SkinDescription& description() const { return description_; }

  /// The width of the full shape picture, less 1.
  int windowWidth() const { return std::max(0, fullSize_.width - 1); }
  /// The heights of the two shape pictures.
  int fullHeight() const { return fullSize_.height; }
  int rolledHeight() const { return rolledSize_.height; }
  /// The outline of the full and of the rolled-up window; nothing for a plain rectangle.
  const std::optional<RowSpans>& fullShape() const { return fullShape_; }
  const std::optional<RowSpans>& rolledShape() const { return rolledShape_; }

  Rect buttonRect(ButtonId id) const { return button(id).rect(); }
  /// The button shows its normal look (element 0 takes element 1).
  void showNormal(ButtonId id);
  /// The button shows its pressed look (element 0 takes element 2).
  void showPressed(ButtonId id);
  bool buttonVisible(ButtonId id) const;
  /// The visible button at a point; where two overlap, the one that lies above.
  std::optional<ButtonId> buttonAt(Point point) const;

  /// Hides the five main buttons (while a reminder is on show) or shows them again; while they are
  /// hidden the two of the face are seen, where the skin has one. Independent of Ukryj_pics: none
  /// of them is seen while that hides them.
  void setMainButtonsVisible(Visible visible);
  /// Hides the face all the same, where what it does would be done to no reminder.
  void setFaceVisible(Visible visible);
  /// Hide pictures: hides what lies on the note area (the rows lit_czas, lit_czas2 and lit_xof, the
  /// main buttons or those of the face, and the four fields) while the window is rolled up, or
  /// shows it again.
  void Ukryj_pics(Hide ukryj);
  /// Whether the window has to hide its four fields too.
  bool fieldsHidden() const { return noteAreaHidden_; }

  /// Show letter: the cell `ob` of a row shows the glyph of `s`. A character that the font does not
  /// have leaves the cell as it is.
  void PokazLiterke(wchar_t s, RowId row, int ob);
  void blankCell(RowId row, int cell);
  /// Show text: fills a whole row with a text, cut at the row's length or filled up with spaces.
  void Pokaz_Tekst(RowId objekt, std::wstring_view jaki);
  static constexpr int mostCells(RowId id) { return id == RowId::lit ? 41 : 21; }
  /// The number of cells that the row has in this skin, at most mostCells().
  int rowLength(RowId id) const { return row(id).length(); }
  /// The glyph that a cell shows, or kBlankGlyph.
  int glyphAt(RowId id, int cell) const { return row(id).glyphAt(cell); }
  bool rowVisible(RowId id) const { return id == RowId::lit || !noteAreaHidden_; }

  /// The whole window of this size. What the skin's picture does not cover is plain grey.
  Image paint(Size window) const;
  /// Paints anew the part of an earlier picture that lies in `area`.
  void paintOver(Image& picture, const Rect& area) const;

  /// Repaint form pictures: all buttons are to be painted again.
  void Refresh_Form_Pic();
  /// A rectangle around all that looks different since the last call; empty where nothing does.
  Rect takeDirty();

 private:
  const SkinnedButton& button(ButtonId id) const { return buttons_[static_cast<std::size_t>(id)]; }
  SkinnedButton& button(ButtonId id) { return buttons_[static_cast<std::size_t>(id)]; }
  const FontCells& row(RowId id) const { return rows_[static_cast<std::size_t>(id)]; }
  FontCells& row(RowId id) { return rows_[static_cast<std::size_t>(id)]; }

  /// Load main: cuts both looks of each of these buttons and places them.
  void WczytajMain(PictureClip& PicClip1, const Image& normalLooks, const Image& pressedLooks,
                   std::span<const ButtonId> buttons);
  void cutFace(PictureClip& PicClip1, const std::optional<ReminderFace>& face);
  void takeGrounds(const std::optional<ReminderFace>& face);
  /// Takes the main buttons out of the picture, while a reminder hides them in the note area. In
  /// the strip of a rolled-up window the skin's picture stays as its author painted it.
  void paintGrounds(Image& picture, const Rect& area) const;
  /// Load text: cuts the font and lays out the rows, all cells blank.
  void WczytajText(PictureClip& PicClip1, const Image& font);
  void touch(const Rect& area);
  void touchNoteButtons();

  SkinDescription description_;
  Image main1_;
  Size fullSize_;  // of the shape pictures
  Size rolledSize_;
  std::optional<RowSpans> fullShape_;
  std::optional<RowSpans> rolledShape_;
  std::array<SkinnedButton, kButtonCount> buttons_;
  BitmapFont literka01;
  std::array<FontCells, kRowCount> rows_;
  bool hasFace_ = false;
  bool mainButtonsVisible_ = true;
  bool faceVisible_ = true;  // in place of those
  bool noteAreaHidden_ = false;
  Rect dirty_;
};

}  // namespace kalvora
