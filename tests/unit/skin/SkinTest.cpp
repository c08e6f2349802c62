#include "skin/Skin.h"

#include <gtest/gtest.h>

#include <random>

#include "base/Errors.h"
#include "fakes/FakeSkinValues.h"
#include "fakes/SkinFiles.h"
#include "fakes/TempFolder.h"
#include "posix/StandardFileSystem.h"

namespace kalvora {
namespace {

constexpr std::array<const char*, 6> kPictures = {"main1", "main2",  "titlebar",
                                                  "text",  "shapem", "shapet"};

class SkinTest : public testing::Test {
 protected:
  SkinTest() { writeSmallSkin(folder_); }

  void remove(const std::string& name) { std::filesystem::remove(folder_.path() / name); }
  std::wstring messageOfLoading() {
    try {
      loadSkin(files_, values_, folder_.path());
    } catch (const SkinError& error) {
      return error.message();
    }
    return L"";
  }
  std::wstring missing(const std::wstring& picture) {
    return L"Ther's no Skin in this Directory \r\n" + folder_.path().wstring() + L"\\" + picture +
           L".bmp";
  }
  std::wstring unreadable(const std::string& name) {
    return L"The skin picture cannot be read: " + (folder_.path() / name).wstring();
  }

  TempFolder folder_;
  StandardFileSystem files_;
  FakeSkinValues values_;
};

TEST_F(SkinTest, aWholeSkinIsLoaded) {
  values_.set(L"New", L"X", L"12");
  const Skin skin = loadSkin(files_, values_, folder_.path());
  EXPECT_EQ(skin.Temp_Main[0].image.at(0, 0), 0x112233U);
  EXPECT_EQ(skin.Temp_Main[1].image.at(0, 0), 0x445566U);
  EXPECT_EQ(skin.Temp_Titlebar.image.size(), (Size{60, 10}));
  EXPECT_EQ(skin.Temp_Text.image.size(), (Size{285, 6}));
  EXPECT_EQ(skin.Temp_ShapeP[0].image.size(), (Size{61, 40}));
  EXPECT_EQ(skin.Temp_ShapeP[1].image.size(), (Size{61, 20}));
  EXPECT_EQ(skin.description.button(ButtonId::Buttons_main_01).x, 12);
  EXPECT_EQ(values_.file(), folder_.path() / "config.ini");
}

TEST_F(SkinTest, onlyTheShapesKeepTheirBits) {
  const Skin skin = loadSkin(files_, values_, folder_.path());
  EXPECT_FALSE(skin.Temp_ShapeP[0].bits.empty());
  EXPECT_FALSE(skin.Temp_ShapeP[1].bits.empty());
  EXPECT_TRUE(skin.Temp_Main[0].bits.empty());
  EXPECT_TRUE(skin.Temp_Text.bits.empty());
}

TEST_F(SkinTest, aPictureThatIsThereOnlyAsGifIsLoaded) {
  remove("main1.bmp");
  folder_.write("main1.gif", samplePicture("plain.gif"));
  EXPECT_EQ(loadSkin(files_, values_, folder_.path()).Temp_Main[0].image.size(), (Size{6, 4}));
}

TEST_F(SkinTest, aPictureThatIsThereOnlyAsJpgIsLoaded) {
  remove("shapem.bmp");
  folder_.write("shapem.jpg", samplePicture("half.jpg"));
  const Skin skin = loadSkin(files_, values_, folder_.path());
  EXPECT_EQ(skin.Temp_ShapeP[0].bitsPerPixel, 24);
  EXPECT_EQ(skin.Temp_ShapeP[0].image.size(), (Size{16, 16}));
}

TEST_F(SkinTest, bmpGoesBeforeGifAndGifBeforeJpg) {
  folder_.write("main1.gif", samplePicture("plain.gif"));
  folder_.write("main1.jpg", samplePicture("half.jpg"));
  EXPECT_EQ(Zaladuj_skore(files_, folder_.path(), L"main1").bitsPerPixel, 24);
  EXPECT_EQ(Zaladuj_skore(files_, folder_.path(), L"main1").width(), 61);
  remove("main1.bmp");
  EXPECT_EQ(Zaladuj_skore(files_, folder_.path(), L"main1").width(), 6);
  remove("main1.gif");
  EXPECT_EQ(Zaladuj_skore(files_, folder_.path(), L"main1").width(), 16);
}

TEST_F(SkinTest, aMissingTitlebarNamesItsBmp) {
  remove("titlebar.bmp");
  EXPECT_EQ(messageOfLoading(), missing(L"titlebar"));
}

TEST_F(SkinTest, everyMissingPictureIsToldByName) {
  for (const std::string picture : kPictures) {
    TempFolder folder;
    writeSmallSkin(folder);
    std::filesystem::remove(folder.path() / (picture + ".bmp"));
    try {
      loadSkin(files_, values_, folder.path());
      ADD_FAILURE() << "loaded without " << picture;
    } catch (const SkinError& error) {
      EXPECT_TRUE(error.message().ends_with(L"\\" + std::wstring(picture.begin(), picture.end()) +
                                            L".bmp"));
    }
  }
}

TEST_F(SkinTest, ofSeveralMissingPicturesTheFirstIsTold) {
  for (const char* picture : {"text.bmp", "shapet.bmp", "main2.bmp"}) remove(picture);
  EXPECT_EQ(messageOfLoading(), missing(L"main2"));
}

TEST_F(SkinTest, theSkinsFolderItselfTakenAsASkinLacksMain1) {
  TempFolder skins;
  writeSmallSkin(skins, "one");
  try {
    loadSkin(files_, values_, skins.path());
    FAIL() << "a folder without pictures was loaded";
  } catch (const SkinError& error) {
    EXPECT_EQ(error.message(),
              L"Ther's no Skin in this Directory \r\n" + skins.path().wstring() + L"\\main1.bmp");
  }
}

TEST_F(SkinTest, aDamagedPictureIsToldByItsPath) {
  folder_.write("text.bmp", "BM and nothing more");
  EXPECT_EQ(messageOfLoading(), unreadable("text.bmp"));
}

TEST_F(SkinTest, anEmptyPictureFileIsToldByItsPath) {
  folder_.write("main2.bmp", "");
  EXPECT_EQ(messageOfLoading(), unreadable("main2.bmp"));
}

TEST_F(SkinTest, aPictureOf60000By60000InItsHeaderIsToldByItsPath) {
  folder_.write("shapem.bmp", BmpBuilder(4, 4, 24).claim(60000, 60000).bytes());
  EXPECT_EQ(messageOfLoading(), unreadable("shapem.bmp"));
}

TEST_F(SkinTest, aWindowThatCouldNeverBeShownIsRefused) {
  folder_.write("shapem.bmp", BmpBuilder(2184, 40, 24).bytes());
  EXPECT_EQ(messageOfLoading(), L"");
  folder_.write("shapem.bmp", BmpBuilder(2185, 40, 24).bytes());
  EXPECT_NE(messageOfLoading().find(L"The window of this skin is too large: "), std::wstring::npos);
}

TEST_F(SkinTest, aDescriptionOfMoreThanAMegabyteIsRefused) {
  folder_.write("config.ini", std::string(1U << 20U, ';'));
  EXPECT_EQ(messageOfLoading(), L"");
  folder_.write("config.ini", std::string((1U << 20U) + 1, ';'));
  EXPECT_NE(messageOfLoading().find(L"config.ini"), std::wstring::npos);
}

TEST_F(SkinTest, aPictureFileOfMoreThanSixteenMegabytesIsNotEvenRead) {
  std::string bytes = BmpBuilder(4, 4, 24).bytes();
  bytes.resize(kMaxPictureBytes + 1);
  folder_.write("main1.bmp", bytes);
  EXPECT_EQ(messageOfLoading(), unreadable("main1.bmp"));
  bytes.resize(kMaxPictureBytes);
  folder_.write("main1.bmp", bytes);
  EXPECT_EQ(messageOfLoading(), L"");
}

TEST_F(SkinTest, picturesThatAreTooLargeTogetherAreRefused) {
  std::string large = BmpBuilder(2000, 700, 1).palette({0, kWhite}).bytes();
  for (const char* picture : {"main1.bmp", "main2.bmp"}) folder_.write(picture, large);
  EXPECT_EQ(messageOfLoading(), L"");
  folder_.write("titlebar.bmp", large);
  EXPECT_EQ(messageOfLoading(),
            L"The pictures of this skin are too large: " + folder_.path().wstring());
}

TEST_F(SkinTest, buttonsThatAreTooLargeTogetherAreRefused) {
  const std::string large = BmpBuilder(1000, 1000, 1).palette({0, kWhite}).bytes();
  for (const char* picture : {"main1.bmp", "main2.bmp"}) folder_.write(picture, large);
  const auto place = [&](const wchar_t* section) {
    values_.set(section, L"X", L"0");
    values_.set(section, L"Y", L"0");
    values_.set(section, L"W", L"999");
    values_.set(section, L"H", L"999");
  };
  place(L"New");
  place(L"Save");
  EXPECT_EQ(messageOfLoading(), L"");
  place(L"Delete");
  EXPECT_EQ(messageOfLoading(),
            L"The buttons of this skin are too large: " + folder_.path().wstring());
}

TEST_F(SkinTest, aPictureThatCannotBeReadIsToldByItsPath) {
  class Unreadable : public StandardFileSystem {
   public:
    std::string read(const std::filesystem::path& file, std::size_t limit) const override {
      if (file.filename() == "titlebar.bmp") throw FileError(L"This file cannot be read: ", file);
      return StandardFileSystem::read(file, limit);
    }
  };
  try {
    loadSkin(Unreadable(), values_, folder_.path());
    FAIL() << "a skin without its title strip";
  } catch (const SkinError& error) {
    EXPECT_EQ(error.message(), unreadable("titlebar.bmp"));
  }
}

TEST_F(SkinTest, randomBytesInAnyOfItsPicturesAreASkinError) {
  std::mt19937 random(4);
  for (const std::string picture : kPictures) {
    TempFolder folder;
    writeSmallSkin(folder);
    for (int round = 0; round < 20; ++round) {
      std::string bytes = round % 2 == 0 ? "" : "BM";
      for (int i = 0; i < 3000; ++i) bytes += static_cast<char>(random());
      folder.write(picture + ".bmp", bytes);
      EXPECT_THROW(loadSkin(files_, values_, folder.path()), SkinError) << picture;
    }
  }
}

TEST_F(SkinTest, picturesCutOffAreASkinError) {
  for (const std::string picture : kPictures) {
    TempFolder folder;
    writeSmallSkin(folder);
    const std::string file = picture + ".bmp";
    const std::string whole = files_.read(folder.path() / file, 1'000'000);
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{20},
                                     std::size_t{53}, whole.size() / 2, whole.size() - 4}) {
      folder.write(file, whole.substr(0, length));
      EXPECT_THROW(loadSkin(files_, values_, folder.path()), SkinError) << file << ' ' << length;
    }
  }
}

TEST_F(SkinTest, randomTextsInTheDescriptionNeverStopASkin) {
  std::mt19937 random(5);
  FakeSkinValues asked;
  Odczytaj_ini(asked, folder_.path());
  for (int round = 0; round < 30; ++round) {
    FakeSkinValues values;
    for (const auto& [section, key] : asked.asked()) {
      std::wstring text;
      for (auto i = random() % 12; i > 0; --i) {
        text += random() % 3 == 0 ? static_cast<wchar_t>(random() % 0xD800)
                                  : L"0123456789+-.eE "[random() % 16];
      }
      values.set(section, key, text);
    }
    EXPECT_NO_THROW(loadSkin(files_, values, folder_.path()));
  }
}

}  // namespace
}  // namespace kalvora
