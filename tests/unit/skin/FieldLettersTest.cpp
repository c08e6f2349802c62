#include "skin/FieldLetters.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

TEST(FieldLetters, areAsLargeAsTheBoxAllows) {
  EXPECT_EQ(fieldLetters(17), 12);
  EXPECT_EQ(fieldLetters(18), 13);
}

TEST(FieldLetters, areOfTheUsualSizeInABoxThatIsALittleTall) {
  EXPECT_EQ(fieldLetters(23), 13);
}

TEST(FieldLetters, growWithABoxMadeForLargeLetters) {
  EXPECT_EQ(fieldLetters(24), 14);
  EXPECT_EQ(fieldLetters(30), 20);
}

TEST(FieldLetters, keepBetweenTheirLimits) {
  EXPECT_EQ(fieldLetters(-32768), 8);
  EXPECT_EQ(fieldLetters(1), 8);
  EXPECT_EQ(fieldLetters(32767), 24);
}

TEST(FieldLetters, ofTheNoteFollowTheTitleButAreNeverSmall) {
  EXPECT_EQ(noteTextLetters(10), 13);
  EXPECT_EQ(noteTextLetters(18), 13);
  EXPECT_EQ(noteTextLetters(30), 20);
}

}  // namespace
}  // namespace kalvora
