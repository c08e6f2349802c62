#include "OptionsDialogFixture.h"

#include "platform/HeldHandles.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

TEST_F(OptionsDialogTest, hasEveryControl) {
  for (int item = 0; item < kDisplayCheckCount; ++item) {
    const CheckId id{CheckBox::Display_chk, item};
    dialog.setChecked(id, true);
    EXPECT_TRUE(dialog.checked(id));
    dialog.setChecked(id, false);
    EXPECT_FALSE(dialog.checked(id));
  }
  for (const CheckBox check : {CheckBox::Sound_ch_all, CheckBox::AmPmCheck, CheckBox::AlwOnTop,
                               CheckBox::Fast_delete_msg_check}) {
    dialog.setChecked({check}, true);
    EXPECT_TRUE(dialog.checked({check}));
  }
  std::vector<TextId> boxes = {{TextBox::WindowTime}, {TextBox::WindowSize}, {TextBox::NotesTime},
                               {TextBox::NotesSize},  {TextBox::WinPos, 0},  {TextBox::WinPos, 1}};
  for (int item = 0; item < kSoundPathCount; ++item) boxes.push_back({TextBox::Sound_path, item});
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    dialog.setText(boxes[i], L"text \u017C " + std::to_wstring(i));
  }
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    EXPECT_EQ(dialog.text(boxes[i]), L"text \u017C " + std::to_wstring(i));
  }
}

TEST_F(OptionsDialogTest, whatTheProgramWritesIsNotFiltered) {
  options.Opt_win_pos_tim_Timer({-20, 5});
  EXPECT_EQ(dialog.text({TextBox::WinPos, 0}), L"-20");
}

TEST_F(OptionsDialogTest, whatTheUserTypesIsFiltered) {
  type(winPos(0), L"4x2");
  EXPECT_EQ(dialog.text({TextBox::WinPos, 0}), L"42");
  EXPECT_EQ(dialog.caret({TextBox::WinPos, 0}), 2U);
}

TEST_F(OptionsDialogTest, aMinusIsTypedWhereAMonitorLiesLeftOfTheFirst) {
  host.otherMonitors = {{-800, 0, 800, 600}};
  type(winPos(0), L"-4-2");
  EXPECT_EQ(dialog.text({TextBox::WinPos, 0}), L"-42");
  EXPECT_EQ(dialog.caret({TextBox::WinPos, 0}), 3U);
}

TEST_F(OptionsDialogTest, aPathLongerThanTheBoxIsTyped) {
  const std::wstring path(300, L'p');
  type(box(OptionsPage::Sounds, IDC_SOUND_PATH), path.c_str());
  EXPECT_EQ(dialog.text({TextBox::Sound_path, 0}), path);
}

TEST_F(OptionsDialogTest, aClickOnOneRollSwitchClearsTheOther) {
  const HWND down = box(OptionsPage::WindowDisplay, IDC_DISPLAY_CHK + 1);
  const HWND in = box(OptionsPage::WindowDisplay, IDC_DISPLAY_CHK + 2);
  SendMessageW(down, BM_CLICK, 0, 0);
  EXPECT_TRUE(dialog.checked({CheckBox::Display_chk, 1}));
  SendMessageW(in, BM_CLICK, 0, 0);
  EXPECT_FALSE(dialog.checked({CheckBox::Display_chk, 1}));
  EXPECT_TRUE(dialog.checked({CheckBox::Display_chk, 2}));
}

TEST_F(OptionsDialogTest, aNodeOfTheTreeShowsItsPageAlone) {
  const HWND tree = GetDlgItem(dialog.window(), IDC_TREEVIEW1);
  const HTREEITEM systems = TreeView_GetRoot(tree);
  const HTREEITEM graphics = TreeView_GetNextSibling(tree, systems);
  TreeView_SelectItem(tree, TreeView_GetChild(tree, graphics));
  EXPECT_TRUE(IsWindowVisible(box(OptionsPage::WindowDisplay, IDC_DISPLAY_CHK)));
  EXPECT_FALSE(IsWindowVisible(box(OptionsPage::Systems, IDC_ALWONTOP)));
  EXPECT_EQ(TreeView_GetCount(tree), 8U);
}

TEST_F(OptionsDialogTest, theButtonsDoTheirWork) {
  click(IDC_CMDAPPLY);
  EXPECT_THAT(host.calls, ElementsAre("save"));
  EXPECT_NE(dialog.window(), nullptr);
  click(IDOK);
  EXPECT_THAT(host.calls, ElementsAre("save", "save"));
  EXPECT_EQ(dialog.window(), nullptr);
}

TEST_F(OptionsDialogTest, escapeClosesWithoutSaving) {
  SetFocus(winPos(0));
  MSG escape{};
  escape.hwnd = winPos(0);
  escape.message = WM_KEYDOWN;
  escape.wParam = VK_ESCAPE;
  EXPECT_TRUE(dialogs.takesMessage(escape));
  EXPECT_EQ(dialog.window(), nullptr);
  EXPECT_TRUE(host.calls.empty());
  EXPECT_FALSE(host.follows);
}

TEST_F(OptionsDialogTest, aRefusedBoxIsShownWithTheKeyboardAndTold) {
  host.refused = TextId{TextBox::NotesSize};
  click(IDC_CMDAPPLY);
  const HWND refused = box(OptionsPage::Graphics, IDC_NOTES_SIZE);
  EXPECT_TRUE(IsWindowVisible(refused));
  EXPECT_EQ(GetFocus(), refused);
  ASSERT_EQ(reports.messages.size(), 1U);
  EXPECT_NE(reports.messages[0].find(L"Notes, size of a step"), std::wstring::npos);
}

TEST_F(OptionsDialogTest, aChosenSkinIsWorn) {
  const HWND list = box(OptionsPage::Skins, IDC_LISTA_SKOR);
  SendMessageW(list, LB_SETCURSEL, 0, 0);
  SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(IDC_LISTA_SKOR, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(list));
  EXPECT_THAT(host.calls, ElementsAre("skin 0"));
}

TEST_F(OptionsDialogTest, aFileThatIsNoIconHasAButtonThatCannotBeClicked) {
  const HWND button = GetWindow(box(OptionsPage::Icons, IDC_ICON_GRID), GW_CHILD);
  ASSERT_NE(button, nullptr);
  EXPECT_FALSE(IsWindowEnabled(button));
}

TEST_F(OptionsDialogTest, openingAndClosingLeavesNoHandle) {
  options.unload();
  options.open();
  options.unload();
  const HeldHandles before;
  for (int i = 0; i < 30; ++i) {
    options.open();
    options.Pokaz_opcje(L"Skins");
    UpdateWindow(dialog.window());
    options.unload();
  }
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
