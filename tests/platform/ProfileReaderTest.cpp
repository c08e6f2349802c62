#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <map>

#include "app/IniAnswer.h"
#include "app/PortableProfileReader.h"
#include "fakes/IniCorpus.h"
#include "fakes/TempFolder.h"
#include "win32/platform/PlatformProfileReader.h"
#include "win32/platform/RememberedIniFile.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {
namespace {

bool underWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

/// Where Wine 8 departs from what is documented: it takes the closing quote off a value that its
/// cut has already freed of it.
const std::map<std::string, std::string>& wineFaults() {
  static const std::map<std::string, std::string> faults = {{"quotedValue254", letters(253)}};
  return faults;
}

std::string platformAnswer(const IniCase& ini) {
  const auto fault = wineFaults().find(ini.name);
  return underWine() && fault != wineFaults().end() ? fault->second : ini.answer;
}

void expectAlike(const std::vector<IniCase>& cases) {
  const TempFolder folder;
  PlatformProfileReader platform;
  PortableProfileReader portable;
  for (const IniCase& ini : cases) {
    const auto file = folder.write(ini.name + ".ini", ini.bytes);
    EXPECT_EQ(askIni(portable, ini, file), ini.answer) << ini.name;
    EXPECT_EQ(askIni(platform, ini, file), platformAnswer(ini)) << ini.name;
  }
}

TEST(ProfileReaders, callAndStandInAnswerAlikeWhereItIsDocumented) {
  expectAlike(kDocumentedIniCases);
}

TEST(ProfileReaders, callAndStandInAnswerAlikeWhereItIsNot) {
  // Measured under Wine, so only Wine is held to them.
  if (underWine()) expectAlike(kOddIniCases);
}

TEST(ProfileReaders, missingFileGivesTheFallbackInBoth) {
  const TempFolder folder;
  const IniCase ini{"", "", "S", "K", ""};
  PlatformProfileReader platform;
  PortableProfileReader portable;
  for (const auto& file : {folder.path() / "none.ini", folder.path() / "none" / "none.ini"}) {
    EXPECT_EQ(askIni(platform, ini, file), kIniFallback);
    EXPECT_EQ(askIni(portable, ini, file), kIniFallback);
  }
}

TEST(ProfileReaders, fallbackIsTreatedAlike) {
  const TempFolder folder;
  PlatformProfileReader platform;
  PortableProfileReader portable;
  for (const char* fallback : {"", " ab  ", "abcdefgh"}) {
    std::array<char, 5> one{};
    std::array<char, 5> other{};
    const auto file = folder.path() / "none.ini";
    EXPECT_EQ(platform.privateProfileString("S", "K", fallback, one, file),
              portable.privateProfileString("S", "K", fallback, other, file))
        << fallback;
    EXPECT_STREQ(one.data(), other.data());
  }
}

/// A file that nobody has written lately.
std::filesystem::path writeLongAgo(const TempFolder& folder, const std::string& name,
                                   const std::string& bytes,
                                   std::chrono::seconds ago = std::chrono::hours(1)) {
  auto file = folder.write(name, bytes);
  std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - ago);
  return file;
}

std::string askForK(PlatformProfileReader& reader, const std::filesystem::path& file) {
  return askIni(reader, {"", "", "S", "K", ""}, file);
}

void expectAlikeFromOldFiles(const std::vector<IniCase>& cases) {
  const TempFolder folder;
  PlatformProfileReader reader;
  for (const IniCase& ini : cases) {
    const auto file = writeLongAgo(folder, ini.name + ".ini", ini.bytes);
    const std::string expected = isOrdinaryIni(ini.bytes) ? ini.answer : platformAnswer(ini);
    EXPECT_EQ(askIni(reader, ini, file), expected) << ini.name;
  }
}

TEST(PlatformProfileReader, answersTheSameFromFilesThatAreOld) {
  expectAlikeFromOldFiles(kDocumentedIniCases);
  if (underWine()) expectAlikeFromOldFiles(kOddIniCases);
}

TEST(PlatformProfileReader, looksAnOrdinaryOldFileUpItself) {
  const TempFolder folder;
  const std::string quoted = "[S]\r\nK=\"" + letters(254) + "\"\r\n";
  PlatformProfileReader reader;
  // Wine's fault tells which of the two has answered.
  const std::size_t called = underWine() ? 253 : 254;
  EXPECT_EQ(askForK(reader, folder.write("new.ini", quoted)), letters(called));
  EXPECT_EQ(askForK(reader, writeLongAgo(folder, "old.ini", quoted)), letters(254));
}

TEST(PlatformProfileReader, readsAFileAnewWhenItChanged) {
  const TempFolder folder;
  PlatformProfileReader reader;
  const auto file = writeLongAgo(folder, "a.ini", "[S]\r\nK=5\r\n");
  EXPECT_EQ(askForK(reader, file), "5");
  writeLongAgo(folder, "a.ini", "[S]\r\nK=6\r\n", std::chrono::minutes(59));  // as long
  EXPECT_EQ(askForK(reader, file), "6");
  writeLongAgo(folder, "a.ini", "[S]\r\nK=77\r\n", std::chrono::minutes(59));  // maybe as old
  EXPECT_EQ(askForK(reader, file), "77");
  folder.write("a.ini", "[S]\r\nK=88\r\n");
  EXPECT_EQ(askForK(reader, file), "88");
  folder.write("a.ini", "[S]\r\nK=99\r\n");  // at once
  EXPECT_EQ(askForK(reader, file), "99");
  std::filesystem::remove(file);
  EXPECT_EQ(askForK(reader, file), kIniFallback);
}

TEST(PlatformProfileReader, takesTwoFilesInTurn) {
  const TempFolder folder;
  PlatformProfileReader reader;
  const auto one = writeLongAgo(folder, "a.ini", "[S]\r\nK=5\r\n");
  const auto other = writeLongAgo(folder, "b.ini", "[S]\r\nK=6\r\n");
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(askForK(reader, one), "5");
    EXPECT_EQ(askForK(reader, other), "6");
  }
}

TEST(RememberedIniFile, leavesWhatIsNotOrdinaryToThePlatform) {
  const TempFolder folder;
  RememberedIniFile remembered;
  const std::string plain = "[S]\r\nK=5\r\n";
  const auto ordinary = writeLongAgo(folder, "a.ini", plain);
  ASSERT_NE(remembered.textOf(ordinary), nullptr);
  EXPECT_EQ(*remembered.textOf(ordinary), plain);
  EXPECT_EQ(remembered.textOf(writeLongAgo(folder, "odd.ini", "[S]\r\nK=\xE4\r\n")), nullptr);
  EXPECT_EQ(remembered.textOf(folder.write("new.ini", plain)), nullptr);
  EXPECT_EQ(remembered.textOf(writeLongAgo(folder, "future.ini", plain, -std::chrono::hours(1))),
            nullptr);
  EXPECT_EQ(remembered.textOf(folder.path() / "none.ini"), nullptr);
  EXPECT_EQ(remembered.textOf(folder.path()), nullptr);
  const std::string comment = ";" + std::string(65535, 'x');
  EXPECT_NE(remembered.textOf(writeLongAgo(folder, "large.ini", comment)), nullptr);
  EXPECT_EQ(remembered.textOf(writeLongAgo(folder, "larger.ini", comment + "x")), nullptr);
}

TEST(RememberedIniFile, ofAFileThatCannotBeReadIsLeftToThePlatform) {
  const TempFolder folder;
  RememberedIniFile remembered;
  const auto file = writeLongAgo(folder, "a.ini", "[S]\r\nK=5\r\n");
  {
    const UniqueFile held(
        CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    EXPECT_EQ(remembered.textOf(file), nullptr);
  }
  EXPECT_NE(remembered.textOf(file), nullptr);
}

TEST(PlatformProfileReader, readsAFileInAFolderThatTheCodePageCannotHold) {
  const TempFolder folder;
  const auto file =
      folder.write(std::filesystem::path(L"\u0416\u4E2D\u05D0") / L"config.ini", "[S]\r\nK=5\r\n");
  PlatformProfileReader reader;
  EXPECT_EQ(askIni(reader, {"", "", "S", "K", ""}, file), "5");
}

TEST(PlatformProfileReader, wideCallGivesTheSameAnswersFromAFileInTheCodePage) {
  const TempFolder folder;
  PlatformProfileReader reader;
  for (const IniCase& ini : kDocumentedIniCases) {
    const auto file = folder.write(ini.name + ".ini", ini.bytes);
    std::array<char, 255> buffer{};
    const std::size_t count = wideProfileString(ini.section, ini.key, kIniFallback, buffer, file);
    EXPECT_EQ(std::string(buffer.data(), count), askIni(reader, ini, file)) << ini.name;
  }
}

}  // namespace
}  // namespace kalvora
