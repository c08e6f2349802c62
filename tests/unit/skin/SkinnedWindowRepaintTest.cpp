#include <utility>

#include "SkinnedWindowFixture.h"

namespace kalvora {
namespace {

TEST_F(SkinnedWindowTest, eachRowIsPaintedInItsPlaceAndOnlyThereTheWindowIsPaintedAnew) {
  const std::pair<RowId, Rect> places[] = {{RowId::lit, {2, 12, 80, 5}},
                                           {RowId::lit_czas, {2, 20, 40, 5}},
                                           {RowId::lit_czas2, {2, 28, 40, 5}},
                                           {RowId::lit_xof, {2, 36, 40, 5}}};
  Image expected(100, 60, kGround);
  for (const auto& [row, place] : places) {
    window_.Pokaz_Tekst(row, std::wstring(30, L'A'));
    expected.fill(place, 1);
    EXPECT_EQ(painted(), expected);
    EXPECT_EQ(window_.takeDirty(), place);
  }
}

TEST_F(SkinnedWindowTest, anotherSkinStartsWithNormalButtonsAndBlankRows) {
  window_.showPressed(ButtonId::Buttons_main_02);
  window_.Pokaz_Tekst(RowId::lit, L"ABC");
  window_.Ukryj_pics(Hide::Yes);
  window_.wear(plainSkin());
  EXPECT_TRUE(window_.fieldsHidden());
  EXPECT_EQ(window_.takeDirty(), (Rect{0, 0, 101, 60}));
  window_.Ukryj_pics(Hide::No);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
}

TEST_F(SkinnedWindowTest, cellsBeyondAShorterRowShowNothing) {
  Skin skin = plainSkin();
  window_.Pokaz_Tekst(RowId::lit, std::wstring(20, L'A'));
  skin.description.rows[0].length = 2;
  window_.wear(skin);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  skin.description.rows[0].length = 20;
  window_.wear(skin);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
}

TEST_F(SkinnedWindowTest, aWindowLargerThanItsPictureIsGreyThere) {
  const Image picture = window_.paint({110, 70});
  EXPECT_EQ(picture.at(100, 59), kGround);
  EXPECT_EQ(picture.at(101, 59), kBare);
  EXPECT_EQ(picture.at(100, 60), kBare);
}

TEST_F(SkinnedWindowTest, aWindowSmallerThanItsPictureShowsItsTopLeftPart) {
  window_.showPressed(ButtonId::Buttons_main_05);
  const Image picture = window_.paint({75, 5});
  EXPECT_EQ(picture.size(), (Size{75, 5}));
  EXPECT_EQ(picture.at(69, 0), kGround);
  EXPECT_EQ(picture.at(70, 0), kPressed);
  EXPECT_TRUE(window_.paint({0, 0}).empty());
  EXPECT_TRUE(window_.paint({-5, 10}).empty());
}

TEST_F(SkinnedWindowTest, paintingOverWhatChangedGivesTheWholePicture) {
  Image kept = painted();
  const auto update = [&] {
    window_.paintOver(kept, window_.takeDirty());
    EXPECT_EQ(kept, painted());
  };
  window_.Pokaz_Tekst(RowId::lit, L"SHOPPING LIST");
  update();
  window_.showPressed(ButtonId::Buttons_main_04);
  window_.blankCell(RowId::lit, 5);
  update();
  window_.Ukryj_pics(Hide::Yes);
  update();
  window_.Ukryj_pics(Hide::No);
  window_.setMainButtonsVisible(Visible::No);
  update();
}

TEST_F(SkinnedWindowTest, onlyTheRowOfTheTitleChangesWhenItScrolls) {
  window_.Pokaz_Tekst(RowId::lit, L"ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(window_.takeDirty(), (Rect{2, 12, 80, 5}));
  window_.Pokaz_Tekst(RowId::lit, L"ABCDEFGHIJKLMNOPQRST");
  EXPECT_TRUE(window_.takeDirty().empty());
}

TEST_F(SkinnedWindowTest, repaintingTheFormAsksForAllButtons) {
  window_.Refresh_Form_Pic();
  EXPECT_EQ(window_.takeDirty(), (Rect{0, 0, 80, 10}));
}

TEST(SkinnedWindow, theWildestNumbersOfADescriptionAreWornWithoutHarm) {
  Skin skin = plainSkin();
  for (const std::int16_t number : {std::int16_t{-32768}, std::int16_t{32767}, std::int16_t{0}}) {
    skin.description.cellWidth = number;
    skin.description.cellHeight = number;
    for (ButtonPlace& place : skin.description.buttons) place = {number, number, number, number};
    for (RowPlace& place : skin.description.rows) place = {number, number, number};
    SkinnedWindow window;
    window.wear(skin);
    for (const RowId id : kAllRows) window.Pokaz_Tekst(id, L"ABC");
    for (const ButtonId id : kAllButtons) window.showPressed(id);
    window.Refresh_Form_Pic();
    EXPECT_EQ(window.paint({100, 60}).size(), (Size{100, 60}));
    window.buttonAt({5, 5});
    Image kept(100, 60);
    window.paintOver(kept, window.takeDirty());
  }
}

}  // namespace
}  // namespace kalvora
