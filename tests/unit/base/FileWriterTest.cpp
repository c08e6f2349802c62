#include "base/FileWriter.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(FileWriter, writingInPlaceLeavesTheEndOfALongerOldContent) {
  EXPECT_EQ(bytesAfterWritingInPlace("abcdef", "12"), "12cdef");
  EXPECT_EQ(bytesAfterWritingInPlace("ab", "1234"), "1234");
  EXPECT_EQ(bytesAfterWritingInPlace("ab", "12"), "12");
  EXPECT_EQ(bytesAfterWritingInPlace("", "12"), "12");
  EXPECT_EQ(bytesAfterWritingInPlace("ab", ""), "ab");
}

}  // namespace
}  // namespace kalvora
