#include "base/FileWriter.h"

#include <gtest/gtest.h>

#include "base/FileSystem.h"

namespace kalvora {
namespace {

TEST(FileWriter, writingInPlaceLeavesTheEndOfALongerOldContent) {
  EXPECT_EQ(bytesAfterWritingInPlace("abcdef", "12"), "12cdef");
  EXPECT_EQ(bytesAfterWritingInPlace("ab", "1234"), "1234");
  EXPECT_EQ(bytesAfterWritingInPlace("ab", "12"), "12");
  EXPECT_EQ(bytesAfterWritingInPlace("", "12"), "12");
  EXPECT_EQ(bytesAfterWritingInPlace("ab", ""), "ab");
}

TEST(FileWriter, aTemporaryFileStandsBesideItsFileAndIsNoNoteSkinOrIcon) {
  const std::filesystem::path place = temporaryPlace(std::filesystem::path("notes") / "a.txt", 7);
  EXPECT_EQ(place, std::filesystem::path("notes") / "~kalvora-7.tmp");
  for (const wchar_t* pattern : {L"*.txt", L"*.tx?", L"*.ico", L"*.bmp", L"*.ini", L"*.wav"}) {
    EXPECT_FALSE(matchesPattern(place.filename().wstring(), pattern));
  }
}

}  // namespace
}  // namespace kalvora
