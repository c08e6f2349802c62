#include "base/ClearOfCheck.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(ClearOfCheck, whatEndsFarFromACheckIsNotPutOff) {
  EXPECT_EQ(clearOfCheck(0, 2), 0);
  EXPECT_EQ(clearOfCheck(0, 56), 0);
  EXPECT_EQ(clearOfCheck(3, 30), 3);
  EXPECT_EQ(clearOfCheck(10, 52), 10);
}

TEST(ClearOfCheck, whatWouldEndAroundOneEndsAfterIt) {
  for (int now = 0; now < 60; ++now) {
    for (int seconds = 0; seconds < 60; ++seconds) {
      const int put = clearOfCheck(seconds, now);
      const int end = (now + put) % 60;
      ASSERT_TRUE(end >= 2 && end < 57) << now << " and " << seconds;
      ASSERT_GE(put, seconds);
      ASSERT_LE(put, seconds + 5) << "no longer than it has to";
    }
  }
}

}  // namespace
}  // namespace kalvora
