#include "skin/TextScroll.h"

#include <gtest/gtest.h>

#include "skin/WindowPicture.h"

namespace kalvora {
namespace {

constexpr Size kStrip{kTextScrollWidth, 100};

FieldLook inkOnPaper() {
  FieldLook look;
  look.textColor = 0x000000;
  look.backgroundColor = 0xFFFFFF;
  return look;
}

Image picture(const TextExtent& extent, TextScrollLook look) {
  return textScrollPicture(kStrip, extent, inkOnPaper(), look);
}

int inkedRows(const Image& strip) {
  int rows = 0;
  for (int y = 0; y < strip.height(); ++y) {
    bool inked = false;
    for (int x = 0; x < strip.width(); ++x) inked |= strip.at(x, y) != pixelOf(255, 255, 255);
    rows += inked ? 1 : 0;
  }
  return rows;
}

TEST(TextScroll, aTextThatFitsNeedsNone) {
  EXPECT_FALSE(overflows({.lines = 10, .first = 0, .visible = 10}));
  EXPECT_TRUE(overflows({.lines = 11, .first = 0, .visible = 10}));
}

TEST(TextScroll, goesOnBelowUntilItsLastLineIsSeen) {
  EXPECT_TRUE(goesOnBelow({.lines = 11, .first = 0, .visible = 10}));
  EXPECT_FALSE(goesOnBelow({.lines = 11, .first = 1, .visible = 10}));
  EXPECT_FALSE(goesOnBelow({.lines = 11, .first = 5, .visible = 10}));
  EXPECT_FALSE(goesOnBelow({.lines = 3, .first = 0, .visible = 10}));
}

TEST(TextScroll, standsAtTheRightEdgeOfAFieldThatIsLargeEnough) {
  EXPECT_EQ(textScrollRect({10, 20, 150, 90}), (Rect{160 - kTextScrollWidth, 20, 8, 90}));
  EXPECT_TRUE(textScrollRect({10, 20, 31, 90}).empty());
  EXPECT_TRUE(textScrollRect({10, 20, 150, 15}).empty());
}

TEST(TextScroll, leavesTheRestOfTheFieldToTheText) {
  EXPECT_EQ(textRectBesideScroll({10, 20, 150, 90}), (Rect{10, 20, 142, 90}));
  EXPECT_EQ(textRectBesideScroll({10, 20, 31, 90}), (Rect{10, 20, 31, 90}));
}

TEST(TextScroll, showsNothingOfATextThatIsSeenAsAWhole) {
  for (const TextScrollLook look : {TextScrollLook::Mark, TextScrollLook::Bar}) {
    EXPECT_EQ(inkedRows(picture({.lines = 10, .first = 0, .visible = 10}, look)), 0);
  }
}

TEST(TextScroll, theMarkIsAtTheLowerEndOnlyWhileTextGoesOn) {
  const Image mark = picture({.lines = 30, .first = 0, .visible = 10}, TextScrollLook::Mark);
  EXPECT_EQ(inkedRows(mark), 4);
  EXPECT_EQ(inkedRows(mark.crop({0, 90, kTextScrollWidth, 10})), 4);
  EXPECT_EQ(inkedRows(picture({.lines = 30, .first = 20, .visible = 10}, TextScrollLook::Mark)), 0);
}

TEST(TextScroll, theMarkPointsDown) {
  const Image mark = picture({.lines = 30, .first = 0, .visible = 10}, TextScrollLook::Mark);
  const auto inked = [&mark](int y) {
    int count = 0;
    for (int x = 0; x < mark.width(); ++x) count += mark.at(x, y) == mark.at(0, 0) ? 0 : 1;
    return count;
  };
  EXPECT_EQ(inked(94), 7);
  EXPECT_EQ(inked(97), 1);
}

TEST(TextScroll, theThumbShowsHowMuchIsSeenAndWhere) {
  const TextScrollThumb top = textScrollThumb(102, {.lines = 40, .first = 0, .visible = 10});
  EXPECT_EQ(top.top, 1);
  EXPECT_EQ(top.height, 25);
  EXPECT_EQ(textScrollThumb(102, {.lines = 40, .first = 30, .visible = 10}).top, 76);
  EXPECT_EQ(textScrollThumb(102, {.lines = 40, .first = 15, .visible = 10}).top, 38);
}

TEST(TextScroll, theThumbOfALongTextCanStillBeTaken) {
  const TextScrollThumb thumb =
      textScrollThumb(102, {.lines = 2'000'000'000, .first = 1'999'999'990, .visible = 10});
  EXPECT_EQ(thumb.height, 12);
  EXPECT_EQ(thumb.top, 89);
}

TEST(TextScroll, theThumbNeverLeavesTheStrip) {
  for (const int height : {1, 2, 5, 20, 300}) {
    for (const int lines : {0, 1, 2, 10, 5000}) {
      for (const int first : {-5, 0, 1, 4999, 100'000}) {
        const TextScrollThumb thumb = textScrollThumb(height, {lines, first, 3});
        EXPECT_LE(thumb.height, height);
        if (height < 3) continue;
        EXPECT_LE(thumb.top + thumb.height, height);
      }
    }
  }
}

TEST(TextScroll, theThumbIsDrawnToEachLineAndBack) {
  for (int first = 0; first <= 30; ++first) {
    const TextExtent extent{.lines = 40, .first = first, .visible = 10};
    EXPECT_EQ(firstLineAt(102, extent, textScrollThumb(102, extent).top), first);
  }
}

TEST(TextScroll, beyondTheStripTheTextStopsAtItsEnds) {
  const TextExtent extent{.lines = 40, .first = 3, .visible = 10};
  EXPECT_EQ(firstLineAt(102, extent, -500), 0);
  EXPECT_EQ(firstLineAt(102, extent, 500), 30);
  EXPECT_EQ(firstLineAt(5, extent, 500), 0) << "no way to go";
}

TEST(TextScroll, theBarIsMixedFromTheColoursOfTheSkin) {
  FieldLook look;
  look.textColor = 0x0000C8;        // red
  look.backgroundColor = 0x640000;  // blue
  const TextExtent extent{.lines = 20, .first = 0, .visible = 10};
  const Image bar = textScrollPicture(kStrip, extent, look, TextScrollLook::Bar);
  EXPECT_EQ(bar.at(0, 50), pixelOf(0, 0, 100));
  EXPECT_EQ(bar.at(4, 10), pixelOf(110, 0, 45)) << "the thumb";
  EXPECT_EQ(bar.at(4, 90), pixelOf(24, 0, 88)) << "where it can be drawn to";
}

}  // namespace
}  // namespace kalvora
