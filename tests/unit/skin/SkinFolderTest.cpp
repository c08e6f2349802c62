#include "skin/SkinFolder.h"

#include <gtest/gtest.h>

#include "fakes/TempFolder.h"
#include "posix/StandardFileSystem.h"

namespace kalvora {
namespace {

class SkinFolderTest : public testing::Test {
 protected:
  void add(const std::string& skin) { std::filesystem::create_directory(temp_.path() / skin); }

  TempFolder temp_;
  StandardFileSystem files_;
  SkinFolder skins_{files_, temp_.path()};
};

TEST_F(SkinFolderTest, skinsStandInNameOrderWithoutRegardToCase) {
  for (const char* name : {"zebra", "Apple", "mango"}) add(name);
  temp_.write("readme.txt", "not a skin");
  EXPECT_EQ(skins_.names(), (std::vector<std::wstring>{L"Apple", L"mango", L"zebra"}));
}

TEST_F(SkinFolderTest, ofThreeSkinsTheIndexSevenIsTheThird) {
  for (const char* name : {"a", "b", "c"}) add(name);
  const SkinFolder::Choice choice = skins_.choose(7);
  EXPECT_EQ(choice.index, 2);
  EXPECT_EQ(choice.folder, temp_.path() / "c");
}

TEST_F(SkinFolderTest, anIndexInTheListIsTakenAsItIs) {
  for (const char* name : {"a", "b", "c"}) add(name);
  EXPECT_EQ(skins_.choose(0).folder, temp_.path() / "a");
  EXPECT_EQ(skins_.choose(2).index, 2);
  EXPECT_EQ(skins_.choose(3).index, 2);
}

TEST_F(SkinFolderTest, aNegativeIndexStaysAndMeansTheSkinsFolderItself) {
  add("a");
  const SkinFolder::Choice choice = skins_.choose(-1);
  EXPECT_EQ(choice.index, -1);
  EXPECT_EQ(choice.folder, temp_.path());
}

TEST_F(SkinFolderTest, withoutAnySkinTheProgramIsToldSo) {
  temp_.write("readme.txt", "not a skin");
  try {
    skins_.choose(0);
    FAIL() << "a skin was found in an empty folder";
  } catch (const SkinError& error) {
    EXPECT_EQ(error.message(), L"Ther's no skin. Download some and run program again.");
  }
  EXPECT_EQ(kSkinErrorTitle, L"Skin Error");
}

TEST_F(SkinFolderTest, aMissingSkinsFolderIsAnEmptyOne) {
  const SkinFolder missing(files_, temp_.path() / "nowhere");
  EXPECT_THROW(missing.choose(0), SkinError);
}

}  // namespace
}  // namespace kalvora
