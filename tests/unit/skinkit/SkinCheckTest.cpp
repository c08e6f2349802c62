#include "skinkit/SkinCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "BrokenSkin.h"
#include "FindingsOf.h"
#include "ProjectFolders.h"
#include "fakes/BmpBuilder.h"

namespace kalvora {
namespace {

constexpr int kWidth = 321;  // of the skin's pictures
constexpr int kHeight = 363;
constexpr std::uint32_t kWhite = 0xFFFFFF;

/// One way to break a skin, and what is to be said of it.
struct Breakage {
  std::string name;
  void (*apply)(const BrokenSkin& skin);
  Severity severity;
  std::wstring file;
  std::wstring key;
  std::wstring words;
};

void PrintTo(const Breakage& breakage, std::ostream* out) {
  *out << breakage.name;
}

constexpr Severity kMistake = Severity::Mistake;
constexpr Severity kAdvice = Severity::Advice;

using Copy = const BrokenSkin&;
using Breakages = std::vector<Breakage>;

Breakages ofFiles() {
  return {
      {"noMainPicture", [](Copy s) { s.remove("main1.bmp"); }, kMistake, L"main1", L"",
       L"is missing"},
      {"noTitleBar", [](Copy s) { s.remove("titlebar.bmp"); }, kMistake, L"titlebar", L"",
       L"is missing"},
      {"noShape", [](Copy s) { s.remove("shapem.bmp"); }, kMistake, L"shapem", L"", L"is missing"},
      {"damagedPicture", [](Copy s) { s.write("main2.bmp", "no picture"); }, kMistake, L"main2.bmp",
       L"", L"cannot be read"},
      {"hugePicture",
       [](Copy s) { s.write("text.bmp", BmpBuilder(1, 1, 24).claim(60000, 60000).bytes()); },
       kMistake, L"text.bmp", L"", L"cannot be read"},
      {"pictureTwice", [](Copy s) { s.write("main1.gif", "GIF89a"); }, kAdvice, L"main1.gif", L"",
       L"never looked at"},
      {"noDescription", [](Copy s) { s.remove("config.ini"); }, kMistake, L"config.ini", L"",
       L"is missing"},
      {"emptyDescription", [](Copy s) { s.write("config.ini", ""); }, kMistake, L"config.ini",
       L"[New]", L"section is missing"},
      {"hugeDescription", [](Copy s) { s.write("config.ini", std::string((1U << 20U) + 1, ';')); },
       kMistake, L"config.ini", L"", L"larger than a megabyte"},
  };
}

Breakages ofNames() {
  return {
      {"missingKey", [](Copy s) { s.setKey("Save", "W", ""); }, kMistake, L"config.ini",
       L"[Save] W", L"key is missing"},
      {"misspelledKey", [](Copy s) { s.replace("Scrool, Length", "Scroll, Length"); }, kMistake,
       L"config.ini", L"[Graphic Text] Scroll, Length", L"Write \"Scrool, Length\""},
      {"misspelledSection", [](Copy s) { s.replace("[Minimize]", "[Minimise]"); }, kMistake,
       L"config.ini", L"[Minimise]", L"Write \"Minimize\""},
      {"unknownSection", [](Copy s) { s.replace("[New]", "[Coffee]\r\nCups=2\r\n[New]"); },
       kMistake, L"config.ini", L"[Coffee]", L"knows no such section"},
      {"labelWithBackground",
       [](Copy s) { s.replace("[Note AmPm]", "[Note AmPm]\r\nBackground color, R=9"); }, kMistake,
       L"config.ini", L"[Note AmPm] Background color, R", L"knows no such key"},
      {"keyTwice", [](Copy s) { s.replace("[Left]\r\n", "[Left]\r\nX=20\r\n"); }, kMistake,
       L"config.ini", L"[Left] X", L"second time"},
      {"sectionTwice", [](Copy s) { s.write("config.ini", s.text() + "\r\n[Left]\r\nX=1\r\n"); },
       kMistake, L"config.ini", L"[Left]", L"second time"},
      {"lineOfNothing", [](Copy s) { s.replace("[Left]\r\n", "[Left]\r\nhello\r\n"); }, kMistake,
       L"config.ini", L"", L"neither a section nor a key"},
      {"openBracket", [](Copy s) { s.replace("[Left]", "[Left"); }, kMistake, L"config.ini", L"",
       L"neither a section nor a key"},
  };
}

Breakages ofValues() {
  return {
      {"notANumber", [](Copy s) { s.setKey("New", "X", "left"); }, kMistake, L"config.ini",
       L"[New] X", L"\"left\" is not a number"},
      {"tooLargeNumber", [](Copy s) { s.setKey("New", "X", "40000"); }, kMistake, L"config.ini",
       L"[New] X", L"40000 is too large"},
      {"fraction", [](Copy s) { s.setKey("New", "X", "184.25"); }, kAdvice, L"config.ini",
       L"[New] X", L"not a whole number"},
      {"exponent", [](Copy s) { s.setKey("New", "X", "184e0"); }, kAdvice, L"config.ini",
       L"[New] X", L"not a whole number"},
      {"colorBeyond255", [](Copy s) { s.setKey("Note Title", "Text color, R", "256"); }, kMistake,
       L"config.ini", L"[Note Title] Text color, R", L"0 to 255, not 256"},
      {"colorBelow0", [](Copy s) { s.setKey("Note Title", "Text color, G", "-1"); }, kMistake,
       L"config.ini", L"[Note Title] Text color, G", L"0 to 255, not -1"},
  };
}

Breakages ofPlaces() {
  return {
      {"buttonWithoutSize", [](Copy s) { s.setKey("Delete", "H", "0"); }, kMistake, L"config.ini",
       L"[Delete] W, H", L"no size"},
      {"buttonOutside", [](Copy s) { s.setKey("Right", "X", "319"); }, kMistake, L"config.ini",
       L"[Right]", L"reaches beyond the window, which is 320 x 362"},
      {"buttonInTheLastRow", [](Copy s) { s.setPlace("Right", 100, 343, 20, 20); }, kMistake,
       L"config.ini", L"[Right]", L"reaches beyond"},
      {"buttonInAHole", [](Copy s) { s.setPlace("New", 0, 60, 5, 5); }, kMistake, L"config.ini",
       L"[New]", L"nobody can see it"},
      {"fieldAcrossTheOutline", [](Copy s) { s.setKey("Note Text", "X", "0"); }, kMistake,
       L"config.ini", L"[Note Text]", L"cuts a piece of it off"},
      {"buttonOnButton", [](Copy s) { s.setKey("Save", "X", "186"); }, kMistake, L"config.ini",
       L"[Save]", L"on top of [New]"},
      {"rowOnField", [](Copy s) { s.setKey("Graphic Text", "x of n, Y", "200"); }, kMistake,
       L"config.ini", L"[Note Text]", L"on top of [Graphic Text] x of n"},
      {"lowField", [](Copy s) { s.setKey("Note Alarm", "H", "14"); }, kMistake, L"config.ini",
       L"[Note Alarm] H", L"too low for a line"},
      {"rollButtonBelowTheStrip", [](Copy s) { s.setPlace("Rool Down/Up", 105, 300, 9, 9); },
       kMistake, L"config.ini", L"[Rool Down/Up]", L"out of sight when the window is rolled up"},
      {"titleBelowTheStrip", [](Copy s) { s.setKey("Graphic Text", "Scrool, Y", "345"); }, kMistake,
       L"config.ini", L"[Graphic Text] Scrool", L"out of sight when the window is rolled up"},
  };
}

Breakages ofRows() {
  return {
      {"tooManyCells", [](Copy s) { s.setKey("Graphic Text", "Current Date, Length", "22"); },
       kMistake, L"config.ini", L"[Graphic Text] Current Date, Length", L"cannot have 22 cells"},
      {"negativeLength", [](Copy s) { s.setKey("Graphic Text", "Scrool, Length", "-3"); }, kMistake,
       L"config.ini", L"[Graphic Text] Scrool, Length", L"cannot have -3 cells"},
      {"noCells", [](Copy s) { s.setKey("Graphic Text", "Scrool, Length", "0"); }, kMistake,
       L"config.ini", L"[Graphic Text] Scrool, Length", L"has no cells"},
      {"shortDate", [](Copy s) { s.setKey("Graphic Text", "Current Date, Length", "9"); }, kAdvice,
       L"config.ini", L"[Graphic Text] Current Date, Length", L"11/21/2026\" are cut off"},
      {"shortDateAndTime", [](Copy s) { s.setKey("Graphic Text", "File Date/Time, Length", "20"); },
       kAdvice, L"config.ini", L"[Graphic Text] File Date/Time, Length",
       L"7:30:00 AM\" are cut off"},
      {"shortCounter", [](Copy s) { s.setKey("Graphic Text", "x of n, Length", "7"); }, kAdvice,
       L"config.ini", L"[Graphic Text] x of n, Length", L"12 of 99\" are cut off"},
      {"cellWithoutSize", [](Copy s) { s.setKey("Graphic Text", "Cell Width", "0"); }, kMistake,
       L"config.ini", L"[Graphic Text] Cell Width, Cell Height", L"no size"},
      {"faintField", [](Copy s) { s.replace("Text color, R", "Text color, R=240\r\n;"); }, kMistake,
       L"config.ini", L"[Note Title] Text color", L"hard to read"},
      {"titleCutByTheStrip", [](Copy s) { s.setKey("Graphic Text", "Scrool, Y", "38"); }, kMistake,
       L"config.ini", L"[Graphic Text] Scrool", L"cut off when the window is rolled up"},
  };
}

Breakages ofFonts() {
  return {
      {"shortStrip", [](Copy s) { s.write("text.bmp", BmpBuilder(398, 10, 24).bytes()); }, kMistake,
       L"text", L"", L"57 cells need 399 x 10"},
      {"lowStrip", [](Copy s) { s.write("text.bmp", BmpBuilder(399, 9, 24).bytes()); }, kMistake,
       L"text", L"", L"57 cells need 399 x 10"},
      {"emptyGlyph",
       [](Copy s) {
         s.write("text.bmp", BmpBuilder(399, 10, 24, kWhite).fill(7, 2, 385, 3, 0).bytes());
       },
       kMistake, L"text", L"", L"(counted from 0): 0."},
      {"faintFont",
       [](Copy s) {
         s.write("text.bmp", BmpBuilder(399, 10, 24, kWhite).fill(0, 2, 392, 3, 0xC0C0C0).bytes());
       },
       kMistake, L"text", L"", L"below 4.5 to 1"},
      {"faintFontWithADarkSpot",
       [](Copy s) {
         s.write("text.bmp", BmpBuilder(399, 10, 24, kWhite)
                                 .fill(0, 2, 392, 3, 0xC0C0C0)
                                 .fill(0, 2, 2, 2, 0)
                                 .bytes());
       },
       kMistake, L"text", L"", L"below 4.5 to 1"},
      {"groundOfTheLetters",
       [](Copy s) {
         s.write("text.bmp", BmpBuilder(399, 10, 24).fill(0, 2, 392, 3, kWhite).bytes());
       },
       kAdvice, L"config.ini", L"[Graphic Text] x of n", L"a box is seen"},
  };
}

Breakages ofPictures() {
  return {
      {"sameWhenPressed",
       [](Copy s) {
         s.remove("main2.bmp");
         std::filesystem::copy(s.path() / "main1.bmp", s.path() / "main2.bmp");
       },
       kMistake, L"config.ini", L"[Minimize]", L"looks the same"},
      {"smallMainPicture",
       [](Copy s) { s.write("main1.bmp", BmpBuilder(319, kHeight, 24).bytes()); }, kMistake,
       L"main1", L"", L"smaller than the shape"},
      {"lowMainPicture",
       [](Copy s) { s.write("main1.bmp", BmpBuilder(kWidth, kHeight - 2, 24).bytes()); }, kMistake,
       L"main1", L"", L"smaller than the shape"},
      {"pressedPictureOfAnotherSize",
       [](Copy s) { s.write("main2.bmp", BmpBuilder(kWidth, 300, 24).bytes()); }, kMistake,
       L"main2", L"", L"It is 321 x 300, \"main1\" is 321 x 363"},
      {"highStrip",
       [](Copy s) { s.write("shapet.bmp", BmpBuilder(kWidth, kHeight + 1, 24).bytes()); }, kMistake,
       L"shapet", L"", L"higher than the full one (364 and 363 pixels)"},
      {"narrowStrip", [](Copy s) { s.write("shapet.bmp", BmpBuilder(300, 43, 24).bytes()); },
       kAdvice, L"shapet", L"", L"It is 300 pixels wide, \"shapem\" 321"},
      {"enormousWindow", [](Copy s) { s.write("shapem.bmp", BmpBuilder(2185, 10, 24).bytes()); },
       kMistake, L"", L"", L"window of this skin is too large"},
  };
}

Breakages ofShapes() {
  return {
      {"shapeWithPalette",
       [](Copy s) {
         s.write("shapem.bmp", BmpBuilder(kWidth, kHeight, 8).palette({0, kWhite}).bytes());
       },
       kMistake, L"shapem", L"", L"needs 16, 24 or 32 bits a pixel, this one has 8"},
      {"shapeOfNothing",
       [](Copy s) { s.write("shapem.bmp", BmpBuilder(kWidth, kHeight, 24, kWhite).bytes()); },
       kMistake, L"shapem", L"", L"No outline"},
      {"shapeInTheLastRowAndColumn",
       [](Copy s) { s.write("shapem.bmp", BmpBuilder(kWidth, kHeight, 24).bytes()); }, kAdvice,
       L"shapem", L"", L"last row and the last column"},
      {"shapeInTheLastColumn",
       [](Copy s) {
         s.write("shapem.bmp",
                 BmpBuilder(kWidth, kHeight, 24, kWhite).fill(9, 9, kWidth - 9, 300, 0).bytes());
       },
       kAdvice, L"shapem", L"", L"last row and the last column"},
      {"softEdgeOfTheShape",
       [](Copy s) {
         s.write("shapem.bmp", BmpBuilder(kWidth, kHeight, 24, kWhite)
                                   .fill(9, 9, 300, 300, 0)
                                   .fill(309, 20, 1, 5, 0xF8F8F8)
                                   .bytes());
       },
       kAdvice, L"shapem", L"", L"almost white pixels beside white ones, the first in row 20:"},
      {"softEdgeOfTheStrip",
       [](Copy s) {
         s.write("shapet.bmp", BmpBuilder(kWidth, 43, 24, kWhite)
                                   .fill(9, 2, 300, 40, 0)
                                   .fill(8, 5, 1, 5, 0xF0FFFF)
                                   .bytes());
       },
       kAdvice, L"shapet", L"", L"almost white pixels beside white ones, the first in row 5:"},
  };
}

Breakages breakages() {
  Breakages all;
  for (const auto& group :
       {ofFiles, ofNames, ofValues, ofPlaces, ofRows, ofFonts, ofPictures, ofShapes}) {
    const Breakages some = group();
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

class BrokenSkinReport : public testing::TestWithParam<Breakage> {};

TEST_P(BrokenSkinReport, namesTheFileTheKeyAndWhatToDo) {
  const BrokenSkin skin;
  GetParam().apply(skin);
  const SkinFindings findings = findingsOf(skin.path());
  const auto isIt = [](const SkinFinding& finding) {
    const Breakage& expected = GetParam();
    return finding.severity == expected.severity && finding.file == expected.file &&
           finding.key == expected.key &&
           (finding.problem + L" " + finding.remedy).find(expected.words) != std::wstring::npos &&
           !finding.remedy.empty();
  };
  EXPECT_EQ(std::ranges::count_if(findings, isIt), 1) << reportOf(findings);
}

INSTANTIATE_TEST_SUITE_P(breakages, BrokenSkinReport, testing::ValuesIn(breakages()),
                         [](const auto& breakage) { return breakage.param.name; });

TEST(SkinCheck, findsNothingInAnyShippedSkin) {
  int skins = 0;
  for (const auto& entry : std::filesystem::directory_iterator(
           std::filesystem::path(kSourceFolder) / "assets" / "skins")) {
    ++skins;
    EXPECT_EQ(reportOf(findingsOf(entry.path())), "") << entry.path();
  }
  EXPECT_GE(skins, 1);
}

TEST(SkinCheck, findsNothingInTheSkinThatNewOnesStartFrom) {
  EXPECT_TRUE(
      findingsOf(std::filesystem::path(kSourceFolder) / "assets" / "skin-template").empty());
}

TEST(SkinCheck, tellsEveryMissingPictureAtOnce) {
  const TempFolder empty;
  const SkinFindings findings = findingsOf(empty.path());
  EXPECT_EQ(std::ranges::count(findings, L"The picture is missing.", &SkinFinding::problem), 6);
}

TEST(SkinCheck, tellsMistakesBeforeAdvice) {
  const BrokenSkin skin;
  skin.write("main1.gif", "GIF89a");
  skin.setKey("New", "X", "left");
  const SkinFindings findings = findingsOf(skin.path());
  EXPECT_TRUE(std::ranges::is_sorted(findings, {}, &SkinFinding::severity));
  EXPECT_EQ(findings.front().severity, Severity::Mistake);
  EXPECT_EQ(findings.back().severity, Severity::Advice);
}

TEST(SkinFindingText, isOneLine) {
  EXPECT_EQ(findingText({kMistake, L"config.ini", L"[New] X", L"It is wrong.", L"Mend it."}),
            L"config.ini: [New] X: It is wrong. Mend it.");
  EXPECT_EQ(findingText({kAdvice, L"shapem", L"", L"It is odd.", L"Look."}),
            L"advice: shapem: It is odd. Look.");
}

}  // namespace
}  // namespace kalvora
