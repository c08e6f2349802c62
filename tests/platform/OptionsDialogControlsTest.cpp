#include "DrawnItem.h"
#include "OptionsDialogFixture.h"
#include "ProjectFolders.h"
#include "options/PositionPreview.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {
namespace {

using testing::ElementsAre;

std::wstring captionOf(HWND control) {
  std::wstring text = textOf(control);
  std::erase(text, L'&');
  return text;
}

/// All controls of the dialog's pages, page by page in their order.
std::vector<HWND> controlsOf(HWND dialog) {
  std::vector<HWND> controls;
  EnumChildWindows(
      dialog,
      [](HWND child, LPARAM list) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&controls));
  return controls;
}

/// The caption before the only control of this text.
std::wstring labelBefore(HWND dialog, const std::wstring& text) {
  std::wstring label;
  for (const HWND control : controlsOf(dialog)) {
    if (captionOf(control) == text) return captionOf(GetWindow(control, GW_HWNDPREV));
  }
  return label;
}

/// The caption of the last group box before the only control of this text.
std::wstring groupBefore(HWND dialog, const std::wstring& text) {
  std::wstring group;
  for (const HWND control : controlsOf(dialog)) {
    const bool isGroup = (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
    wchar_t kind[8]{};
    GetClassNameW(control, kind, 8);
    if (isGroup && std::wstring_view(kind) == L"Button") group = captionOf(control);
    if (captionOf(control) == text) return group;
  }
  return {};
}

std::vector<HWND> iconButtons(HWND grid) {
  std::vector<HWND> buttons;
  for (HWND child = GetWindow(grid, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    buttons.push_back(child);
  }
  return buttons;
}

TEST_F(OptionsDialogTest, eachCheckBoxBearsTheCaptionOfItsSetting) {
  const std::vector<std::pair<CheckId, std::wstring>> captions = {
      {{CheckBox::Display_chk, 0}, L"Display window when program is starting"},
      {{CheckBox::Display_chk, 1}, L"Roll down when the Main Window is viewed"},
      {{CheckBox::Display_chk, 2}, L"Roll in when the Main Window rolled in"},
      {{CheckBox::Display_chk, 3}, L"Resize window when minimizing and maximizing"},
      {{CheckBox::Display_chk, 4}, L"Always save window position"},
      {{CheckBox::Sound_ch_all}, L"Use Sounds"},
      {{CheckBox::AmPmCheck}, L"Use 12 hour time"},
      {{CheckBox::AlwOnTop}, L"Always on Top"},
      {{CheckBox::Fast_delete_msg_check}, L"Msg me when Fast Detete button is pressed"},
  };
  for (const auto& [id, caption] : captions) {
    for (const auto& [other, otherCaption] : captions) dialog.setChecked(other, false);
    dialog.setChecked(id, true);
    std::vector<std::wstring> checked;
    for (const HWND control : controlsOf(dialog.window())) {
      if (SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED) {
        checked.push_back(captionOf(control));
      }
    }
    EXPECT_THAT(checked, ElementsAre(caption));
  }
}

TEST_F(OptionsDialogTest, eachBoxStandsBesideTheCaptionOfItsSetting) {
  const std::vector<std::pair<TextId, std::wstring>> captions = {
      {{TextBox::WindowTime}, L"Main Window/Time of a step:"},
      {{TextBox::WindowSize}, L"Main Window/Size of a step:"},
      {{TextBox::NotesTime}, L"Notes/Time of a step:"},
      {{TextBox::NotesSize}, L"Notes/Size of a step:"},
      {{TextBox::WinPos, 0}, L"Notes/Left:"},  // the groups are those of the page before
      {{TextBox::WinPos, 1}, L"Notes/Top:"},
      {{TextBox::Sound_path, 0}, L"Notes/Showing Window:"},
      {{TextBox::Sound_path, 1}, L"Notes/Hidding Window:"},
      {{TextBox::Sound_path, 2}, L"Notes/Showing Notes:"},
      {{TextBox::Sound_path, 3}, L"Notes/Hidding Notes:"},
      {{TextBox::Sound_path, 4}, L"Notes/Alarm:"},
      {{TextBox::Sound_path, 5}, L"Notes/Button Press:"},
      {{TextBox::Sound_path, 6}, L"Notes/Button Fast Delete:"},
  };
  for (const auto& [id, caption] : captions) {
    const std::wstring before = dialog.text(id);
    dialog.setText(id, L"this one");
    EXPECT_EQ(groupBefore(dialog.window(), L"this one") + L"/" +
                  labelBefore(dialog.window(), L"this one"),
              caption);
    dialog.setText(id, before);
  }
}

TEST_F(OptionsDialogTest, eachPlayButtonPlaysTheSoundBesideIt) {
  for (int item = 0; item < kSoundPathCount; ++item) {
    const std::wstring file = std::to_wstring(item) + L".wav";
    dialog.setText({TextBox::Sound_path, item}, file);
    click(IDC_PLAY_SOUND + item);
    EXPECT_EQ(host.played, file);
  }
}

TEST_F(OptionsDialogTest, thePositionCanBeSetByMouse) {
  click(IDC_CMDSETWINPOS);
  EXPECT_TRUE(host.setsPosition);
}

TEST_F(OptionsDialogTest, theCrossOfTheWindowClosesWithoutSaving) {
  SendMessageW(dialog.window(), WM_CLOSE, 0, 0);
  EXPECT_EQ(dialog.window(), nullptr);
  EXPECT_TRUE(host.calls.empty());
}

TEST_F(OptionsDialogTest, theTreeMarksThePageOfARefusedBox) {
  host.refused = TextId{TextBox::WinPos, 0};
  click(IDC_CMDAPPLY);
  const HWND tree = GetDlgItem(dialog.window(), IDC_TREEVIEW1);
  std::wstring text(64, L'\0');
  TVITEMW item{};
  item.mask = TVIF_TEXT;
  item.hItem = TreeView_GetSelection(tree);
  item.pszText = text.data();
  item.cchTextMax = 64;
  SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  EXPECT_STREQ(item.pszText, L"Set Window Position");
}

TEST_F(OptionsDialogTest, theTreeIsOpenInItsOrder) {
  const HWND tree = GetDlgItem(dialog.window(), IDC_TREEVIEW1);
  std::vector<std::wstring> shown;
  for (HTREEITEM node = TreeView_GetRoot(tree); node != nullptr;
       node = TreeView_GetNextVisible(tree, node)) {
    std::wstring text(64, L'\0');
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = node;
    item.pszText = text.data();
    item.cchTextMax = 64;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    shown.emplace_back(item.pszText);
  }
  EXPECT_THAT(shown, ElementsAre(L"Systems", L"Sounds", L"Graphics", L"Window Display",
                                 L"Set Window Position", L"Skins", L"Icons", L"Comfort"));
}

TEST_F(OptionsDialogTest, refreshingTheSkinsListsANewOne) {
  const HWND list = box(OptionsPage::Skins, IDC_LISTA_SKOR);
  EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 2);
  folder.write("skins/Gamma/config.ini", "");
  click(IDC_CMD_REFRESH);
  EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 3);
  EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), 1);
  EXPECT_EQ(captionOf(box(OptionsPage::Skins, IDC_LABEL4)), L"1 of 3");
}

TEST_F(OptionsDialogTest, theChosenSkinIsWornAndTheDialogClosed) {
  SendMessageW(box(OptionsPage::Skins, IDC_LISTA_SKOR), LB_SETCURSEL, 0, 0);
  click(IDC_COMMAND2);
  EXPECT_THAT(host.calls, ElementsAre("skin 0"));
  EXPECT_EQ(dialog.window(), nullptr);
}

TEST_F(OptionsDialogTest, eachSkinIsListedWithItsPicturePaintedOnce) {
  const HWND list = box(OptionsPage::Skins, IDC_LISTA_SKOR);
  host.paintings = 0;
  options.cmd_refresh_Click();
  host.skinColor = pixelOf(1, 2, 3);
  EXPECT_TRUE(DrawnItem(GetParent(list), list, 0).shows(RGB(1, 2, 3), 120, 90));
  EXPECT_EQ(host.painted, L"Alpha");
  host.skinColor = pixelOf(4, 5, 6);
  EXPECT_TRUE(DrawnItem(GetParent(list), list, 1).shows(RGB(4, 5, 6), 120, 90));
  EXPECT_EQ(host.painted, L"Beta");
  EXPECT_TRUE(DrawnItem(GetParent(list), list, 0).shows(RGB(1, 2, 3), 120, 90));
  EXPECT_EQ(host.paintings, 2);
  options.cmd_refresh_Click();
  EXPECT_TRUE(DrawnItem(GetParent(list), list, 0).shows(RGB(4, 5, 6), 120, 90));
}

TEST_F(OptionsDialogTest, thePreviewIsDrawnWhereTheWindowStands) {
  options.Opt_win_pos_tim_Timer({400, 300});
  const HWND preview = box(OptionsPage::SetWindowPosition, IDC_EKRAN_W);
  const Rect window = previewOf(dialog.previewArea(), host.desktop(), {400, 300, 80, 40}).window;
  const Point middle{window.x + window.width / 2, window.y + window.height / 2};
  const DrawnItem there(GetParent(preview), preview);
  options.Opt_win_pos_tim_Timer({0, 0});
  const DrawnItem elsewhere(GetParent(preview), preview);
  EXPECT_NE(there.at(middle.x, middle.y), elsewhere.at(middle.x, middle.y));
  EXPECT_EQ(there.at(middle.x, window.y - 1), elsewhere.at(middle.x, window.y - 1));
}

TEST_F(OptionsDialogTest, thePreviewIsDrawnOnEveryMonitor) {
  host.otherMonitors = {{-800, 0, 800, 600}, {0, -600, 800, 600}};
  const HWND control = box(OptionsPage::SetWindowPosition, IDC_EKRAN_W);
  for (const Point position : {Point{400, 300}, Point{-500, 200}, Point{300, -400}}) {
    options.Opt_win_pos_tim_Timer(position);
    const PositionPreview preview =
        previewOf(dialog.previewArea(), host.desktop(), {position.x, position.y, 80, 40});
    const DrawnItem drawn(GetParent(control), control);
    for (const Rect& screen : preview.screens) {
      EXPECT_NE(drawn.at(screen.x + 2, screen.y + 2), GetSysColor(COLOR_3DFACE)) << screen.x;
    }
    EXPECT_EQ(drawn.at(preview.window.x + 1, preview.window.bottom() - 2), RGB(255, 250, 240))
        << "the paper of the window at " << position.x << ", " << position.y;
  }
}

TEST_F(OptionsDialogTest, anIconOfTheFolderIsTakenWithItsButton) {
  std::filesystem::copy_file(std::filesystem::path(kSourceFolder) / "assets/icons/bell.ico",
                             folder.path() / "icons" / "two.ico");
  click(IDC_COMMAND3);
  const std::vector<HWND> buttons = iconButtons(box(OptionsPage::Icons, IDC_ICON_GRID));
  ASSERT_EQ(buttons.size(), 2U);
  EXPECT_TRUE(IsWindowEnabled(buttons[1]));
  EXPECT_NE(SendMessageW(buttons[1], BM_GETIMAGE, IMAGE_ICON, 0), 0);
  SendMessageW(buttons[1], BM_CLICK, 0, 0);
  EXPECT_EQ(host.icon, L"two.ico");
}

TEST_F(OptionsDialogTest, theIconThatTheKeyboardComesToIsScrolledIntoView) {
  for (int i = 0; i < 80; ++i) {
    std::filesystem::copy_file(std::filesystem::path(kSourceFolder) / "assets/icons/bell.ico",
                               folder.path() / "icons" / (std::to_string(i) + ".ico"));
  }
  click(IDC_COMMAND3);
  options.Pokaz_opcje(L"Icons");
  const HWND grid = box(OptionsPage::Icons, IDC_ICON_GRID);
  const std::vector<HWND> buttons = iconButtons(grid);
  RECT inside{};
  GetClientRect(grid, &inside);
  const auto isInView = [&](HWND button) {
    RECT place{};
    GetWindowRect(button, &place);
    MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&place), 2);
    return place.top >= 0 && place.bottom <= inside.bottom;
  };
  const HWND last = *std::ranges::find_if(buttons.rbegin(), buttons.rend(), IsWindowEnabled);
  EXPECT_FALSE(isInView(last));
  SetFocus(last);
  EXPECT_TRUE(isInView(last));
  EXPECT_FALSE(isInView(buttons.front()));
  SetFocus(*std::ranges::find_if(buttons, IsWindowEnabled));
  EXPECT_TRUE(isInView(*std::ranges::find_if(buttons, IsWindowEnabled)));
}

}  // namespace
}  // namespace kalvora
