#include "base/FileSystem.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/TempFolder.h"
#include "posix/StandardFileSystem.h"

namespace kalvora {
namespace {

TEST(MatchesPattern, starIsAnyRun) {
  EXPECT_TRUE(matchesPattern(L"", L"*"));
  EXPECT_TRUE(matchesPattern(L"anything", L"*"));
  EXPECT_TRUE(matchesPattern(L"a.txt", L"*.txt"));
  EXPECT_TRUE(matchesPattern(L".txt", L"*.txt"));
  EXPECT_TRUE(matchesPattern(L"a.txt.txt", L"*.txt"));
  EXPECT_TRUE(matchesPattern(L"abcabc", L"a*b*c"));
  EXPECT_TRUE(matchesPattern(L"ab", L"a**b"));
  EXPECT_FALSE(matchesPattern(L"a.txt2", L"*.txt"));
  EXPECT_FALSE(matchesPattern(L"atxt", L"*.txt"));
  EXPECT_FALSE(matchesPattern(L"", L"*.txt"));
}

TEST(MatchesPattern, questionMarkIsExactlyOneCharacter) {
  EXPECT_TRUE(matchesPattern(L"a.tx1", L"*.tx?"));
  EXPECT_FALSE(matchesPattern(L"a.tx", L"*.tx?"));
  EXPECT_FALSE(matchesPattern(L"a.tx12", L"*.tx?"));
  EXPECT_FALSE(matchesPattern(L"", L"?"));
}

TEST(MatchesPattern, withoutWildcardsIsEqualityWithoutRegardToCase) {
  EXPECT_TRUE(matchesPattern(L"A.TXT", L"a.txt"));
  EXPECT_TRUE(matchesPattern(L"\u017C.txt", L"\u017B.TXT"));
  EXPECT_TRUE(matchesPattern(L"", L""));
  EXPECT_FALSE(matchesPattern(L"a", L""));
  EXPECT_FALSE(matchesPattern(L"a.txt", L"a_txt"));
}

TEST(MatchesPattern, manyStarsTakeNoTime) {
  const std::wstring name(5000, L'a');
  std::wstring pattern;
  for (int i = 0; i < 50; ++i) pattern += L"*a";
  EXPECT_FALSE(matchesPattern(name, pattern + L"b"));
  EXPECT_TRUE(matchesPattern(name, pattern));
}

TEST(FileExists, comparesWithTheListingWithoutRegardToCase) {
  const TempFolder folder;
  folder.write("Bell.ico", "x");
  folder.write(".hidden.ico", "x");
  folder.write("sub/inner.ico", "x");
  const StandardFileSystem files;
  EXPECT_TRUE(files.fileExists(folder.path(), L"bELL.ICO"));
  EXPECT_FALSE(files.fileExists(folder.path(), L"Bell"));
  EXPECT_FALSE(files.fileExists(folder.path(), L"*.ico"));
  EXPECT_FALSE(files.fileExists(folder.path(), L""));
  EXPECT_FALSE(files.fileExists(folder.path(), L"sub"));
  EXPECT_FALSE(files.fileExists(folder.path(), L"sub/inner.ico"));
  EXPECT_FALSE(files.fileExists(folder.path() / "none", L"Bell.ico"));
}

TEST(FileExists, hiddenFileDoesNotExist) {
  const TempFolder folder;
  folder.write(".hidden.ico", "x");
  EXPECT_FALSE(StandardFileSystem().fileExists(folder.path(), L".hidden.ico"));
}

}  // namespace
}  // namespace kalvora
