#include "app/Config_file.h"

#include <gtest/gtest.h>

#include "app/PortableProfileReader.h"
#include "fakes/IniCorpus.h"
#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

/// Records how it was called and answers what a test tells it to.
class RecordingProfileReader : public ProfileReader {
 public:
  std::size_t privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, std::span<char> buffer,
                                   const std::filesystem::path& file) override {
    asked = section + "|" + key + "|" + fallback + "|" + file.filename().string();
    size = buffer.size();
    bufferWasEmpty = std::string(buffer.data(), buffer.size()) == std::string(size, '\0');
    answer.copy(buffer.data(), buffer.size());
    return count;
  }

  std::string answer;
  std::size_t count = 0;
  std::string asked;
  std::size_t size = 0;
  bool bufferWasEmpty = false;
};

class ConfigFile : public testing::Test {
 protected:
  std::wstring read(std::string_view bytes, std::wstring_view fallback = L"default") {
    return config_.Read_ini_value(L"S", L"K", folder_.write("config.ini", bytes), fallback);
  }

  TempFolder folder_;
  PortableProfileReader profiles_;
  Windows1252 codePage_;
  Config_file config_{profiles_, codePage_};
};

TEST_F(ConfigFile, readsTheValueOfAKey) {
  EXPECT_EQ(read("[S]\r\nK=150\r\n"), L"150");
}

TEST_F(ConfigFile, missingFileSectionOrKeyGivesTheDefault) {
  EXPECT_EQ(config_.Read_ini_value(L"S", L"K", folder_.path() / "none.ini", L"7"), L"7");
  EXPECT_EQ(read("[A]\r\nK=1\r\n"), L"default");
  EXPECT_EQ(read("[S]\r\nA=1\r\n"), L"default");
}

TEST_F(ConfigFile, presentButEmptyValueIsTheDefaultToo) {
  EXPECT_EQ(read("[S]\r\nK=\r\n"), L"default");
  EXPECT_EQ(read("[S]\r\nK=   \r\n"), L"default");
  EXPECT_EQ(read("[S]\r\nK=\"\"\r\n"), L"default");
}

TEST_F(ConfigFile, valueIsCutTo254Characters) {
  EXPECT_EQ(read(valueOfLength(253)).size(), 253U);
  EXPECT_EQ(read(valueOfLength(254)).size(), 254U);
  EXPECT_EQ(read(valueOfLength(255)).size(), 254U);
  EXPECT_EQ(read(valueOfLength(400)).size(), 254U);
}

TEST_F(ConfigFile, defaultIsNeverCutNorTrimmed) {
  EXPECT_EQ(read("", std::wstring(400, L' ')), std::wstring(400, L' '));
}

TEST_F(ConfigFile, textsAreOfTheCodePage) {
  const auto file = folder_.write("config.ini", "[\xFC]\r\n\xE9=\x80\r\n");
  EXPECT_EQ(config_.Read_ini_value(L"\u00FC", L"\u00E9", file, L""), L"\u20AC");
}

TEST_F(ConfigFile, servesTheSkinAsItsValues) {
  SkinValues& values = config_;
  EXPECT_EQ(values.value(L"S", L"K", folder_.write("config.ini", "[S]\nK=5"), L""), L"5");
}

TEST(ConfigFileCall, asksWithAnEmptyDefaultAndABufferOf255NulCharacters) {
  RecordingProfileReader profiles;
  const Windows1252 codePage;
  Config_file(profiles, codePage).Read_ini_value(L"New", L"X", "config.ini", L"9");
  EXPECT_EQ(profiles.asked, "New|X||config.ini");
  EXPECT_EQ(profiles.size, 255U);
  EXPECT_TRUE(profiles.bufferWasEmpty);
}

TEST(ConfigFileCall, takesAsManyCharactersAsTheCallReturned) {
  RecordingProfileReader profiles;
  const Windows1252 codePage;
  Config_file config(profiles, codePage);
  profiles.answer = "12345";
  profiles.count = 3;
  EXPECT_EQ(config.Read_ini_value(L"S", L"K", "a", L"9"), L"123");
  profiles.count = 0;
  EXPECT_EQ(config.Read_ini_value(L"S", L"K", "a", L"9"), L"9");
  profiles.count = 100000;
  EXPECT_EQ(config.Read_ini_value(L"S", L"K", "a", L"9").size(), 255U);
}

}  // namespace
}  // namespace kalvora
