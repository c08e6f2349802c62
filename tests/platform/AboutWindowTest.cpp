#include "win32/about/AboutWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DrawnItem.h"
#include "base/Numbers.h"
#include "fakes/FakeReporter.h"
#include "platform/HeldHandles.h"
#include "win32/about/AboutIds.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

class RecordedShell : public HiddenShell {
 public:
  void run(std::wstring_view command) override { commands.emplace_back(command); }
  std::vector<std::wstring> commands;
};

class AboutWindowTest : public testing::Test {
 protected:
  AboutWindowTest() { about.open(); }
  std::wstring textOf(int id) const { return kalvora::textOf(GetDlgItem(window.window(), id)); }
  void command(int id) { SendMessageW(window.window(), WM_COMMAND, MAKEWPARAM(id, 0), 0); }

  ModelessDialogs dialogs;
  RecordedShell shell;
  FakeReporter reports;
  EventGuard guard{reports};
  EventDelivery deliver{guard};
  AboutWindow window{nullptr, dialogs, deliver, about};
  frmAbout about{window, shell, {L"https://a.example/", L"https://a.example/skins"}};
};

TEST_F(AboutWindowTest, showsVersionAndLicences) {
  EXPECT_NE(textOf(IDC_ABOUT_VERSION).find(L"Version "), std::wstring::npos);
  EXPECT_NE(textOf(IDC_ABOUT_LICENCES).find(L"stb_image"), std::wstring::npos);
}

TEST_F(AboutWindowTest, tellsWhereTheLicencesAreInFull) {
  EXPECT_NE(textOf(IDC_ABOUT_LICENCES).find(L"THIRD-PARTY.txt"), std::wstring::npos);
}

TEST_F(AboutWindowTest, theLicencesTakeTheRoomOfLinksThatAreLeftOut) {
  const auto top = [this](int id) {
    RECT place{};
    GetWindowRect(GetDlgItem(window.window(), id), &place);
    return place.top;
  };
  const LONG firstLink = top(IDC_START_URL_WORDS);
  window.hideLinks();
  for (const int id : {IDC_START_URL_WORDS, IDC_START_URL, IDC_LABEL2_WORDS, IDC_LABEL2}) {
    EXPECT_FALSE(IsWindowVisible(GetDlgItem(window.window(), id))) << id;
  }
  EXPECT_EQ(top(IDC_ABOUT_LICENCES_WORDS), firstLink);
  about.unload();
  about.open();
  EXPECT_TRUE(IsWindowVisible(GetDlgItem(window.window(), IDC_START_URL)));
}

TEST_F(AboutWindowTest, theBandIsWiderThanItsFrame) {
  EXPECT_GT(window.frameWidth(), 0);
  EXPECT_GT(window.bandWidth(), window.frameWidth());
}

TEST_F(AboutWindowTest, theLinksOpenWhatTheyShow) {
  EXPECT_EQ(textOf(IDC_START_URL), L"https://a.example/");
  command(IDC_START_URL);
  command(IDC_LABEL2);
  EXPECT_THAT(shell.commands,
              ElementsAre(L"start https://a.example/", L"start https://a.example/skins"));
}

TEST_F(AboutWindowTest, aLinkOpensThePageThatItHasChangedTo) {
  for (int ticks = 0; ticks < 308; ++ticks) about.Timer1_Timer();
  EXPECT_EQ(textOf(IDC_LABEL2), L"https://a.example/");
  command(IDC_LABEL2);
  EXPECT_THAT(shell.commands, ElementsAre(L"start https://a.example/"));
}

TEST_F(AboutWindowTest, aTickMovesTheBandByAPixel) {
  const HWND frame = GetDlgItem(window.window(), IDC_SCR_PIC);
  const DrawnItem before(window.window(), frame);
  SendMessageW(window.window(), WM_TIMER, 1, 0);
  const DrawnItem after(window.window(), frame);
  for (int x = 0; x < 200; ++x) EXPECT_EQ(after.at(x, 20), before.at(x + 1, 20));
}

TEST_F(AboutWindowTest, theBandFillsItsFrameWhereverItStands) {
  const int width = window.frameWidth() / kTwipsPerPixel;
  const int band = window.bandWidth() / kTwipsPerPixel;
  const HWND frame = GetDlgItem(window.window(), IDC_SCR_PIC);
  window.setBandLeft(0);
  const DrawnItem begun(window.window(), frame);
  window.setBandLeft((100 - band) * kTwipsPerPixel);
  const DrawnItem repeated(window.window(), frame);
  for (int x = 100; x < width; ++x) EXPECT_EQ(repeated.at(x, 20), begun.at(x - 100, 20));
}

TEST_F(AboutWindowTest, theBandMovesByItself) {
  MSG message{};
  const ULONGLONG start = GetTickCount64();
  bool ticked = false;
  while (!ticked && GetTickCount64() - start < 5000) {
    ticked = PeekMessageW(&message, window.window(), WM_TIMER, WM_TIMER, PM_REMOVE) != 0;
    Sleep(5);
  }
  EXPECT_TRUE(ticked);
}

TEST_F(AboutWindowTest, theCrossOfTheWindowCloses) {
  SendMessageW(window.window(), WM_CLOSE, 0, 0);
  EXPECT_EQ(window.window(), nullptr);
}

TEST_F(AboutWindowTest, theButtonAndEscapeClose) {
  command(IDOK);
  EXPECT_EQ(window.window(), nullptr);
  about.open();
  command(IDCANCEL);
  EXPECT_EQ(window.window(), nullptr);
}

TEST_F(AboutWindowTest, openingAndClosingLeavesNoHandle) {
  about.unload();
  const HeldHandles before;
  for (int i = 0; i < 50; ++i) {
    about.open();
    about.Timer1_Timer();
    UpdateWindow(window.window());
    about.unload();
  }
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
