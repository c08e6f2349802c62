#include "notes/frmAbout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace kalvora {
namespace {

using testing::ElementsAre;

class FakeAboutView : public frmAboutView {
 public:
  void load() override {
    isOpen = true;
    ++loads;
  }
  void unload() override { isOpen = false; }
  void comeToFront() override { ++broughtToFront; }
  std::wstring caption(LinkLabel label) const override { return captions.at(label); }
  void setCaption(LinkLabel label, std::wstring_view text) override {
    captions[label] = std::wstring(text);
    ++captionsSet;
  }
  void hideLinks() override { linksHidden = true; }
  int frameWidth() const override { return 300 * 15; }
  int bandWidth() const override { return band; }
  void setBandLeft(int newLeft) override { left = newLeft; }
  void startTimer1(int milliseconds) override { interval = milliseconds; }
  void stopTimer1() override { interval = 0; }

  bool isOpen = false;
  int loads = 0;
  int broughtToFront = 0;
  std::map<LinkLabel, std::wstring> captions;
  int captionsSet = 0;
  bool linksHidden = false;
  int band = 500 * 15;
  int left = 1;
  int interval = 0;
};

class RecordedShell : public HiddenShell {
 public:
  void run(std::wstring_view command) override { commands.emplace_back(command); }
  std::vector<std::wstring> commands;
};

class frmAboutTest : public testing::Test {
 protected:
  void tick(int times) {
    for (int i = 0; i < times; ++i) about.Timer1_Timer();
  }

  FakeAboutView view;
  RecordedShell shell;
  frmAbout about{view, shell, {L"https://a.example/", L"https://a.example/skins"}};
};

TEST_F(frmAboutTest, opensWithTheBandAtItsBeginning) {
  about.open();
  EXPECT_TRUE(view.isOpen);
  EXPECT_EQ(view.left, 0);
  EXPECT_GT(view.interval, 0);
  EXPECT_EQ(view.captions[LinkLabel::StartUrl_Label], L"https://a.example/");
}

TEST_F(frmAboutTest, openedAgainItComesToTheFrontAsItIs) {
  about.open();
  tick(10);
  about.open();
  EXPECT_EQ(view.loads, 1);
  EXPECT_EQ(view.broughtToFront, 2);
  EXPECT_EQ(view.left, -150);
}

TEST_F(frmAboutTest, theCloseButtonCloses) {
  about.open();
  about.cmdOK_Click();
  EXPECT_FALSE(view.isOpen);
  EXPECT_EQ(view.interval, 0);
  about.unload();
  about.open();
  EXPECT_EQ(view.loads, 2);
  EXPECT_EQ(view.left, 0);
}

TEST_F(frmAboutTest, theBandMovesAPixelToTheLeftWithEachTick) {
  about.open();
  tick(1);
  EXPECT_EQ(view.left, -15);
  tick(2);
  EXPECT_EQ(view.left, -45);
}

TEST_F(frmAboutTest, theBandBeginsAgainWhenItHasGoneBy) {
  about.open();
  tick(499);
  EXPECT_EQ(view.left, -499 * 15);
  tick(1);
  EXPECT_EQ(view.left, 0);
}

TEST_F(frmAboutTest, theOtherPageIsShownInTurnAtTheTicks) {
  about.open();
  std::vector<int> changes;
  std::vector<std::wstring> shown;
  for (int number = 1; number <= 2000; ++number) {
    const int before = view.captionsSet;
    tick(1);
    if (view.captionsSet == before) continue;
    changes.push_back(number);
    shown.push_back(view.captions[LinkLabel::Label2]);
  }
  EXPECT_THAT(changes, ElementsAre(1, 308, 445, 630, 1500));
  EXPECT_THAT(shown, ElementsAre(L"https://a.example/skins", L"https://a.example/",
                                 L"https://a.example/skins", L"https://a.example/",
                                 L"https://a.example/skins"));
  EXPECT_EQ(view.captions[LinkLabel::StartUrl_Label], L"https://a.example/");
}

TEST_F(frmAboutTest, showsTheLinksWherePagesAreConfigured) {
  about.open();
  EXPECT_FALSE(view.linksHidden);
}

TEST_F(frmAboutTest, leavesTheLinksOutWhereNoPagesAreConfigured) {
  frmAbout nameless(view, shell, {});
  nameless.open();
  EXPECT_TRUE(view.linksHidden);
  for (int i = 0; i < 2000; ++i) nameless.Timer1_Timer();
  EXPECT_EQ(view.captionsSet, 0);
  EXPECT_EQ(view.left, -(2000 % 500) * 15);
}

TEST_F(frmAboutTest, theTicksAreCountedAnewEachTimeItOpens) {
  about.open();
  tick(400);
  about.unload();
  about.open();
  const int before = view.captionsSet;
  tick(1);
  EXPECT_EQ(view.captionsSet, before + 1);
}

TEST_F(frmAboutTest, withoutABandInItsFrameTheLabelStays) {
  about.open();
  view.band = 0;
  const int before = view.captionsSet;
  tick(308);
  EXPECT_EQ(view.captionsSet, before);
}

TEST_F(frmAboutTest, aTickAfterClosingIsHarmless) {
  about.open();
  about.unload();
  view.left = 77;
  tick(1);
  EXPECT_EQ(view.left, 77);
}

TEST_F(frmAboutTest, aLabelOpensTheAddressThatItShows) {
  about.open();
  about.link_Click(LinkLabel::StartUrl_Label);
  about.link_Click(LinkLabel::Label2);
  EXPECT_THAT(shell.commands,
              ElementsAre(L"start https://a.example/", L"start https://a.example/skins"));
}

TEST_F(frmAboutTest, noOtherTextReachesTheShell) {
  about.open();
  for (const wchar_t* text :
       {L"", L"calc", L"https://b.example/", L"https://a.example/ & calc", L"https://A.example/",
        L"https://a.example/other", L"https://a.example"}) {
    view.captions[LinkLabel::Label2] = text;
    about.link_Click(LinkLabel::Label2);
  }
  EXPECT_TRUE(shell.commands.empty());
}

TEST_F(frmAboutTest, anAddressThatIsNotPlainNeverReachesTheShell) {
  frmAbout other(view, shell, {L"https://a.example/&calc", L"calc.exe"});
  other.open();
  other.link_Click(LinkLabel::StartUrl_Label);
  other.link_Click(LinkLabel::Label2);
  EXPECT_TRUE(shell.commands.empty());
}

TEST(WebAddressesTest, theConfiguredAddressesArePlain) {
  EXPECT_TRUE(isPlainWebAddress(configuredWebAddresses().site));
  EXPECT_TRUE(isPlainWebAddress(configuredWebAddresses().skins));
}

TEST(WebAddressesTest, whatAShellWouldReadIsNotPlain) {
  for (const wchar_t* text :
       {L"", L"https://", L"ftp://a.example", L"file:///c:/a", L"https://a b", L"https://a&b",
        L"https://a|b", L"https://a>b", L"https://a^b", L"https://%TEMP%", L"https://a\"b",
        L"https://a\nb", L"javascript:x", L"https://\u017C"}) {
    EXPECT_FALSE(isPlainWebAddress(text));
  }
  EXPECT_TRUE(isPlainWebAddress(L"http://a-b.example/~c/d_e.html"));
}

}  // namespace
}  // namespace kalvora
