#include "SkinnedWindowFixture.h"

namespace kalvora {
namespace {

TEST(SkinnedWindow, beforeItsFirstSkinItIsEmptyAndDoesNoHarm) {
  SkinnedWindow window;
  EXPECT_EQ(window.windowWidth(), 0);
  EXPECT_EQ(window.fullHeight(), 0);
  EXPECT_EQ(window.rolledHeight(), 0);
  EXPECT_EQ(window.fullShape(), std::nullopt);
  window.Pokaz_Tekst(RowId::lit, L"ABC");
  window.showPressed(ButtonId::Buttons_main_01);
  EXPECT_EQ(window.buttonAt({0, 0}), std::nullopt);
  EXPECT_EQ(window.paint({2, 2}), Image(2, 2, kBare));
}

TEST_F(SkinnedWindowTest, itsSizesComeFromTheShapePictures) {
  EXPECT_EQ(window_.windowWidth(), 100);
  EXPECT_EQ(window_.fullHeight(), 60);
  EXPECT_EQ(window_.rolledHeight(), 20);
}

TEST(SkinnedWindow, itsOutlinesComeFromTheTwoShapes) {
  Skin skin = plainSkin();
  for (Picture& shape : skin.Temp_ShapeP) {
    shape.image = Image(3, 2);
    shape.bitsPerPixel = 32;
    shape.bytesPerLine = 12;
    shape.bits.assign(24, 0xFF);
  }
  skin.Temp_ShapeP[0].bits[0] = 0;
  skin.Temp_ShapeP[1].bits[4] = 0;
  SkinnedWindow window;
  window.wear(skin);
  EXPECT_EQ(window.fullShape(), (RowSpans{{0, 0, 1}}));
  EXPECT_EQ(window.rolledShape(), (RowSpans{{0, 1, 2}}));
}

TEST_F(SkinnedWindowTest, aButtonStandsWhereItLiesInThePicture) {
  EXPECT_EQ(window_.buttonRect(ButtonId::Buttons_Delete), (Rect{0, 0, 10, 10}));
  EXPECT_EQ(window_.buttonRect(ButtonId::Buttons_main_05), (Rect{70, 0, 10, 10}));
}

TEST_F(SkinnedWindowTest, unpressedItLooksLikeTheMainPicture) {
  EXPECT_EQ(painted(), Image(100, 60, kGround));
}

TEST_F(SkinnedWindowTest, aPressedButtonShowsItsPieceOfTheSecondPicture) {
  window_.showPressed(ButtonId::Buttons_Down);
  Image expected(100, 60, kGround);
  expected.fill({10, 0, 10, 10}, kPressed);
  EXPECT_EQ(painted(), expected);
  EXPECT_EQ(window_.takeDirty(), (Rect{10, 0, 10, 10}));
  window_.showNormal(ButtonId::Buttons_Down);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  EXPECT_EQ(window_.takeDirty(), (Rect{10, 0, 10, 10}));
}

TEST_F(SkinnedWindowTest, aButtonPartlyBeforeThePictureIsPaintedInItsPlace) {
  Skin skin = plainSkin();
  skin.description.buttons[0] = {-4, -3, 10, 10};
  window_.wear(skin);
  window_.showPressed(ButtonId::Buttons_Delete);
  EXPECT_EQ(painted().at(5, 6), kPressed);
  EXPECT_EQ(painted().at(6, 6), kGround);
  EXPECT_EQ(painted().at(5, 7), kGround);
}

TEST_F(SkinnedWindowTest, theButtonUnderAPointIsFound) {
  EXPECT_EQ(window_.buttonAt({0, 0}), ButtonId::Buttons_Delete);
  EXPECT_EQ(window_.buttonAt({9, 9}), ButtonId::Buttons_Delete);
  EXPECT_EQ(window_.buttonAt({10, 9}), ButtonId::Buttons_Down);
  EXPECT_EQ(window_.buttonAt({79, 0}), ButtonId::Buttons_main_05);
  EXPECT_EQ(window_.buttonAt({80, 0}), std::nullopt);
  EXPECT_EQ(window_.buttonAt({0, 10}), std::nullopt);
}

TEST_F(SkinnedWindowTest, ofTwoButtonsAtOnePlaceTheLaterOneLiesAbove) {
  Skin skin = plainSkin();
  skin.description.buttons[1] = {50, 30, 15, 15};
  skin.description.buttons[2] = {50, 30, 15, 15};
  window_.wear(skin);
  EXPECT_EQ(window_.buttonAt({52, 32}), ButtonId::Buttons_Close);
  window_.showPressed(ButtonId::Buttons_Down);
  EXPECT_EQ(painted().at(52, 32), kGround);
  window_.showPressed(ButtonId::Buttons_Close);
  EXPECT_EQ(painted().at(52, 32), kPressed);
}

TEST_F(SkinnedWindowTest, aReminderHidesTheFiveMainButtonsOnly) {
  window_.setMainButtonsVisible(Visible::No);
  for (const ButtonId id :
       {ButtonId::Buttons_Delete, ButtonId::Buttons_Down, ButtonId::Buttons_Close}) {
    EXPECT_TRUE(window_.buttonVisible(id));
  }
  for (const ButtonId id :
       {ButtonId::Buttons_main_01, ButtonId::Buttons_main_02, ButtonId::Buttons_main_03,
        ButtonId::Buttons_main_04, ButtonId::Buttons_main_05}) {
    EXPECT_FALSE(window_.buttonVisible(id));
  }
  EXPECT_EQ(window_.buttonAt({35, 5}), std::nullopt);
  EXPECT_EQ(window_.takeDirty(), (Rect{30, 0, 50, 10}));
  window_.setMainButtonsVisible(Visible::Yes);
  EXPECT_EQ(window_.buttonAt({35, 5}), ButtonId::Buttons_main_01);
}

TEST_F(SkinnedWindowTest, aHiddenButtonIsNotPaintedAndDoesNotChangeThePicture) {
  window_.setMainButtonsVisible(Visible::No);
  window_.takeDirty();
  window_.showPressed(ButtonId::Buttons_main_01);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
  EXPECT_TRUE(window_.takeDirty().empty());
}

TEST_F(SkinnedWindowTest, rolledUpItHidesTheNoteArea) {
  window_.Pokaz_Tekst(RowId::lit, L"A");
  window_.Pokaz_Tekst(RowId::lit_czas, L"A");
  window_.Ukryj_pics(Hide::Yes);
  EXPECT_TRUE(window_.fieldsHidden());
  EXPECT_FALSE(window_.buttonVisible(ButtonId::Buttons_main_01));
  EXPECT_TRUE(window_.buttonVisible(ButtonId::Buttons_Close));
  EXPECT_TRUE(window_.rowVisible(RowId::lit));
  for (const RowId id : {RowId::lit_czas, RowId::lit_czas2, RowId::lit_xof}) {
    EXPECT_FALSE(window_.rowVisible(id));
  }
  EXPECT_EQ(painted().at(2, 12), 1U);
  EXPECT_EQ(painted().at(2, 20), kGround);

  window_.Ukryj_pics(Hide::No);
  EXPECT_FALSE(window_.fieldsHidden());
  EXPECT_TRUE(window_.buttonVisible(ButtonId::Buttons_main_01));
  EXPECT_EQ(painted().at(2, 20), 1U);
}

TEST_F(SkinnedWindowTest, rollingDownAgainDoesNotBringBackWhatAReminderHides) {
  window_.setMainButtonsVisible(Visible::No);
  window_.Ukryj_pics(Hide::Yes);
  window_.Ukryj_pics(Hide::No);
  EXPECT_FALSE(window_.buttonVisible(ButtonId::Buttons_main_02));
  EXPECT_FALSE(window_.fieldsHidden());
  window_.setMainButtonsVisible(Visible::Yes);
  EXPECT_TRUE(window_.buttonVisible(ButtonId::Buttons_main_02));
}

TEST_F(SkinnedWindowTest, aReminderThatEndsWhileRolledUpDoesNotShowTheButtons) {
  window_.setMainButtonsVisible(Visible::No);
  window_.Ukryj_pics(Hide::Yes);
  window_.setMainButtonsVisible(Visible::Yes);
  EXPECT_FALSE(window_.buttonVisible(ButtonId::Buttons_main_02));
}

TEST_F(SkinnedWindowTest, whatIsHiddenTakesTextsForLater) {
  window_.Ukryj_pics(Hide::Yes);
  window_.takeDirty();
  window_.Pokaz_Tekst(RowId::lit_xof, L"1 of 2");
  EXPECT_TRUE(window_.takeDirty().empty());
  window_.Ukryj_pics(Hide::No);
  EXPECT_EQ(painted().at(2, 36), 28U);
}

TEST_F(SkinnedWindowTest, mixedCaseGivesTheSameGlyphs) {
  window_.Pokaz_Tekst(RowId::lit_czas, L"aBc");
  const std::vector<int> mixed = glyphsOf(RowId::lit_czas);
  window_.Pokaz_Tekst(RowId::lit_czas, L"ABC");
  EXPECT_EQ(glyphsOf(RowId::lit_czas), mixed);
  EXPECT_EQ(mixed, (std::vector<int>{0, 1, 2, 56, 56, 56, 56, 56, 56, 56}));
}

TEST_F(SkinnedWindowTest, aTimeIsFilledUpWithSpaces) {
  window_.Pokaz_Tekst(RowId::lit_czas, L"12:30");
  EXPECT_EQ(glyphsOf(RowId::lit_czas), (std::vector<int>{27, 28, 36, 29, 26, 56, 56, 56, 56, 56}));
}

TEST_F(SkinnedWindowTest, aTextTooLongForItsRowIsCutOff) {
  window_.Pokaz_Tekst(RowId::lit_xof, L"ABCDEFGHIJKLMN");
  EXPECT_EQ(glyphsOf(RowId::lit_xof), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(SkinnedWindowTest, aTextOfExactlyTheRowsLengthFillsIt) {
  window_.Pokaz_Tekst(RowId::lit_xof, L"JIHGFEDCBA");
  EXPECT_EQ(glyphsOf(RowId::lit_xof), (std::vector<int>{9, 8, 7, 6, 5, 4, 3, 2, 1, 0}));
}

TEST_F(SkinnedWindowTest, anEmptyTextIsARowOfSpaces) {
  window_.Pokaz_Tekst(RowId::lit_xof, L"ABC");
  window_.Pokaz_Tekst(RowId::lit_xof, L"");
  EXPECT_EQ(glyphsOf(RowId::lit_xof), std::vector<int>(10, kSpaceGlyph));
}

TEST_F(SkinnedWindowTest, unknownCharactersLeaveTheirCellUnchanged) {
  window_.Pokaz_Tekst(RowId::lit_czas2, L"ABCDE");
  window_.Pokaz_Tekst(RowId::lit_czas2, L"?Z;*\u0105");
  EXPECT_EQ(glyphsOf(RowId::lit_czas2), (std::vector<int>{0, 25, 2, 3, 4, 56, 56, 56, 56, 56}));
}

TEST_F(SkinnedWindowTest, aLetterIsShownInOneCellAndTakenAway) {
  window_.PokazLiterke(L'q', RowId::lit, 3);
  EXPECT_EQ(window_.glyphAt(RowId::lit, 3), 16);
  EXPECT_EQ(window_.takeDirty(), (Rect{14, 12, 4, 5}));
  EXPECT_EQ(painted().at(14, 12), 17U);
  window_.PokazLiterke(L'?', RowId::lit, 3);
  EXPECT_EQ(window_.glyphAt(RowId::lit, 3), 16);
  EXPECT_TRUE(window_.takeDirty().empty());
  window_.blankCell(RowId::lit, 3);
  EXPECT_EQ(window_.glyphAt(RowId::lit, 3), kBlankGlyph);
  EXPECT_EQ(painted(), Image(100, 60, kGround));
}

TEST_F(SkinnedWindowTest, cellsThatDoNotExistAreLeftAlone) {
  window_.PokazLiterke(L'A', RowId::lit, 20);
  window_.PokazLiterke(L'A', RowId::lit, -1);
  window_.blankCell(RowId::lit, 4000);
  EXPECT_TRUE(window_.takeDirty().empty());
}

TEST(SkinnedWindow, withCellsOfSevenAndATitleAtTwentyTheFourthCellStandsAt41) {
  Skin skin = plainSkin();
  skin.Temp_Text.image = fontStrip({7, 5});
  skin.description.cellWidth = 7;
  skin.description.rows[0] = {20, 12, 10};
  SkinnedWindow window;
  window.wear(skin);
  window.PokazLiterke(L'A', RowId::lit, 3);
  const Image picture = window.paint({100, 60});
  EXPECT_EQ(picture.at(40, 12), kGround);
  EXPECT_EQ(picture.at(41, 12), 1U);
  EXPECT_EQ(picture.at(47, 16), 1U);
  EXPECT_EQ(picture.at(48, 12), kGround);
}

TEST(SkinnedWindow, aSkinThatAsksForMoreCellsThanThereAreGetsAllThereAre) {
  Skin skin = plainSkin();
  for (RowPlace& row : skin.description.rows) row.length = 1000;
  SkinnedWindow window;
  window.wear(skin);
  EXPECT_EQ(window.rowLength(RowId::lit), 41);
  EXPECT_EQ(window.rowLength(RowId::lit_czas), 21);
  EXPECT_EQ(window.rowLength(RowId::lit_czas2), 21);
  EXPECT_EQ(window.rowLength(RowId::lit_xof), 21);
  window.Pokaz_Tekst(RowId::lit, std::wstring(100, L'A'));
  EXPECT_EQ(window.glyphAt(RowId::lit, 40), 0);
}

TEST(SkinnedWindow, aCutOffGlyphLeavesTheGroundBesideIt) {
  Skin skin = plainSkin();
  skin.Temp_Text.image = Image(6, 3, 9);
  SkinnedWindow window;
  window.wear(skin);
  window.Pokaz_Tekst(RowId::lit, L"ABC");
  const Image picture = window.paint({100, 60});
  EXPECT_EQ(picture.at(2, 12), 9U);
  EXPECT_EQ(picture.at(2, 15), kGround);
  EXPECT_EQ(picture.at(6, 12), 9U);
  EXPECT_EQ(picture.at(8, 12), kGround);
  EXPECT_EQ(picture.at(10, 12), kGround);
}

TEST(SkinnedWindow, aRolledUpStripIsTheSkinsPictureAlsoWhereMainButtonsLie) {
  Skin skin = plainSkin();
  const Pixel frame = 0x777777;
  const Pixel face = 0xABCDEF;
  Image& picture = skin.Temp_Main[0].image;
  picture.fill({25, 0, 20, 10}, frame);
  picture.fill({30, 0, 10, 10}, face);
  const Image untouched = picture.crop({0, 0, 100, 20});
  SkinnedWindow window;
  window.wear(skin);
  window.Ukryj_pics(Hide::Yes);
  EXPECT_EQ(window.paint({100, 20}), untouched);
  window.setMainButtonsVisible(Visible::No);
  EXPECT_EQ(window.paint({100, 20}), untouched) << "under a reminder too";
  // Rolled down a reminder takes the button away, and what adjoins it does not run over its place.
  window.Ukryj_pics(Hide::No);
  EXPECT_EQ(window.paint({100, 20}).at(35, 5), kGround);
}

TEST_F(SkinnedWindowTest, buttonsLieAboveTheRows) {
  Skin skin = plainSkin();
  skin.description.rows[0] = {0, 0, 10};
  window_.wear(skin);
  window_.Pokaz_Tekst(RowId::lit, L"AAAAAAAAAA");
  EXPECT_EQ(painted().at(5, 2), kGround);
  skin.description.buttons[0] = {0, 50, 10, 10};
  window_.wear(skin);
  window_.Pokaz_Tekst(RowId::lit, L"AAAAAAAAAA");
  EXPECT_EQ(painted().at(5, 2), 1U);
}

}  // namespace
}  // namespace kalvora
