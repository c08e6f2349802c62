#include "skinkit/SkinCommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "BrokenSkin.h"
#include "app/Config_file.h"
#include "app/PortableProfileReader.h"
#include "base/CodePage.h"
#include "posix/StandardFileSystem.h"
#include "posix/StandardFileWriter.h"

namespace kalvora {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Result = SkinCommandResult;

class SkinCommand : public testing::Test {
 protected:
  Result run(const std::vector<std::wstring>& arguments) {
    const StandardFileSystem files;
    StandardFileWriter writer;
    PortableProfileReader profiles;
    const Windows1252 codePage;
    Config_file values(profiles, codePage);
    return runSkinCommand({files, writer, values, template_, out_}, arguments);
  }

  std::wstring place(const std::string& name) const { return (folder_.path() / name).wstring(); }
  std::string bytesOf(const std::string& name) const {
    std::ifstream in(folder_.path() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  TempFolder folder_;
  BrokenSkin skin_;
  std::filesystem::path template_ = skin_.path();
  std::ostringstream out_;
};

TEST_F(SkinCommand, passesAGoodSkin) {
  EXPECT_EQ(run({L"check", skin_.path().wstring()}), Result::Good);
  EXPECT_THAT(out_.str(), HasSubstr("0 mistakes, 0 advice"));
}

TEST_F(SkinCommand, reportsEachMistakeOnALineAndCountsThem) {
  skin_.setKey("New", "X", "left");
  skin_.write("main1.gif", "GIF89a");
  EXPECT_EQ(run({L"check", skin_.path().wstring()}), Result::MistakesFound);
  EXPECT_THAT(out_.str(), StartsWith("config.ini: [New] X: \"left\" is not a number."));
  EXPECT_THAT(out_.str(), HasSubstr("\nadvice: main1.gif: "));
  EXPECT_THAT(out_.str(), HasSubstr(", 1 advice\n"));
}

TEST_F(SkinCommand, saysWhereThereIsNoFolderToCheck) {
  EXPECT_EQ(run({L"check", place("nowhere")}), Result::Failed);
  EXPECT_THAT(out_.str(), StartsWith("There is no such folder: "));
}

TEST_F(SkinCommand, paintsADifferentPictureOfEachState) {
  std::vector<std::string> pictures;
  for (const std::wstring state :
       {L"full", L"rolled-up", L"pressed", L"reminder", L"reminder-pressed"}) {
    EXPECT_EQ(run({L"preview", skin_.path().wstring(), place("a.png"), L"--state", state}),
              Result::Good);
    pictures.push_back(bytesOf("a.png"));
    EXPECT_THAT(pictures.back(), StartsWith("\x89PNG"));
  }
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i << " " << j;
  }
}

/// Width and height stand in the header of a PNG, four bytes each, the high one first.
int pngNumber(const std::string& bytes, std::size_t at) {
  int number = 0;
  for (std::size_t i = at; i < at + 4; ++i) {
    number = number * 256 + static_cast<unsigned char>(bytes.at(i));
  }
  return number;
}

TEST_F(SkinCommand, paintsLargerAndOnAnotherDesktop) {
  const std::wstring skin = skin_.path().wstring();
  ASSERT_EQ(run({L"preview", skin, place("1.png")}), Result::Good);
  ASSERT_EQ(run({L"preview", skin, place("2.png"), L"--scale", L"2"}), Result::Good);
  ASSERT_EQ(run({L"preview", skin, place("3.png"), L"--ground", L"FFffFF"}), Result::Good);
  const std::string once = bytesOf("1.png");
  const std::string twice = bytesOf("2.png");
  EXPECT_EQ(pngNumber(once, 16), 320 + 2 * 12);
  EXPECT_EQ(pngNumber(once, 20), 363 + 2 * 12);
  EXPECT_EQ(pngNumber(twice, 16), 2 * pngNumber(once, 16));
  EXPECT_EQ(pngNumber(twice, 20), 2 * pngNumber(once, 20));
  EXPECT_NE(once, bytesOf("3.png"));
}

TEST_F(SkinCommand, tellsItsUseForOptionsThatItDoesNotKnow) {
  const std::wstring skin = skin_.path().wstring();
  const std::vector<std::vector<std::wstring>> wrong = {
      {},
      {L"check"},
      {L"check", skin, L"more"},
      {L"preview", skin},
      {L"preview", skin, place("a.png"), L"--state"},
      {L"preview", skin, place("a.png"), L"--state", L"upside-down"},
      {L"preview", skin, place("a.png"), L"--scale", L"0"},
      {L"preview", skin, place("a.png"), L"--scale", L"9"},
      {L"preview", skin, place("a.png"), L"--scale", L"22"},
      {L"preview", skin, place("a.png"), L"--ground", L"white!"},
      {L"preview", skin, place("a.png"), L"--ground", L"fff"},
      {L"paint", skin, place("a.png")},
      {L"new"}};
  for (const auto& arguments : wrong) {
    out_.str("");
    EXPECT_EQ(run(arguments), Result::Failed);
    EXPECT_THAT(out_.str(), StartsWith("kalvora-skin check FOLDER"));
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "a.png"));
}

TEST_F(SkinCommand, tellsWhyThereIsNothingToPaint) {
  skin_.remove("main1.bmp");
  EXPECT_EQ(run({L"preview", skin_.path().wstring(), place("a.png")}), Result::Failed);
  EXPECT_THAT(out_.str(), HasSubstr("main1.bmp"));
}

TEST_F(SkinCommand, tellsItsVersionAndWhereTheLicencesAre) {
  EXPECT_EQ(run({L"--version"}), Result::Good);
  EXPECT_TRUE(std::regex_match(out_.str(), std::regex("kalvora-skin \\d+\\.\\d+\\.\\d+\n"
                                                      ".*THIRD-PARTY\\.txt.*\n")))
      << out_.str();
}

TEST_F(SkinCommand, makesANewSkinThatPassesItsCheck) {
  EXPECT_EQ(run({L"new", place("Mine")}), Result::Good);
  EXPECT_EQ(bytesOf("Mine/config.ini"), skin_.text());
  EXPECT_EQ(run({L"check", place("Mine")}), Result::Good);
}

TEST_F(SkinCommand, makesNoNewSkinOverSomethingThatIsThere) {
  folder_.write("Mine/notes.txt", "precious");
  EXPECT_EQ(run({L"new", place("Mine")}), Result::Failed);
  EXPECT_THAT(out_.str(), StartsWith("This exists already: "));
  EXPECT_EQ(bytesOf("Mine/notes.txt"), "precious");
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "Mine" / "config.ini"));
}

TEST_F(SkinCommand, tellsWhatIsMissingForANewSkin) {
  template_ = folder_.path() / "gone";
  EXPECT_EQ(run({L"new", place("Mine")}), Result::Failed);
  EXPECT_THAT(out_.str(), StartsWith("The skin to start from is missing: "));
  template_ = skin_.path();
  EXPECT_EQ(run({L"new", place("no/where/Mine")}), Result::Failed);
  EXPECT_THAT(out_.str(), HasSubstr("The folder cannot be made: "));
}

}  // namespace
}  // namespace kalvora
