#include "win32/AboutWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "win32/AboutIds.h"

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
  AboutWindowTest() {
    window.attach(about);
    about.open();
  }
  std::wstring textOf(int id) const {
    std::wstring text(4096, L'\0');
    text.resize(GetDlgItemTextW(window.window(), id, text.data(), 4096));
    return text;
  }
  void command(int id) { SendMessageW(window.window(), WM_COMMAND, MAKEWPARAM(id, 0), 0); }

  ModelessDialogs dialogs;
  RecordedShell shell;
  AboutWindow window{nullptr, dialogs, [](const std::function<void()>& handler) { handler(); }};
  frmAbout about{window, shell, {L"https://a.example/", L"https://a.example/skins"}};
};

TEST_F(AboutWindowTest, showsVersionAndLicences) {
  EXPECT_NE(textOf(IDC_ABOUT_VERSION).find(L"Version "), std::wstring::npos);
  EXPECT_NE(textOf(IDC_ABOUT_LICENCES).find(L"stb_image"), std::wstring::npos);
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

TEST_F(AboutWindowTest, theButtonAndEscapeClose) {
  command(IDOK);
  EXPECT_EQ(window.window(), nullptr);
  about.open();
  command(IDCANCEL);
  EXPECT_EQ(window.window(), nullptr);
}

TEST_F(AboutWindowTest, openingAndClosingLeavesNoHandle) {
  about.unload();
  const int before = liveHandles();
  for (int i = 0; i < 50; ++i) {
    about.open();
    about.Timer1_Timer();
    UpdateWindow(window.window());
    about.unload();
  }
  EXPECT_EQ(liveHandles(), before);
}

}  // namespace
}  // namespace kalvora
