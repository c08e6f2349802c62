#include "skinkit/SkinStates.h"

#include <gtest/gtest.h>

#include "BrokenSkin.h"
#include "app/Config_file.h"
#include "app/PortableProfileReader.h"
#include "base/CodePage.h"
#include "posix/StandardFileSystem.h"
#include "skin/SkinnedWindow.h"

namespace kalvora {
namespace {

constexpr int kMargin = 12;  // of the desktop around the window

class SkinStates : public testing::Test {
 protected:
  Image pictureIn(SkinState state) const {
    PreviewLook look;
    look.state = state;
    return skinPicture(skin_, look);
  }

  /// What is seen in a picture at the place of a button.
  Image buttonIn(const Image& picture, ButtonId id) const {
    const Rect place = rectOf(id);
    return picture.crop({place.x + kMargin, place.y + kMargin, place.width, place.height});
  }
  Rect rectOf(ButtonId id) const {
    const ButtonPlace& place = skin_.description.button(id);
    return {place.x, place.y, place.width, place.height};
  }

  Skin skin_ = [] {
    const BrokenSkin whole;
    const StandardFileSystem files;
    PortableProfileReader profiles;
    const Windows1252 codePage;
    Config_file values(profiles, codePage);
    return loadSkin(files, values, whole.path());
  }();
};

TEST_F(SkinStates, hidesTheMainButtonsOfAReminderAndNoOthers) {
  const Image full = pictureIn(SkinState::Full);
  const Image reminder = pictureIn(SkinState::Reminder);
  for (const ButtonId id : kEverySkinsButtons) {
    const bool inTheTitle = id == ButtonId::Buttons_Delete || id == ButtonId::Buttons_Down ||
                            id == ButtonId::Buttons_Close;
    EXPECT_EQ(buttonIn(full, id) == buttonIn(reminder, id), inTheTitle) << static_cast<int>(id);
  }
}

TEST_F(SkinStates, showsTheFaceOfAReminderAtRestAndPressed) {
  const Image full = pictureIn(SkinState::Full);
  const Image atRest = pictureIn(SkinState::Reminder);
  const Image pressed = pictureIn(SkinState::ReminderPressed);
  for (const ButtonId id : kFaceButtons) {
    EXPECT_NE(buttonIn(full, id), buttonIn(atRest, id)) << static_cast<int>(id);
    EXPECT_EQ(buttonIn(atRest, id), skin_.face->atRest.crop(rectOf(id))) << static_cast<int>(id);
    EXPECT_EQ(buttonIn(pressed, id), skin_.face->pressed.crop(rectOf(id))) << static_cast<int>(id);
    EXPECT_NE(buttonIn(atRest, id), buttonIn(pressed, id)) << static_cast<int>(id);
  }
}

TEST_F(SkinStates, pressesEveryButton) {
  const Image full = pictureIn(SkinState::Full);
  const Image pressed = pictureIn(SkinState::Pressed);
  for (const ButtonId id : kEverySkinsButtons) {
    EXPECT_NE(buttonIn(full, id), buttonIn(pressed, id)) << static_cast<int>(id);
  }
}

TEST_F(SkinStates, rollsUpToTheHeightOfTheSmallShape) {
  const Image rolled = pictureIn(SkinState::RolledUp);
  EXPECT_EQ(rolled.width(), skin_.Temp_ShapeP[0].width() - 1 + 2 * kMargin);
  EXPECT_EQ(rolled.height(), skin_.Temp_ShapeP[1].height() + 2 * kMargin);
}

}  // namespace
}  // namespace kalvora
