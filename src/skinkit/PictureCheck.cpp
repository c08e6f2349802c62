#include "skinkit/PictureCheck.h"

#include <algorithm>
#include <array>

#include "skin/BitmapFont.h"
#include "skin/SkinError.h"
#include "skin/WindowShape.h"
#include "skinkit/Contrast.h"

namespace kalvora {

std::wstring sizeText(Size size) {
  return std::to_wstring(size.width) + L" x " + std::to_wstring(size.height);
}

namespace {

constexpr std::array<std::wstring_view, 6> kPictures = {L"main1", L"main2",  L"titlebar",
                                                        L"text",  L"shapem", L"shapet"};
constexpr std::array<std::wstring_view, 3> kExtensions = {L".bmp", L".gif", L".jpg"};

SkinFinding mistake(std::wstring_view file, std::wstring problem, std::wstring remedy) {
  return {Severity::Mistake, std::wstring(file), {}, std::move(problem), std::move(remedy)};
}

SkinFinding advice(std::wstring_view file, std::wstring problem, std::wstring remedy) {
  return {Severity::Advice, std::wstring(file), {}, std::move(problem), std::move(remedy)};
}

void checkShape(const Picture& shape, std::wstring_view file, SkinFindings& findings) {
  if (shape.bitsPerPixel <= 8) {
    findings.push_back(mistake(file,
                               L"A shape needs 16, 24 or 32 bits a pixel, this one has " +
                                   std::to_wstring(shape.bitsPerPixel) +
                                   L": the window stays a rectangle.",
                               L"Save it as a BMP of 24 bits."));
  } else if (!SkinShapeToRegion(shape)) {
    findings.push_back(
        mistake(file, L"No outline can be made of it: the window stays a rectangle.",
                L"Leave something that is not pure white above the last row, in at most 30,000 "
                L"runs of pixels."));
  }
}

bool isOpaque(const Picture& shape, int x, int y) {
  return shape.image.at(x, y) != pixelOf(255, 255, 255);
}

/// The last row never shows, nor does the last pixel of a run that touches the right edge.
void checkShapeEdge(const Picture& shape, std::wstring_view file, SkinFindings& findings) {
  if (shape.image.empty()) return;
  bool cut = false;
  for (int x = 0; x < shape.width(); ++x) cut = cut || isOpaque(shape, x, shape.height() - 1);
  for (int y = 0; y < shape.height(); ++y) cut = cut || isOpaque(shape, shape.width() - 1, y);
  if (!cut) return;
  findings.push_back(advice(file, L"The last row and the last column of a shape never show.",
                            L"Make them white, so that the picture says what is seen."));
}

bool isAlmostWhite(Pixel pixel) {
  constexpr unsigned kPale = 240;
  const auto part = [pixel](unsigned shift) { return (pixel >> shift) & 0xFFU; };
  return pixel != pixelOf(255, 255, 255) && std::min({part(16U), part(8U), part(0U)}) >= kPale;
}

/// A brush with a soft edge, or a JPEG, leaves pale pixels along the outline: they are inside.
void checkHardEdges(const Picture& shape, std::wstring_view file, SkinFindings& findings) {
  for (int y = 0; y < shape.height(); ++y) {
    for (int x = 1; x < shape.width(); ++x) {
      const bool leaves = isAlmostWhite(shape.image.at(x - 1, y)) && !isOpaque(shape, x, y);
      const bool enters = isAlmostWhite(shape.image.at(x, y)) && !isOpaque(shape, x - 1, y);
      if (!leaves && !enters) continue;
      findings.push_back(advice(file,
                                L"There are almost white pixels beside white ones, the first in "
                                L"row " +
                                    std::to_wstring(y) + L": they are inside the window.",
                                L"Draw the outline without soft edges, and not as a JPEG."));
      return;
    }
  }
}

void checkSizes(const Skin& skin, SkinFindings& findings) {
  const Picture& main1 = skin.Temp_Main[0];
  const Picture& main2 = skin.Temp_Main[1];
  const Picture& full = skin.Temp_ShapeP[0];
  const Picture& rolled = skin.Temp_ShapeP[1];
  if (main1.width() < full.width() - 1 || main1.height() < full.height() - 1) {
    findings.push_back(mistake(L"main1",
                               L"The picture (" + sizeText(main1.image.size()) +
                                   L") is smaller than the shape (" + sizeText(full.image.size()) +
                                   L"): a part of the window is bare.",
                               L"Make it as large as \"shapem\"."));
  }
  if (main1.image.size() != main2.image.size()) {
    findings.push_back(mistake(L"main2",
                               L"It is " + sizeText(main2.image.size()) + L", \"main1\" is " +
                                   sizeText(main1.image.size()) +
                                   L": the pressed looks are cut at the same places from both.",
                               L"Make both the same size."));
  }
  if (rolled.height() > full.height()) {
    findings.push_back(mistake(L"shapet",
                               L"The rolled-up window would be higher than the full one (" +
                                   std::to_wstring(rolled.height()) + L" and " +
                                   std::to_wstring(full.height()) + L" pixels).",
                               L"Make it as high as the title strip."));
  }
  if (rolled.width() != full.width()) {
    findings.push_back(advice(L"shapet",
                              L"It is " + std::to_wstring(rolled.width()) +
                                  L" pixels wide, \"shapem\" " + std::to_wstring(full.width()) +
                                  L".",
                              L"Make both as wide: the window has the width of \"shapem\"."));
  }
}

void checkStrip(const Skin& skin, SkinFindings& findings) {
  const SkinDescription& description = skin.description;
  if (description.cellWidth <= 0 || description.cellHeight <= 0) return;  // told of the keys
  const Picture& strip = skin.Temp_Text;
  const int needed = kGlyphCount * description.cellWidth;
  if (strip.width() < needed || strip.height() < description.cellHeight) {
    findings.push_back(mistake(L"text",
                               L"The strip is " + sizeText(strip.image.size()) + L", " +
                                   std::to_wstring(kGlyphCount) + L" cells need " +
                                   std::to_wstring(needed) + L" x " +
                                   std::to_wstring(description.cellHeight) + L".",
                               L"Draw all " + std::to_wstring(kGlyphCount) +
                                   L" characters, or mend \"Cell Width\" and \"Cell Height\"."));
    return;
  }
  const Pixel ground = commonestColor(strip.image);
  std::wstring empty;
  for (int glyph = 0; glyph < kSpaceGlyph; ++glyph) {
    const Image cell = strip.image.crop(
        {glyph * description.cellWidth, 0, description.cellWidth, description.cellHeight});
    if (meanColor(cell, cell.bounds()) == ground && commonestColor(cell) == ground) {
      empty += (empty.empty() ? L"" : L", ") + std::to_wstring(glyph);
    }
  }
  if (!empty.empty()) {
    findings.push_back(mistake(L"text", L"These glyphs are empty (counted from 0): " + empty + L".",
                               L"Draw them, or text with those characters has holes."));
  }
}

/// Of all the pixels that are not ground, those that make a letter readable.
bool isReadable(const Image& strip, Pixel ground) {
  std::size_t ink = 0;
  std::size_t readable = 0;
  for (const Pixel pixel : strip.pixels()) {
    if (pixel == ground) continue;
    ++ink;
    if (contrastBetween(pixel, ground) >= kReadableContrast) ++readable;
  }
  // Softened edges are paler than the letter, but not most of it.
  return readable * 3 >= ink && readable > 0;
}

void checkInk(const Skin& skin, SkinFindings& findings) {
  const Image& strip = skin.Temp_Text.image;
  if (isReadable(strip, commonestColor(strip))) return;
  findings.push_back(mistake(L"text", L"The font is hard to read: its contrast is below 4.5 to 1.",
                             L"Make the letters darker, or lighter, against their ground."));
}

}  // namespace

std::vector<std::wstring> filesOfPicture(const FileSystem& files,
                                         const std::filesystem::path& skinFolder,
                                         std::wstring_view picture) {
  std::vector<std::wstring> found;
  for (const std::wstring_view extension : kExtensions) {
    const std::wstring name = std::wstring(picture) + std::wstring(extension);
    if (files.fileExists(skinFolder, name)) found.push_back(name);
  }
  return found;
}

SkinFindings checkPictureFile(const FileSystem& files, const std::filesystem::path& skinFolder,
                              std::wstring_view picture) {
  const std::vector<std::wstring> found = filesOfPicture(files, skinFolder, picture);
  if (found.empty()) {
    return {mistake(picture, L"The picture is missing.",
                    L"Save it as \"" + std::wstring(picture) + L".bmp\", \".gif\" or \".jpg\".")};
  }
  SkinFindings findings;
  for (std::size_t i = 1; i < found.size(); ++i) {
    findings.push_back(
        advice(found[i], L"It is never looked at, because there is \"" + found.front() + L"\".",
               L"Remove one of the two."));
  }
  try {
    Zaladuj_skore(files, skinFolder, picture);
  } catch (const SkinError&) {
    findings.push_back(mistake(found.front(), L"The picture cannot be read.",
                               L"Save it anew as a BMP, GIF or JPEG of at most two million "
                               L"pixels."));
  }
  return findings;
}

SkinFindings checkPictureFiles(const FileSystem& files, const std::filesystem::path& skinFolder) {
  SkinFindings findings;
  for (const std::wstring_view picture : kPictures) {
    const SkinFindings some = checkPictureFile(files, skinFolder, picture);
    findings.insert(findings.end(), some.begin(), some.end());
  }
  return findings;
}

SkinFindings checkPictures(const Skin& skin) {
  SkinFindings findings;
  checkSizes(skin, findings);
  checkShape(skin.Temp_ShapeP[0], L"shapem", findings);
  checkShape(skin.Temp_ShapeP[1], L"shapet", findings);
  checkShapeEdge(skin.Temp_ShapeP[0], L"shapem", findings);
  checkHardEdges(skin.Temp_ShapeP[0], L"shapem", findings);
  checkHardEdges(skin.Temp_ShapeP[1], L"shapet", findings);
  checkStrip(skin, findings);
  checkInk(skin, findings);
  return findings;
}

}  // namespace kalvora
