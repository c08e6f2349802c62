#include "win32/options/OptionsDialog.h"

#include <windowsx.h>

#include "win32/options/ComfortPage.h"
#include "win32/options/OptionsIds.h"
#include "win32/options/PositionPicture.h"
#include "win32/options/SoundFileDialog.h"
#include "win32/toolkit/ControlText.h"
#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

namespace {

// Dialog units from the left and the top edge: where the pages stand.
constexpr RECT kPageCorner = {117, 7, 0, 0};

int idOf(CheckId id) {
  switch (id.box) {
    case CheckBox::Display_chk:
      return IDC_DISPLAY_CHK + id.item;
    case CheckBox::Sound_ch_all:
      return IDC_SOUND_CH_ALL;
    case CheckBox::AmPmCheck:
      return IDC_AMPMCHECK;
    case CheckBox::AlwOnTop:
      return IDC_ALWONTOP;
    case CheckBox::Fast_delete_msg_check:
      return IDC_FAST_DELETE_MSG_CHECK;
    case CheckBox::Comfort:
      break;
  }
  return IDC_COMFORT + id.item;
}

OptionsPage pageOf(CheckBox box) {
  switch (box) {
    case CheckBox::Display_chk:
      return OptionsPage::WindowDisplay;
    case CheckBox::Sound_ch_all:
      return OptionsPage::Sounds;
    case CheckBox::Comfort:
      return OptionsPage::Comfort;
    default:
      return OptionsPage::Systems;
  }
}

int idOf(TextId id) {
  switch (id.box) {
    case TextBox::WindowTime:
      return IDC_WINDOW_TIME;
    case TextBox::WindowSize:
      return IDC_WINDOW_SIZE;
    case TextBox::NotesTime:
      return IDC_NOTES_TIME;
    case TextBox::NotesSize:
      return IDC_NOTES_SIZE;
    case TextBox::WinPos:
      return IDC_WINPOS + id.item;
    case TextBox::Sound_path:
      break;
  }
  return IDC_SOUND_PATH + id.item;
}

/// The place of a control in an array of them, or -1.
int itemOf(int id, int first, int count) {
  return id >= first && id < first + count ? id - first : -1;
}

}  // namespace

OptionsDialog::OptionsDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
                             Options& options)
    : DialogFrame(owner, dialogs), deliver_(deliver), options_(options) {}

void OptionsDialog::load() {
  const VisualStyles styles;
  registerControls(ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES);
  IconGrid::registerClass();
  create(IDD_OPTIONS);
  centre();
  makeTitleFont();
  makePages();
  makeComfortTicks(page(OptionsPage::Comfort), titleFont_.get());
  attachLists();
}

void OptionsDialog::unload() {
  destroy();
  Tree_pic = {};
  nodesByKey_.clear();
  nodeTexts_.clear();
  icons_.detach();
  titleFont_.reset();
}

void OptionsDialog::makeTitleFont() {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window(), WM_GETFONT, 0, 0)), sizeof font, &font);
  font.lfWeight = FW_BOLD;
  titleFont_ = UniqueFont(CreateFontIndirectW(&font));
}

void OptionsDialog::makePages() {
  RECT corner = kPageCorner;
  MapDialogRect(window(), &corner);
  // After the tree, and before the buttons, in the order of Tab.
  HWND after = TreeView1();
  for (int item = 0; item < kOptionsPageCount; ++item) {
    const HWND made = createPage(IDD_OPTIONS_PAGE + item);
    SetWindowPos(made, after, corner.left, corner.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    SendDlgItemMessageW(made, IDC_PAGE_TITLE, WM_SETFONT,
                        reinterpret_cast<WPARAM>(titleFont_.get()), FALSE);
    Tree_pic[static_cast<std::size_t>(item)] = made;
    after = made;
  }
}

void OptionsDialog::attachLists() {
  Lista_skor.attach(GetDlgItem(page(OptionsPage::Skins), IDC_LISTA_SKOR),
                    [this](int index, Size room, Pixel ground) {
                      std::optional<Image> picture;
                      deliver_([&] { picture = options_.skinPicture(index, room, ground); });
                      return picture;
                    });
  icons_.attach(GetDlgItem(page(OptionsPage::Icons), IDC_ICON_GRID));
}

HWND OptionsDialog::TreeView1() const {
  return control(IDC_TREEVIEW1);
}

HWND OptionsDialog::Label4() const {
  return GetDlgItem(page(OptionsPage::Skins), IDC_LABEL4);
}

HWND OptionsDialog::box(CheckId id) const {
  return GetDlgItem(page(pageOf(id.box)), idOf(id));
}

HWND OptionsDialog::box(TextId id) const {
  return GetDlgItem(page(kalvora::pageOf(id)), idOf(id));
}

bool OptionsDialog::checked(CheckId id) const {
  return Button_GetCheck(box(id)) == BST_CHECKED;
}

void OptionsDialog::setChecked(CheckId id, bool checked) {
  Button_SetCheck(box(id), checked ? BST_CHECKED : BST_UNCHECKED);
}

std::wstring OptionsDialog::text(TextId id) const {
  return textOf(box(id));
}

void OptionsDialog::setText(TextId id, std::wstring_view text) {
  setting_ = true;
  SetWindowTextW(box(id), std::wstring(text).c_str());
  setting_ = false;
}

std::size_t OptionsDialog::caret(TextId id) const {
  DWORD end = 0;
  SendMessageW(box(id), EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
  return end;
}

void OptionsDialog::setCaret(TextId id, std::size_t caret) {
  SendMessageW(box(id), EM_SETSEL, caret, static_cast<LPARAM>(caret));
}

void OptionsDialog::takeKeyboard(TextId id) {
  // Selects the text too, as when Tab leads here.
  SendMessageW(window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(box(id)), TRUE);
}

void OptionsDialog::addNode(const OptionsNode& node) {
  const HWND tree = TreeView1();
  const std::wstring text(node.text);
  const auto parent = nodesByKey_.find(node.parent);
  TVINSERTSTRUCTW insertion{};
  insertion.hParent = parent == nodesByKey_.end() ? TVI_ROOT : parent->second;
  insertion.hInsertAfter = TVI_LAST;
  insertion.item.mask = TVIF_TEXT | TVIF_STATE;
  insertion.item.stateMask = TVIS_EXPANDED;
  insertion.item.state = node.state == NodeState::Expanded ? TVIS_EXPANDED : 0;
  insertion.item.pszText = const_cast<wchar_t*>(text.c_str());
  const auto made = reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
  nodesByKey_[std::wstring(node.key)] = made;
  nodeTexts_[made] = text;
  // A node that had no children yet did not take its state.
  if (parent != nodesByKey_.end()) TreeView_Expand(tree, parent->second, TVE_EXPAND);
}

HTREEITEM OptionsDialog::nodeOf(std::wstring_view text) const {
  for (const auto& [node, nodeText] : nodeTexts_) {
    if (nodeText == text) return node;
  }
  return nullptr;
}

void OptionsDialog::selectNode(std::wstring_view text) {
  setting_ = true;
  TreeView_SelectItem(TreeView1(), nodeOf(text));
  setting_ = false;
}

void OptionsDialog::showPage(OptionsPage shown) {
  for (const HWND other : Tree_pic) {
    if (other != page(shown)) ShowWindow(other, SW_HIDE);
  }
  ShowWindow(page(shown), SW_SHOW);
}

Size OptionsDialog::previewArea() const {
  RECT client{};
  GetClientRect(GetDlgItem(page(OptionsPage::SetWindowPosition), IDC_EKRAN_W), &client);
  return {client.right, client.bottom};
}

void OptionsDialog::setPreview(const PositionPreview& preview) {
  Ekran_W = preview.screens;
  Rys = preview.window;
  InvalidateRect(GetDlgItem(page(OptionsPage::SetWindowPosition), IDC_EKRAN_W), nullptr, FALSE);
}

void OptionsDialog::setSkinPosition(std::wstring_view text) {
  SetWindowTextW(Label4(), std::wstring(text).c_str());
}

void OptionsDialog::setIcons(const std::vector<std::filesystem::path>& files,
                             std::wstring_view toolTip) {
  icons_.setIcons(files, toolTip);
}

std::wstring OptionsDialog::pickSound(std::wstring_view filter,
                                      const std::filesystem::path& folder) {
  return pickFileToOpen(window(), filter, folder);
}

INT_PTR OptionsDialog::handle(HWND, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_COMMAND:
      onCommand(LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_NOTIFY:
      if (reinterpret_cast<const NMHDR*>(lParam)->code != TVN_SELCHANGEDW) return FALSE;
      onNodeChosen(*reinterpret_cast<const NMTREEVIEWW*>(lParam));
      return TRUE;
    case WM_DRAWITEM:
      onDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_CLOSE:
      deliver_([this] { options_.unload(); });
      return TRUE;
    default:
      return FALSE;
  }
}

void OptionsDialog::onNodeChosen(const NMTREEVIEWW& change) noexcept {
  const auto node = nodeTexts_.find(change.itemNew.hItem);
  if (setting_ || node == nodeTexts_.end()) return;
  deliver_([&] { options_.Pokaz_opcje(node->second); });
}

void OptionsDialog::onCommand(int id, int notification) noexcept {
  const int position = itemOf(id, IDC_WINPOS, kWinPosCount);
  if (position >= 0) {
    if (notification == EN_CHANGE && !setting_) {
      deliver_([&] { options_.WinPos_Change(position); });
    }
  } else if (id == IDC_LISTA_SKOR) {
    if (notification == LBN_SELCHANGE) deliver_([this] { options_.Lista_skor_Click(); });
  } else if (id == IDC_ICON_GRID) {
    // The grid gives the place of its button instead of a notification.
    deliver_([&] { options_.Icon_btn_Click(notification); });
  } else if (notification == BN_CLICKED) {
    onButton(id);
  }
}

void OptionsDialog::onButton(int id) noexcept {
  const int display = itemOf(id, IDC_DISPLAY_CHK, kDisplayCheckCount);
  const int browse = itemOf(id, IDC_CMD_SOUND, kSoundPathCount);
  const int play = itemOf(id, IDC_PLAY_SOUND, kSoundPathCount);
  deliver_([&] {
    if (display >= 0) options_.Display_chk_Click(display);
    if (browse >= 0) options_.cmd_sound_Click(browse);
    if (play >= 0) options_.playSound(play);
    if (id == IDOK) options_.cmdOK_Click();
    if (id == IDCANCEL) options_.unload();
    if (id == IDC_CMDAPPLY) options_.cmdApply_Click();
    if (id == IDC_ALL_COMFORT) options_.allComfort_Click();
    if (id == IDC_CMDSETWINPOS) options_.cmdSetWinPos_Click();
    if (id == IDC_CMD_REFRESH) options_.cmd_refresh_Click();
    if (id == IDC_COMMAND2) options_.Command2_Click();
    if (id == IDC_COMMAND3) options_.Command3_Click();
  });
}

void OptionsDialog::onDrawItem(const DRAWITEMSTRUCT& item) noexcept {
  if (item.CtlID == IDC_LISTA_SKOR) Lista_skor.draw(item);
  if (item.CtlID == IDC_EKRAN_W) drawPositionPicture(item.hDC, item.rcItem, {Ekran_W, Rys});
}

}  // namespace kalvora
