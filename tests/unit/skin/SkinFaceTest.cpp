#include <gtest/gtest.h>

#include "fakes/FakeSkinValues.h"
#include "fakes/SkinFiles.h"
#include "fakes/TempFolder.h"
#include "posix/StandardFileSystem.h"
#include "skin/Skin.h"

namespace kalvora {
namespace {

/// A small skin with the face of a reminder, there to lose pieces of it.
class SkinFaces : public testing::Test {
 protected:
  SkinFaces() {
    writeSmallSkin(folder_);
    folder_.write("remind1.bmp", BmpBuilder(61, 40, 24, 0x667788).bytes());
    folder_.write("remind2.bmp", BmpBuilder(61, 40, 24, 0x8899AA).bytes());
    place(L"Snooze", 5, 5);
    place(L"Done", 5, 5);
  }

  void place(const wchar_t* section, int width, int height) {
    values_.set(section, L"W", std::to_wstring(width));
    values_.set(section, L"H", std::to_wstring(height));
  }
  std::optional<ReminderFace> face() { return loadSkin(files_, values_, folder_.path()).face; }

  TempFolder folder_;
  StandardFileSystem files_;
  FakeSkinValues values_;
};

TEST_F(SkinFaces, aWholeOneIsLoaded) {
  const auto whole = face();
  ASSERT_TRUE(whole);
  EXPECT_EQ(whole->atRest, Image(61, 40, 0x667788));
  EXPECT_EQ(whole->pressed, Image(61, 40, 0x8899AA));
}

TEST_F(SkinFaces, itsPicturesMayBeGifsToo) {
  const std::string gif = samplePicture("plain.gif");
  for (const char* name : {"main1", "remind1", "remind2"}) {
    std::filesystem::remove(folder_.path() / (std::string(name) + ".bmp"));
    folder_.write(std::string(name) + ".gif", gif);
  }
  ASSERT_TRUE(face());
  EXPECT_EQ(face()->atRest.size(), (Size{6, 4}));
}

TEST_F(SkinFaces, withoutOneOfItsPicturesTheSkinIsWornWithoutIt) {
  for (const char* name : {"remind1.bmp", "remind2.bmp"}) {
    const std::string kept = files_.read(folder_.path() / name, 1'000'000);
    std::filesystem::remove(folder_.path() / name);
    EXPECT_FALSE(face()) << name;
    folder_.write(name, kept);
    EXPECT_TRUE(face()) << name;
  }
}

TEST_F(SkinFaces, withABrokenPictureTheSkinIsWornWithoutIt) {
  for (const char* name : {"remind1.bmp", "remind2.bmp"}) {
    const std::string kept = files_.read(folder_.path() / name, 1'000'000);
    for (const std::string& broken :
         {std::string(), std::string("BM and nothing more"), kept.substr(0, kept.size() / 2),
          BmpBuilder(4, 4, 24).claim(60000, 60000).bytes()}) {
      folder_.write(name, broken);
      EXPECT_FALSE(face()) << name;
    }
    folder_.write(name, kept);
  }
}

TEST_F(SkinFaces, withAPictureOfAnotherSizeTheSkinIsWornWithoutIt) {
  for (const char* name : {"remind1.bmp", "remind2.bmp"}) {
    const std::string kept = files_.read(folder_.path() / name, 1'000'000);
    for (const Size size : {Size{60, 40}, Size{61, 41}}) {
      folder_.write(name, BmpBuilder(size.width, size.height, 24).bytes());
      EXPECT_FALSE(face()) << name;
    }
    folder_.write(name, kept);
  }
}

TEST_F(SkinFaces, withoutTheSizeOfAButtonItsPicturesAreNotEvenReadThough) {
  class Watched : public StandardFileSystem {
   public:
    std::string read(const std::filesystem::path& file, std::size_t limit) const override {
      if (file.filename().string().starts_with("remind")) ++reads;
      return StandardFileSystem::read(file, limit);
    }
    mutable int reads = 0;
  };
  const Watched files;
  ASSERT_TRUE(loadSkin(files, values_, folder_.path()).face);
  EXPECT_EQ(files.reads, 2);
  place(L"Done", 5, 0);
  EXPECT_FALSE(loadSkin(files, values_, folder_.path()).face);
  EXPECT_EQ(files.reads, 2);
}

TEST_F(SkinFaces, oneThatIsTooLargeWithTheSkinIsLeftOut) {
  const auto writeAll = [&](int side) {
    const std::string bytes = BmpBuilder(side, side, 1).palette({0, kWhite}).bytes();
    for (const char* name : {"main1.bmp", "main2.bmp", "remind1.bmp", "remind2.bmp"}) {
      folder_.write(name, bytes);
    }
  };
  writeAll(998);
  EXPECT_TRUE(face());
  writeAll(1001);
  EXPECT_FALSE(face()) << "more than four million pixels";
}

TEST_F(SkinFaces, buttonsThatAreTooLargeTogetherCostTheFaceAlone) {
  const std::string bytes = BmpBuilder(990, 990, 1).palette({0, kWhite}).bytes();
  for (const char* name : {"main1.bmp", "main2.bmp", "remind1.bmp", "remind2.bmp"}) {
    folder_.write(name, bytes);
  }
  place(L"Snooze", 990, 990);
  place(L"Done", 990, 990);
  EXPECT_TRUE(face());
  place(L"New", 990, 990);
  EXPECT_FALSE(face());
}

}  // namespace
}  // namespace kalvora
