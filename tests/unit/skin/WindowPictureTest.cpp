#include "skin/WindowPicture.h"

#include <gtest/gtest.h>

namespace kalvora {
namespace {

FieldLook lookAt(float left, float top, float width, float height) {
  FieldLook look;
  look.left = left;
  look.top = top;
  look.width = width;
  look.height = height;
  return look;
}

TEST(WindowPicture, aFieldStandsOnWholePixels) {
  EXPECT_EQ(fieldRect(lookAt(1.4F, 2.5F, -0.6F, 30)), (Rect{1, 3, -1, 30}));
}

TEST(WindowPicture, aFieldFartherAwayThanAnyWindowStaysWithin16Bits) {
  EXPECT_EQ(fieldRect(lookAt(3e38F, -3e38F, 2147483000.0F, 40000)),
            (Rect{32767, -32768, 32767, 32767}));
}

TEST(WindowPicture, aFieldBeyondThePictureFillsNothing) {
  SkinDescription description;
  description.fields[0] = lookAt(3e38F, 2147483000.0F, 2147483000.0F, 9e9F);
  description.fields[0].backgroundColor = 0xFF;
  Image picture(4, 3, 0x123456);
  fillFields(picture, description);
  EXPECT_EQ(picture, Image(4, 3, 0x123456));
}

}  // namespace
}  // namespace kalvora
