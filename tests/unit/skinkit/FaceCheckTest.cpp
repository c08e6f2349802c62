#include "skinkit/FaceCheck.h"

#include <gtest/gtest.h>

#include <vector>

#include "BrokenSkin.h"
#include "FindingsOf.h"
#include "fakes/BmpBuilder.h"

namespace kalvora {
namespace {

class FaceCheck : public testing::Test {
 protected:
  /// The skin's sections of the face, which stand side by side in its description.
  void removeSections() const {
    const std::string all = skin_.text();
    const std::size_t from = all.find("[Snooze]");
    skin_.write("config.ini", all.substr(0, from) + all.substr(all.find("\r\n;", from)));
  }
  void removePictures() const {
    skin_.remove("remind1.bmp");
    skin_.remove("remind2.bmp");
  }
  /// Exactly these are found, each by its file, its key and words of its sentence.
  struct Expected {
    std::wstring file;
    std::wstring key;
    std::wstring words;
  };
  void expectFindings(const std::vector<Expected>& expected) const {
    const SkinFindings findings = findingsOf(skin_.path());
    ASSERT_EQ(findings.size(), expected.size()) << reportOf(findings);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(findings[i].file, expected[i].file) << reportOf(findings);
      EXPECT_EQ(findings[i].key, expected[i].key) << reportOf(findings);
      EXPECT_NE(findings[i].problem.find(expected[i].words), std::wstring::npos)
          << reportOf(findings);
      EXPECT_FALSE(findings[i].remedy.empty());
    }
  }

  BrokenSkin skin_;
};

TEST_F(FaceCheck, aSkinNeedHaveNone) {
  expectFindings({});
  removeSections();
  removePictures();
  expectFindings({});
}

TEST_F(FaceCheck, withoutOnePictureThereIsNone) {
  skin_.remove("remind2.bmp");
  expectFindings({{L"remind2", L"", L"is missing: a reminder shows neither Snooze nor Done."}});
}

TEST_F(FaceCheck, picturesWithoutPlacesAreNone) {
  removeSections();
  expectFindings({{L"config.ini", L"[Snooze]", L"no such place"},
                  {L"config.ini", L"[Done]", L"no such place"}});
}

TEST_F(FaceCheck, placesWithoutPicturesAreNone) {
  removePictures();
  expectFindings({{L"remind1", L"", L"is missing"}, {L"remind2", L"", L"is missing"}});
}

TEST_F(FaceCheck, aPlaceWithoutSizeIsNone) {
  skin_.setKey("Done", "H", "0");
  expectFindings({{L"config.ini", L"[Done] W, H", L"It has no size: a reminder shows neither"}});
}

TEST_F(FaceCheck, aBrokenPictureIsTold) {
  skin_.write("remind1.bmp", "no picture");
  expectFindings({{L"remind1.bmp", L"", L"cannot be read"}});
}

TEST_F(FaceCheck, aPictureOfAnotherSizeIsTold) {
  skin_.write("remind1.bmp", BmpBuilder(321, 300, 24).bytes());
  expectFindings({{L"remind1", L"", L"It is 321 x 300, \"main1\" is 321 x 363: a reminder"}});
}

TEST_F(FaceCheck, aSecondPictureOfTheSameNameIsTold) {
  skin_.write("remind1.gif", "GIF89a");
  expectFindings({{L"remind1.gif", L"", L"never looked at"}});
}

TEST_F(FaceCheck, oneThatIsTooLargeWithTheSkinIsTold) {
  const std::string large = BmpBuilder(1001, 1001, 24, 0xFFFFFF).bytes();
  for (const char* name : {"main1.bmp", "main2.bmp", "remind1.bmp", "remind2.bmp"}) {
    skin_.write(name, large);
  }
  const std::string report = reportOf(findingsOf(skin_.path()));
  EXPECT_NE(report.find("With \"remind1\" and \"remind2\" the skin is too large: a reminder"),
            std::string::npos)
      << report;
}

TEST_F(FaceCheck, aButtonThatLooksTheSameWhenPressedIsTold) {
  skin_.remove("remind2.bmp");
  std::filesystem::copy(skin_.path() / "remind1.bmp", skin_.path() / "remind2.bmp");
  expectFindings({{L"config.ini", L"[Snooze]", L"looks the same"},
                  {L"config.ini", L"[Done]", L"looks the same"}});
}

TEST_F(FaceCheck, aHiddenButtonThatIsStillPaintedIsTold) {
  skin_.remove("remind1.bmp");
  std::filesystem::copy(skin_.path() / "main1.bmp", skin_.path() / "remind1.bmp");
  for (const wchar_t* section : {L"[New]", L"[Save]", L"[Delete]", L"[Left]", L"[Right]"}) {
    const SkinFindings findings = findingsOf(skin_.path());
    EXPECT_TRUE(std::ranges::any_of(findings, [&](const SkinFinding& finding) {
      return finding.key == section &&
             finding.problem.find(L"a reminder hides it") != finding.problem.npos;
    })) << reportOf(findings);
  }
}

TEST_F(FaceCheck, itsButtonsMayLieOnTheMainOnesButNotOnOthers) {
  skin_.setPlace("Done", 60, 270, 76, 30);  // on the counter and on Snooze
  const std::string report = reportOf(findingsOf(skin_.path()));
  EXPECT_NE(report.find("[Done]: It lies on top of [Snooze]."), std::string::npos) << report;
  EXPECT_NE(report.find("[Graphic Text] x of n: It lies on top of [Done]."), std::string::npos)
      << report;
  EXPECT_EQ(report.find("on top of [Right]"), std::string::npos) << report;
}

TEST_F(FaceCheck, aButtonOfItOutsideTheWindowIsTold) {
  skin_.setKey("Done", "X", "300");
  const std::string report = reportOf(findingsOf(skin_.path()));
  EXPECT_NE(report.find("[Done]: It reaches beyond the window"), std::string::npos) << report;
}

TEST_F(FaceCheck, aKeyOfItThatIsMissingIsTold) {
  skin_.setKey("Snooze", "Y", "");
  const std::string report = reportOf(findingsOf(skin_.path()));
  EXPECT_NE(report.find("[Snooze] Y: The key is missing. Add it: without it the value is 0."),
            std::string::npos)
      << report;
}

}  // namespace
}  // namespace kalvora
