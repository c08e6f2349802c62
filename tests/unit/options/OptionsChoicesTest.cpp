#include "OptionsFixture.h"

namespace kalvora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(OptionsTest, aPickedSoundStandsInItsBox) {
  options.open();
  view.pickedSound = L"C:\\ring.wav";
  options.cmd_sound_Click(4);
  EXPECT_EQ(view.text({TextBox::Sound_path, 4}), L"C:\\ring.wav");
  EXPECT_EQ(view.text({TextBox::Sound_path, 3}), L"");
  EXPECT_EQ(view.soundFilter, L"Sound (*.wav)|*.wav");
}

TEST_F(OptionsTest, aSoundIsLookedForBesideTheOldOneOrAmongThoseOfTheProgram) {
  options.open();
  options.cmd_sound_Click(0);
  EXPECT_EQ(view.soundFolder, folder.path() / "sounds");
  view.setText({TextBox::Sound_path, 0}, (folder.path() / "mine" / "ring.wav").wstring());
  options.cmd_sound_Click(0);
  EXPECT_EQ(view.soundFolder, folder.path() / "mine");
  view.setText({TextBox::Sound_path, 0}, L"ring.wav");
  options.cmd_sound_Click(0);
  EXPECT_EQ(view.soundFolder, folder.path() / "sounds");
}

TEST_F(OptionsTest, aCancelledSoundDialogKeepsTheOldPath) {
  options.open();
  view.setText({TextBox::Sound_path, 2}, L"old.wav");
  options.cmd_sound_Click(2);
  EXPECT_EQ(view.text({TextBox::Sound_path, 2}), L"old.wav");
}

TEST_F(OptionsTest, aSoundPickedForAClosedDialogIsForgotten) {
  options.open();
  view.pickedSound = L"ring.wav";
  view.whilePicking = [this] { options.unload(); };
  options.cmd_sound_Click(0);
  EXPECT_EQ(view.text({TextBox::Sound_path, 0}), L"");
}

TEST_F(OptionsTest, aSoundIsPlayedAsItStandsInItsBox) {
  options.open();
  view.setText({TextBox::Sound_path, 6}, L"gone.wav");
  options.playSound(6);
  EXPECT_EQ(host.played, L"gone.wav");
  options.playSound(5);
  EXPECT_EQ(host.played, L"gone.wav") << "an empty box is no sound to play";
}

TEST_F(OptionsTest, listsTheSkinsAndChoosesTheCurrentOne) {
  options.open();
  EXPECT_THAT(view.skins, ElementsAre(L"Alpha", L"beta", L"Gamma", L"Omega", L"Zeta"));
  EXPECT_EQ(view.skin, 1);
  EXPECT_EQ(view.Label4, L"1 of 5");
  EXPECT_TRUE(host.calls.empty());
}

TEST_F(OptionsTest, theFirstSkinReads0Of5) {
  host.skin = 0;
  options.open();
  EXPECT_EQ(view.skin, 0);
  EXPECT_EQ(view.Label4, L"0 of 5");
}

TEST_F(OptionsTest, aSkinThatIsNotInTheListLeavesNothingChosen) {
  for (const std::int16_t index : {std::int16_t{-1}, std::int16_t{5}}) {
    host.skin = index;
    options.Refresh_skins();
    EXPECT_EQ(view.skin, std::nullopt);
    EXPECT_EQ(view.Label4, L"");
  }
}

TEST_F(OptionsTest, aClickedSkinIsWornAtOnce) {
  options.open();
  clickSkin(3);
  EXPECT_EQ(host.skin, 3);
  EXPECT_THAT(host.calls, ElementsAre("skin 3"));
  EXPECT_TRUE(view.loaded);
}

TEST_F(OptionsTest, theThirdOfFiveSkinsReads2Of5) {
  options.open();
  clickSkin(2);
  EXPECT_EQ(view.Label4, L"2 of 5");
}

TEST_F(OptionsTest, aClickedSkinStaysWhenTheDialogIsClosedWithoutOk) {
  options.open();
  clickSkin(3);
  options.unload();
  EXPECT_EQ(host.skin, 3);
  EXPECT_THAT(host.calls, ElementsAre("skin 3"));
}

TEST_F(OptionsTest, theKeyboardComesBackToTheListWhereTheSkinCannotBeStored) {
  options.open();
  host.whileLoadingSkin = [] { throw Failure(L"This setting cannot be saved: Last_skin"); };
  EXPECT_THROW(clickSkin(2), Failure);
  EXPECT_TRUE(view.loaded);
  EXPECT_EQ(view.broughtToFront, 2);
}

TEST_F(OptionsTest, theKeyboardComesBackToTheListOfSkins) {
  options.open();
  clickSkin(0);
  EXPECT_EQ(view.broughtToFront, 2);
}

TEST_F(OptionsTest, aDialogClosedWhileASkinIsLoadedStaysClosed) {
  options.open();
  host.whileLoadingSkin = [this] { options.unload(); };
  clickSkin(0);
  EXPECT_EQ(view.broughtToFront, 1);
}

TEST_F(OptionsTest, aClickBesideTheSkinsChangesNothing) {
  options.open();
  view.skin.reset();
  options.Lista_skor_Click();
  EXPECT_EQ(host.skin, 1);
  EXPECT_TRUE(host.calls.empty());
}

TEST_F(OptionsTest, theChosenSkinCanBeWornWithClosingTheDialog) {
  options.open();
  view.skin = 4;
  options.Command2_Click();
  EXPECT_EQ(host.skin, 4);
  EXPECT_THAT(host.calls, ElementsAre("skin 4"));
  EXPECT_FALSE(view.loaded);
}

TEST_F(OptionsTest, withNoSkinChosenTheButtonOnlyCloses) {
  options.open();
  view.skin.reset();
  options.Command2_Click();
  EXPECT_EQ(host.skin, 1);
  EXPECT_TRUE(host.calls.empty());
  EXPECT_FALSE(view.loaded);
}

TEST_F(OptionsTest, refreshingFindsASkinThatWasAdded) {
  options.open();
  folder.write("skins/Delta/config.ini", "");
  options.cmd_refresh_Click();
  EXPECT_THAT(view.skins, ElementsAre(L"Alpha", L"beta", L"Delta", L"Gamma", L"Omega", L"Zeta"));
  EXPECT_EQ(view.skin, 1);
}

TEST_F(OptionsTest, thePictureOfASkinIsAskedForByItsName) {
  options.open();
  EXPECT_TRUE(options.skinPicture(2, {10, 10}, 0));
  EXPECT_EQ(host.painted, L"Gamma");
  EXPECT_FALSE(options.skinPicture(5, {10, 10}, 0));
  EXPECT_FALSE(options.skinPicture(-1, {10, 10}, 0));
}

TEST_F(OptionsTest, eachIconFileHasAButton) {
  options.open();
  const auto icons = folder.path() / "icons";
  EXPECT_THAT(view.icons, ElementsAre(icons / "Anchor.ico", icons / "bell.ico"));
  EXPECT_EQ(view.iconToolTip, L"If you want add icon here copy it to Kalvora/Icons folder");
}

TEST_F(OptionsTest, aFileOfAnyKindHasAButton) {
  folder.write("icons/picture.bmp", "");
  folder.write("icons/no extension", "");
  options.open();
  EXPECT_EQ(view.icons.size(), 4U);
}

TEST_F(OptionsTest, aClickedIconIsTakenAtOnce) {
  options.open();
  options.Icon_btn_Click(1);
  EXPECT_EQ(host.icon, L"bell.ico");
}

TEST_F(OptionsTest, aButtonOfNoIconDoesNothing) {
  options.open();
  options.Icon_btn_Click(2);
  options.Icon_btn_Click(-1);
  EXPECT_EQ(host.icon, L"");
}

TEST_F(OptionsTest, refreshingFindsAnIconThatWasAdded) {
  options.open();
  folder.write("icons/cat.ico", "");
  options.Command3_Click();
  EXPECT_EQ(view.icons.size(), 3U);
  options.Icon_btn_Click(2);
  EXPECT_EQ(host.icon, L"cat.ico");
}

TEST_F(OptionsTest, applySavesAndStaysOpen) {
  options.open();
  options.cmdApply_Click();
  EXPECT_THAT(host.calls, ElementsAre("save"));
  EXPECT_TRUE(view.loaded);
}

TEST_F(OptionsTest, okSavesAndCloses) {
  options.open();
  options.cmdOK_Click();
  EXPECT_THAT(host.calls, ElementsAre("save"));
  EXPECT_FALSE(view.loaded);
}

TEST_F(OptionsTest, closingSavesNothing) {
  options.open();
  options.unload();
  EXPECT_TRUE(host.calls.empty());
}

TEST_F(OptionsTest, aRefusedBoxGetsTheKeyboardOnItsPage) {
  options.open();
  host.refused = TextId{TextBox::NotesTime};
  EXPECT_THROW(options.cmdOK_Click(), OptionsInputError);
  EXPECT_TRUE(view.loaded);
  EXPECT_EQ(view.page, OptionsPage::Graphics);
  EXPECT_EQ(view.selectedNode, L"Graphics");
  EXPECT_EQ(view.keyboard, (TextId{TextBox::NotesTime}));
}

TEST_F(OptionsTest, aRefusedPositionLeadsToItsPage) {
  options.open();
  host.refused = TextId{TextBox::WinPos, 1};
  EXPECT_THROW(options.cmdApply_Click(), OptionsInputError);
  EXPECT_EQ(view.page, OptionsPage::SetWindowPosition);
  EXPECT_EQ(view.keyboard, (TextId{TextBox::WinPos, 1}));
}

/// A box, what a message calls it, and its page.
struct Box {
  TextId id;
  std::wstring name;
  OptionsPage page;
};

std::vector<Box> boxes() {
  std::vector<Box> all = {
      {{TextBox::WindowTime}, L"Main Window, time of a step", OptionsPage::Graphics},
      {{TextBox::WindowSize}, L"Main Window, size of a step", OptionsPage::Graphics},
      {{TextBox::NotesTime}, L"Notes, time of a step", OptionsPage::Graphics},
      {{TextBox::NotesSize}, L"Notes, size of a step", OptionsPage::Graphics},
      {{TextBox::WinPos, 0}, L"Window position, left", OptionsPage::SetWindowPosition},
      {{TextBox::WinPos, 1}, L"Window position, top", OptionsPage::SetWindowPosition},
  };
  const std::vector<std::wstring> sounds = {
      L"Showing Window", L"Hidding Window", L"Showing Notes",     L"Hidding Notes",
      L"Alarm",          L"Button Press",   L"Button Fast Delete"};
  for (int item = 0; item < kSoundPathCount; ++item) {
    all.push_back(
        {{TextBox::Sound_path, item}, sounds[static_cast<std::size_t>(item)], OptionsPage::Sounds});
  }
  return all;
}

TEST_F(OptionsTest, eachRefusedBoxIsNamedAndShown) {
  options.open();
  for (const Box& box : boxes()) {
    host.refused = box.id;
    try {
      options.cmdApply_Click();
      FAIL() << "nothing was refused";
    } catch (const OptionsInputError& error) {
      EXPECT_TRUE(error.message().starts_with(box.name + L": ")) << error.what();
    }
    EXPECT_EQ(view.page, box.page);
    EXPECT_EQ(view.keyboard, box.id);
  }
}

TEST(OptionsInputErrorTest, namesTheBoxAndTheValue) {
  const OptionsInputError error({TextBox::WinPos, 1}, ConversionError(L"abc"));
  EXPECT_THAT(error.what(), HasSubstr("Window position, top"));
  EXPECT_THAT(error.what(), HasSubstr("\"abc\""));
}

}  // namespace
}  // namespace kalvora
