#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
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

/// A skin as the main window wears it, with a text in each of its rows.
SkinnedWindow dressed(const SkinCase& skin) {
  const StandardFileSystem files;
  const Windows1252 codePage;
  PortableProfileReader profiles;
  Config_file values(profiles, codePage);
  SkinnedWindow window;
  window.wear(loadSkin(files, values, skin.folder));
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
  for (const ButtonId button : kAllButtons) {
    window.showPressed(button);
    const int number = static_cast<int>(button) + 1;
    expectGolden(window.paint({window.windowWidth(), window.fullHeight()}),
                 name("pressed-" + std::to_string(number)));
    window.showNormal(button);
  }
}

TEST_P(GoldenSkin, isPaintedAsAReminder) {
  SkinnedWindow window = dressed(GetParam());
  window.setMainButtonsVisible(Visible::No);
  window.Pokaz_Tekst(RowId::lit, L" REMINDER");
  expectGolden(
      shaped(window.paint({window.windowWidth(), window.fullHeight()}), window.fullShape()),
      name("reminder"));
}

INSTANTIATE_TEST_SUITE_P(skins, GoldenSkin, testing::ValuesIn(allSkins()),
                         [](const auto& skin) { return skin.param.name; });

}  // namespace
}  // namespace kalvora
