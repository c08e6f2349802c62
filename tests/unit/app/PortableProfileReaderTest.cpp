#include "app/PortableProfileReader.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>

#include "fakes/IniCorpus.h"
#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

void expectAnswers(const std::vector<IniCase>& cases) {
  const TempFolder folder;
  PortableProfileReader reader;
  for (const IniCase& ini : cases) {
    const auto file = folder.write(ini.name + ".ini", ini.bytes);
    EXPECT_EQ(askIni(reader, ini, file), ini.answer) << ini.name;
  }
}

TEST(PortableProfileReader, answersAsDocumented) {
  expectAnswers(kDocumentedIniCases);
}

TEST(PortableProfileReader, answersOddFilesAsMeasured) {
  expectAnswers(kOddIniCases);
}

TEST(PortableProfileReader, corpusHasAtLeastSixtyFilesOfDifferentNames) {
  std::set<std::string> names;
  std::size_t count = 0;
  for (const auto& cases : {kDocumentedIniCases, kOddIniCases}) {
    for (const IniCase& ini : cases) names.insert(ini.name);
    count += cases.size();
  }
  EXPECT_GE(count, 60U);
  EXPECT_EQ(names.size(), count);
}

TEST(PortableProfileReader, missingFileAndFolderGiveTheFallback) {
  const TempFolder folder;
  PortableProfileReader reader;
  const IniCase ini{"", "", "S", "K", ""};
  EXPECT_EQ(askIni(reader, ini, folder.path() / "none.ini"), kIniFallback);
  EXPECT_EQ(askIni(reader, ini, folder.path()), kIniFallback);
}

TEST(PortableProfileReader, fallbackLosesItsTrailingBlanksAndIsCutToTheBuffer) {
  PortableProfileReader reader;
  std::array<char, 5> buffer{};
  EXPECT_EQ(reader.privateProfileString("S", "K", " ab  ", buffer, "none.ini"), 3U);
  EXPECT_STREQ(buffer.data(), " ab");
  EXPECT_EQ(reader.privateProfileString("S", "K", "abcdef", buffer, "none.ini"), 4U);
  EXPECT_STREQ(buffer.data(), "abcd");
}

TEST(PortableProfileReader, bufferOfOneByteTakesTheEndOnly) {
  const TempFolder folder;
  const auto file = folder.write("a.ini", "[S]\nK=5\n");
  PortableProfileReader reader;
  std::array<char, 1> buffer = {'x'};
  EXPECT_EQ(reader.privateProfileString("S", "K", "", buffer, file), 0U);
  EXPECT_EQ(buffer[0], '\0');
  EXPECT_EQ(reader.privateProfileString("S", "K", "", {}, file), 0U);
}

TEST(PortableProfileReader, readsNoMoreOfAFileThanItsLimit) {
  const TempFolder folder;
  PortableProfileReader reader;
  const std::string comment = ";" + std::string(PortableProfileReader::kLargestFile, 'x') + "\n";
  const IniCase ini{"", "[A]\n" + comment + "[S]\nK=5\n", "S", "K", ""};
  EXPECT_EQ(askIni(reader, ini, folder.write("big.ini", ini.bytes)), kIniFallback);
}

TEST(PortableProfileReader, takesAnyBytes) {
  const TempFolder folder;
  PortableProfileReader reader;
  std::mt19937 random(4711);
  // Few different bytes, so that sections, keys, marks and line ends do come up.
  const std::string alphabet = iniBytes("SK=[]\r\n \t\"';\0\xEF\xBB\xBF\xFE\xFF\xC3\xF0\x80x");
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 200, '\0');
    for (char& byte : bytes) {
      byte = round % 2 == 0 ? alphabet[random() % alphabet.size()] : static_cast<char>(random());
    }
    const IniCase ini{"", "", "S", "K", ""};
    EXPECT_LE(askIni(reader, ini, folder.write("random.ini", bytes)).size(), 200U);
  }
}

}  // namespace
}  // namespace kalvora
