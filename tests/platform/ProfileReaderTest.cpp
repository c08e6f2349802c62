#include <gtest/gtest.h>
#include <windows.h>

#include <map>

#include "app/PortableProfileReader.h"
#include "fakes/IniCorpus.h"
#include "fakes/TempFolder.h"
#include "win32/PlatformProfileReader.h"

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
