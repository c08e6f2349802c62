#include "SkinnedWindowFixture.h"

namespace kalvora {
namespace {

constexpr Pixel kAtRest = 0x667788;
constexpr Pixel kHeldDown = 0x8899AA;
constexpr Pixel kUnder = 0x99AA00;  // where the main buttons were
constexpr Rect kSnooze{20, 30, 20, 10};
constexpr Rect kDone{50, 40, 30, 12};

/// The main buttons stand in a line at y = 0, the two of the face elsewhere.
Skin skinWithFace() {
  Skin skin = plainSkin();
  skin.face = ReminderFace{Image(101, 60, kUnder), Image(101, 60, kHeldDown)};
  for (const Rect& place : {kSnooze, kDone}) skin.face->atRest.fill(place, kAtRest);
  skin.description.buttons[8] = {kSnooze.x, kSnooze.y, kSnooze.width, kSnooze.height};
  skin.description.buttons[9] = {kDone.x, kDone.y, kDone.width, kDone.height};
  return skin;
}

class FacedWindow : public testing::Test {
 protected:
  FacedWindow() {
    window_.wear(skinWithFace());
    window_.takeDirty();
  }
  Image painted() const { return window_.paint({100, 60}); }
  void remind() { window_.setMainButtonsVisible(Visible::No); }
  void expectFace(bool visible) const {
    for (const ButtonId id : kFaceButtons) EXPECT_EQ(window_.buttonVisible(id), visible);
    EXPECT_EQ(window_.buttonAt({21, 31}) == ButtonId::Snooze, visible);
    EXPECT_EQ(window_.buttonAt({51, 41}) == ButtonId::Done, visible);
  }
  /// The window under a reminder, at rest.
  static Image reminder() {
    Image picture(100, 60, kGround);
    picture.fill({30, 0, 50, 10}, kUnder);
    for (const Rect& place : {kSnooze, kDone}) picture.fill(place, kAtRest);
    return picture;
  }

  SkinnedWindow window_;
};

TEST_F(FacedWindow, theFaceIsSeenWhileTheMainButtonsAreHiddenForAReminder) {
  expectFace(false);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  remind();
  expectFace(true);
  EXPECT_EQ(painted(), reminder());
  EXPECT_EQ(window_.takeDirty(), (Rect{20, 0, 60, 52}));
  window_.setMainButtonsVisible(Visible::Yes);
  expectFace(false);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  EXPECT_EQ(window_.takeDirty(), (Rect{20, 0, 60, 52}));
}

TEST_F(FacedWindow, aPressedButtonOfItShowsItsPieceOfTheSecondPicture) {
  remind();
  window_.takeDirty();
  window_.showPressed(ButtonId::Done);
  Image expected = reminder();
  expected.fill(kDone, kHeldDown);
  EXPECT_EQ(painted(), expected);
  EXPECT_EQ(window_.takeDirty(), kDone);
  window_.showNormal(ButtonId::Done);
  EXPECT_EQ(painted(), reminder());
}

TEST_F(FacedWindow, rolledUpItIsHiddenLikeTheMainButtons) {
  remind();
  window_.Ukryj_pics(Hide::Yes);
  expectFace(false);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  window_.takeDirty();
  window_.Ukryj_pics(Hide::No);
  expectFace(true);
  Image kept(100, 60, kGround);
  window_.paintOver(kept, window_.takeDirty());
  EXPECT_EQ(kept, reminder());
}

TEST_F(FacedWindow, anotherSkinUnderAReminderBringsItsOwnOrNone) {
  remind();
  window_.showPressed(ButtonId::Snooze);
  window_.wear(plainSkin());
  expectFace(false);
  for (const ButtonId id : kFaceButtons) EXPECT_TRUE(window_.buttonRect(id).empty());
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  window_.wear(skinWithFace());
  expectFace(true);
  EXPECT_EQ(painted(), reminder());
}

/// The places alone, without pictures.
TEST_F(SkinnedWindowTest, placesOfAFaceThatIsNotThereChangeNothing) {
  Skin placed = skinWithFace();
  placed.face.reset();
  placed.Temp_Main[0].image.fill({30, 0, 50, 10}, 0xABCDEF);
  Skin plain = placed;
  for (const std::size_t number : {8U, 9U}) plain.description.buttons[number] = {};
  SkinnedWindow other;
  for (SkinnedWindow* window : {&window_, &other}) {
    window->wear(window == &other ? plain : placed);
    window->setMainButtonsVisible(Visible::No);
    EXPECT_FALSE(window->buttonVisible(ButtonId::Done));
    EXPECT_EQ(window->buttonAt({51, 41}), std::nullopt);
  }
  EXPECT_EQ(window_.paint({100, 60}), other.paint({100, 60}));
}

}  // namespace
}  // namespace kalvora
