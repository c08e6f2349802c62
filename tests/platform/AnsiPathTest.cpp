#include "win32/platform/AnsiPath.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

TEST(AnsiPath, ofWhatTheCodePageHoldsIsThePathItself) {
  EXPECT_EQ(ansiPath(L"C:\\skins\\Gr\u00FC\u00DFe.ini"),
            "C:\\skins\\Gr\xFC\xDF"
            "e.ini");
}

TEST(AnsiPath, ofAnyOtherFileLeadsToThatFile) {
  const TempFolder folder;
  const auto file = folder.write(L"\u65E5\u672C\u8A9E.wav", "the sound");
  const auto path = ansiPath(file);
  ASSERT_TRUE(path);
  // Opened by its bytes, as those calls of the platform do.
  std::ifstream in(path->c_str(), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "the sound");
}

TEST(AnsiPath, ofNoFileOutsideTheCodePageIsNothing) {
  const TempFolder folder;
  EXPECT_EQ(ansiPath(folder.path() / L"\u65E5\u672C\u8A9E.wav"), std::nullopt);
}

}  // namespace
}  // namespace kalvora
