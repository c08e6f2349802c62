#include "skinkit/LayoutCheck.h"

#include <algorithm>

#include "skin/WindowPicture.h"
#include "skinkit/Contrast.h"
#include "skinkit/LayoutParts.h"

namespace kalvora {

namespace {

/// What the rows have to say at their longest.
struct RowNeed {
  RowId row;
  std::wstring_view text;
};
constexpr std::array<RowNeed, 3> kRowNeeds = {{{RowId::lit_czas, L"11/21/2026 7:30:00 AM"},
                                               {RowId::lit_czas2, L"11/21/2026"},
                                               {RowId::lit_xof, L"12 of 99"}}};
constexpr double kSeenContrast = 1.05;  // less is no edge to the eye
constexpr int kLowestField = 15;        // a line of the system's small font with its border

std::wstring contrastText(double contrast) {
  return std::to_wstring(static_cast<int>(contrast * 10) / 10) + L"." +
         std::to_wstring(static_cast<int>(contrast * 10) % 10) + L" to 1";
}

bool takeTurns(const LayoutPart& first, const LayoutPart& second) {
  using Shown = LayoutPart::Shown;
  return first.shown != second.shown && first.shown != Shown::Always &&
         second.shown != Shown::Always;
}

class LayoutCheck {
 public:
  LayoutCheck(const Skin& skin, const SkinnedWindow& window)
      : skin_(skin), window_(window), parts_(layoutParts(window)) {}

  SkinFindings run() {
    checkRows();
    for (const LayoutPart& part : parts_) {
      checkPlace(part);
      if (part.kind == LayoutPart::Kind::Row) checkGround(part);
    }
    checkOverlaps();
    for (const ButtonId id : kEverySkinsButtons) {
      checkPressedLook(id, skin_.Temp_Main[0].image, skin_.Temp_Main[1].image, L"main2");
    }
    if (skin_.face) checkFace(*skin_.face);
    for (const FieldId id : kAllFields) checkReadable(id);
    return findings_;
  }

 private:
  void tell(Severity severity, std::wstring key, std::wstring problem, std::wstring remedy) {
    findings_.push_back({severity, std::wstring(kDescriptionFile), std::move(key),
                         std::move(problem), std::move(remedy)});
  }
  void mistake(std::wstring key, std::wstring problem, std::wstring remedy) {
    tell(Severity::Mistake, std::move(key), std::move(problem), std::move(remedy));
  }

  void checkRows() {
    if (skin_.description.cellWidth <= 0 || skin_.description.cellHeight <= 0) {
      mistake(L"[Graphic Text] Cell Width, Cell Height", L"A cell has no size, so no text is seen.",
              L"Write the size of one character of the strip \"text\".");
      return;
    }
    for (const RowId id : kAllRows) checkRowLength(id);
    for (const RowNeed& need : kRowNeeds) {
      const int cells = static_cast<int>(need.text.size());
      if (window_.rowLength(need.row) >= cells) continue;
      tell(Severity::Advice, sectionName(need.row) + L", Length",
           L"Texts such as \"" + std::wstring(need.text) + L"\" are cut off.",
           L"Give it " + std::to_wstring(cells) + L" cells if there is room.");
    }
  }

  void checkRowLength(RowId id) {
    const int asked = skin_.description.row(id).length;
    const int held = window_.rowLength(id);
    if (asked != held) {
      mistake(sectionName(id) + L", Length",
              L"The row cannot have " + std::to_wstring(asked) + L" cells; it gets " +
                  std::to_wstring(held) + L".",
              L"Write a number from 1 to " + std::to_wstring(SkinnedWindow::mostCells(id)) + L".");
    } else if (held == 0) {
      mistake(sectionName(id) + L", Length", L"The row has no cells.",
              L"Write how many characters there is room for.");
    }
  }

  void checkPlace(const LayoutPart& part) {
    const Size full{window_.windowWidth(), window_.fullHeight() - 1};
    if (part.rect.empty()) {
      if (part.kind != LayoutPart::Kind::Row) {
        mistake(part.name + L" W, H", L"It has no size, so it is never seen.",
                L"Write its width and height in pixels.");
      }
      return;
    }
    checkInsideWindow(part, full);
    if (part.inTitleStrip) checkInsideStrip(part);
    if (part.kind == LayoutPart::Kind::Field && part.rect.height < kLowestField) {
      mistake(part.name + L" H", L"The field is too low for a line of text.",
              L"Make it at least " + std::to_wstring(kLowestField) + L" pixels high.");
    }
  }

  void checkInsideStrip(const LayoutPart& part) {
    const Size rolled{window_.windowWidth(), window_.rolledHeight()};
    const int seen = pixelsInSight(part.rect, window_.rolledShape(), rolled);
    if (seen == 0) {
      mistake(part.name, L"It is out of sight when the window is rolled up.",
              L"Put it into the part that \"shapet\" shows.");
    } else if (part.kind == LayoutPart::Kind::Row && seen < part.rect.width * part.rect.height) {
      mistake(part.name, L"A piece of it is cut off when the window is rolled up.",
              L"Put all of it into the part that \"shapet\" shows.");
    }
  }

  void checkInsideWindow(const LayoutPart& part, Size full) {
    if (intersection(part.rect, {0, 0, full.width, full.height}) != part.rect) {
      mistake(part.name,
              L"It reaches beyond the window, which is " + std::to_wstring(full.width) + L" x " +
                  std::to_wstring(full.height) + L".",
              L"Move it inside, or make it smaller.");
      return;
    }
    const int seen = pixelsInSight(part.rect, window_.fullShape(), full);
    if (seen == 0) {
      mistake(part.name, L"It lies where \"shapem\" is white: nobody can see it.",
              L"Move it onto the window.");
    } else if (part.kind != LayoutPart::Kind::Button && seen < part.rect.width * part.rect.height) {
      mistake(part.name, L"The outline of the window cuts a piece of it off.",
              L"Move it away from the edge.");
    }
  }

  /// The cells are drawn with their ground.
  void checkGround(const LayoutPart& row) {
    const Image beneath = skin_.Temp_Main[0].image.crop(row.rect);
    const Pixel ground = commonestColor(skin_.Temp_Text.image);
    if (beneath.empty() || contrastBetween(commonestColor(beneath), ground) < kSeenContrast) return;
    tell(Severity::Advice, row.name,
         L"Its letters bring a ground of another colour than \"main1\" has there: a box is seen.",
         L"Paint that place of \"main1\" in the colour of the ground of \"text\".");
  }

  void checkOverlaps() {
    for (auto first = parts_.begin(); first != parts_.end(); ++first) {
      for (auto second = first + 1; second != parts_.end(); ++second) {
        if (intersection(first->rect, second->rect).empty() || takeTurns(*first, *second)) continue;
        mistake(second->name, L"It lies on top of " + first->name + L".", L"Move one of the two.");
      }
    }
  }

  void checkPressedLook(ButtonId id, const Image& normalLooks, const Image& pressedLooks,
                        std::wstring_view pressedPicture) {
    const Rect rect = window_.buttonRect(id);
    const Image normal = normalLooks.crop(rect);
    if (normal.empty() || normal != pressedLooks.crop(rect)) return;
    mistake(
        sectionName(id), L"It looks the same when it is pressed.",
        L"Draw its pressed look at the same place of \"" + std::wstring(pressedPicture) + L"\".");
  }

  void checkFace(const ReminderFace& face) {
    for (const ButtonId id : kFaceButtons) {
      checkPressedLook(id, face.atRest, face.pressed, L"remind2");
    }
    for (const ButtonId id : kMainButtons) checkHidden(id, face);
  }

  /// Where a main button was, "remind1" is seen.
  void checkHidden(ButtonId id, const ReminderFace& face) {
    const Rect rect = window_.buttonRect(id);
    const Image normal = skin_.Temp_Main[0].image.crop(rect);
    const bool isDrawn = normal != skin_.Temp_Main[1].image.crop(rect);
    if (!isDrawn || normal != face.atRest.crop(rect)) return;
    mistake(sectionName(id), L"\"remind1\" shows it, but a reminder hides it.",
            L"Paint the ground that is to be seen at its place of \"remind1\".");
  }

  void checkReadable(FieldId id) {
    const FieldLook& look = skin_.description.field(id);
    const Pixel ground = look.backgroundColor
                             ? pixelOfColor(*look.backgroundColor)
                             : meanColor(skin_.Temp_Main[0].image, fieldRect(look));
    const double contrast = contrastBetween(pixelOfColor(look.textColor), ground);
    if (contrast >= kReadableContrast) return;
    mistake(sectionName(id) + L" Text color",
            L"The text is hard to read: its contrast is " + contrastText(contrast) + L".",
            L"Choose colours with at least 4.5 to 1.");
  }

  const Skin& skin_;
  const SkinnedWindow& window_;
  std::vector<LayoutPart> parts_;
  SkinFindings findings_;
};

}  // namespace

SkinFindings checkLayout(const Skin& skin, const SkinnedWindow& window) {
  return LayoutCheck(skin, window).run();
}

}  // namespace kalvora
