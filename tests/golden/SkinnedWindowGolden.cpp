#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "ProjectFolders.h"
#include "app/Config_file.h"
#include "app/PortableProfileReader.h"
#include "base/CodePage.h"
#include "golden/GoldenPicture.h"
#include "posix/StandardFileSystem.h"
#include "skin/SkinnedWindow.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;

struct SkinCase {
  std::string name;
  fs::path folder;
};

void PrintTo(const SkinCase& skin, std::ostream* out) {
  *out << skin.name;
}

/// Every shipped skin, found by its folder, and the plain one of the tests.
std::vector<SkinCase> allSkins() {
  const fs::path root(kSourceFolder);
  std::vector<SkinCase> skins;
  for (const auto& entry : fs::directory_iterator(root / "assets" / "skins")) {
    skins.push_back({entry.path().filename().string(), entry.path()});
  }
  std::sort(skins.begin(), skins.end(),
            [](const SkinCase& a, const SkinCase& b) { return a.name < b.name; });
  skins.push_back({"Plain", root / "tests" / "data" / "skins" / "Plain"});
  return skins;
}

enum class Face { Worn, LeftOut };

/// A skin as the main window wears it, with a text in each of its rows.
SkinnedWindow dressed(const SkinCase& skin, Face face = Face::Worn) {
  const StandardFileSystem files;
  const Windows1252 codePage;
  PortableProfileReader profiles;
  Config_file values(profiles, codePage);
  SkinnedWindow window;
  Skin loaded = loadSkin(files, values, skin.folder);
  if (face == Face::LeftOut) loaded.face.reset();
  window.wear(std::move(loaded));
  window.Pokaz_Tekst(RowId::lit, L" Shopping list");
  window.Pokaz_Tekst(RowId::lit_czas, L"11/21/2026 7:30:05 AM");
  window.Pokaz_Tekst(RowId::lit_czas2, L"11/21/2026");
  window.Pokaz_Tekst(RowId::lit_xof, L"2 of 5");
  return window;
}

class GoldenSkin : public testing::TestWithParam<SkinCase> {
 protected:
  std::string name(const std::string& state) const { return GetParam().name + "-" + state; }
};

TEST_P(GoldenSkin, isPaintedFull) {
  const SkinnedWindow window = dressed(GetParam());
  expectGolden(
      shaped(window.paint({window.windowWidth(), window.fullHeight()}), window.fullShape()),
      name("full"));
}

TEST_P(GoldenSkin, isPaintedRolledUp) {
  SkinnedWindow window = dressed(GetParam());
  window.Ukryj_pics(Hide::Yes);
  expectGolden(
      shaped(window.paint({window.windowWidth(), window.rolledHeight()}), window.rolledShape()),
      name("rolled-up"));
}

TEST_P(GoldenSkin, isPaintedInTheMiddleOfARoll) {
  const SkinnedWindow window = dressed(GetParam());
  const int height = (window.fullHeight() + window.rolledHeight()) / 2;
  expectGolden(shaped(window.paint({window.windowWidth(), height}), window.fullShape()),
               name("mid-roll"));
}

TEST_P(GoldenSkin, isPaintedWithEachButtonPressed) {
  SkinnedWindow window = dressed(GetParam());
  for (const ButtonId button : kEverySkinsButtons) {
    window.showPressed(button);
    const int number = static_cast<int>(button) + 1;
    expectGolden(window.paint({window.windowWidth(), window.fullHeight()}),
                 name("pressed-" + std::to_string(number)));
    window.showNormal(button);
  }
}

TEST_P(GoldenSkin, isPaintedAsAReminderWithoutAFace) {
  SkinnedWindow window = dressed(GetParam(), Face::LeftOut);
  window.setMainButtonsVisible(Visible::No);
  window.Pokaz_Tekst(RowId::lit, L" REMINDER");
  expectGolden(
      shaped(window.paint({window.windowWidth(), window.fullHeight()}), window.fullShape()),
      name("reminder"));
}

/// The shipped skins bring a face; the plain one has none.
TEST_P(GoldenSkin, isPaintedAsAReminderWithItsFaceAtRestAndPressed) {
  SkinnedWindow window = dressed(GetParam());
  window.setMainButtonsVisible(Visible::No);
  window.Pokaz_Tekst(RowId::lit, L" REMINDER");
  ASSERT_EQ(window.buttonVisible(ButtonId::Snooze), GetParam().name != "Plain");
  if (!window.buttonVisible(ButtonId::Snooze)) return;
  const auto expectFace = [&](const std::string& state) {
    expectGolden(
        shaped(window.paint({window.windowWidth(), window.fullHeight()}), window.fullShape()),
        name(state));
  };
  expectFace("face");
  for (const ButtonId button : kFaceButtons) window.showPressed(button);
  expectFace("face-pressed");
}

INSTANTIATE_TEST_SUITE_P(skins, GoldenSkin, testing::ValuesIn(allSkins()),
                         [](const auto& skin) { return skin.param.name; });

}  // namespace
}  // namespace kalvora
