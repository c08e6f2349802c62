#include "options/Options.h"

#include <array>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "options/ComfortTable.h"
#include "options/OptionsInputError.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kSoundFilter = L"Sound (*.wav)|*.wav";
constexpr std::wstring_view kIconToolTip =
    L"If you want add icon here copy it to Kalvora/Icons folder";

// The first node's page is the one that the dialog opens with.
constexpr std::array kTopNodes = {
    OptionsNode{L"sys", L"", L"Systems", NodeState::Expanded},
    OptionsNode{L"gr", L"", L"Graphics", NodeState::Expanded},
};
constexpr std::array kChildNodes = {
    OptionsNode{L"sys_ch01", L"gr", L"Window Display"},
    OptionsNode{L"sys_ch02", L"gr", L"Set Window Position"},
    OptionsNode{L"sys_ch03", L"gr", L"Skins"},
    OptionsNode{L"sys_ch04", L"gr", L"Icons"},
    OptionsNode{L"sys_ch05", L"sys", L"Sounds"},
};
// Its page is the one of every node that no other page is named for.
constexpr OptionsNode kLastNode{L"comfort", L"", L"Comfort"};

struct NamedPage {
  std::wstring_view text;
  OptionsPage page;
};
constexpr std::array kPages = {
    NamedPage{L"Graphics", OptionsPage::Graphics},
    NamedPage{L"Window Display", OptionsPage::WindowDisplay},
    NamedPage{L"Set Window Position", OptionsPage::SetWindowPosition},
    NamedPage{L"Sounds", OptionsPage::Sounds},
    NamedPage{L"Systems", OptionsPage::Systems},
    NamedPage{L"Skins", OptionsPage::Skins},
    NamedPage{L"Icons", OptionsPage::Icons},
};

std::wstring_view nodeTextOf(OptionsPage page) {
  for (const NamedPage& named : kPages) {
    if (named.page == page) return named.text;
  }
  return {};
}

// Rolling down when the window is viewed, and coming out rolled down already.
constexpr int kRollDown = 1;
constexpr int kRollIn = 2;

constexpr TextId winPos(int item) {
  return {TextBox::WinPos, item};
}

}  // namespace

Options::Options(const FileSystem& files, ProgramFolders folders, OptionsHost& host,
                 OptionsView& view)
    : files_(files), folders_(std::move(folders)), host_(host), view_(view) {}

void Options::open() {
  if (loaded_) {
    view_.comeToFront();
    return;
  }
  view_.load();
  loaded_ = true;
  try {
    Form_Load();
    host_.Options_to_form(view_);
    Przerysuj();
  } catch (...) {
    unload();
    throw;
  }
  view_.comeToFront();
}

void Options::unload() {
  if (!loaded_) return;
  loaded_ = false;
  Form_Unload();
  view_.unload();
}

void Options::Form_Load() {
  // A window that is not out stands nowhere that the user knows of: until it moves, the boxes keep
  // its home.
  followedPosition_.reset();
  if (!host_.shown()) followedPosition_ = host_.windowPosition();
  host_.startOpt_win_pos_tim();
  Refresh_skins();
  for (const OptionsNode& node : kTopNodes) view_.addNode(node);
  view_.selectNode(kTopNodes.front().text);
  Pokaz_opcje(kTopNodes.front().text);
  for (const OptionsNode& node : kChildNodes) view_.addNode(node);
  view_.addNode(kLastNode);
  previewPosition_ = host_.windowPosition();
  Przerysuj();
  Load_All_Icons();
}

void Options::Form_Unload() {
  host_.stopOpt_win_pos_tim();
  host_.endSetPosition();
}

void Options::Pokaz_opcje(std::wstring_view nodeText) {
  OptionsPage page = OptionsPage::Comfort;
  for (const NamedPage& named : kPages) {
    if (named.text == nodeText) page = named.page;
  }
  view_.showPage(page);
}

void Options::Refresh_skins() {
  skins_ = files_.folders(folders_.skins());
  view_.setSkins(skins_);
  const int current = host_.currentSkin();
  if (current < 0 || static_cast<std::size_t>(current) >= skins_.size()) {
    view_.setSkinPosition(L"");
    return;
  }
  view_.selectSkin(current);
  showSkinPosition(current);
}

void Options::showSkinPosition(int index) {
  // Counted from 0: the third of five is 2 of 5, and always was.
  view_.setSkinPosition(numberToText(index) + L" of " +
                        numberToText(static_cast<std::int32_t>(skins_.size())));
}

void Options::Load_All_Icons() {
  const std::filesystem::path folder = folders_.icons();
  Lista_ikon_FileListBox = files_.files(folder, L"*");
  std::vector<std::filesystem::path> files;
  for (const std::wstring& name : Lista_ikon_FileListBox) files.push_back(folder / name);
  view_.setIcons(files, kIconToolTip);
}

void Options::Przerysuj() {
  previewPosition_ = enteredPosition().value_or(previewPosition_);
  const Size window = host_.fullSize();
  view_.setPreview(
      previewOf(view_.previewArea(), host_.desktop(),
                {previewPosition_.x, previewPosition_.y, window.width, window.height}));
}

std::optional<Point> Options::enteredPosition() const {
  try {
    return Point{textToInt16(view_.text(winPos(0))), textToInt16(view_.text(winPos(1)))};
  } catch (const Failure&) {
    return std::nullopt;
  }
}

void Options::Display_chk_Click(int item) {
  if (item != kRollDown && item != kRollIn) return;
  const CheckId clicked{CheckBox::Display_chk, item};
  const CheckId other{CheckBox::Display_chk, item == kRollDown ? kRollIn : kRollDown};
  if (view_.checked(clicked) && view_.checked(other)) view_.setChecked(other, false);
}

void Options::allComfort_Click() {
  const int ticks = static_cast<int>(comfortTicks().size());
  for (int item = 0; item < ticks; ++item) view_.setChecked({CheckBox::Comfort, item}, true);
}

void Options::WinPos_Change(int item) {
  const auto box = winPos(item);
  replaceInput(view_, box,
               Zabezpieczenie_Cyfry(view_.text(box), view_.caret(box), boxOfPosition(item)));
  Przerysuj();
}

DigitBox Options::boxOfPosition(int item) const {
  const Rect bounds = host_.desktop().bounds();
  return (item == 0 ? bounds.x : bounds.y) < 0 ? DigitBox::SignedNumber : DigitBox::Number;
}

void Options::cmdSetWinPos_Click() {
  host_.beginSetPosition();
}

void Options::Opt_win_pos_tim_Timer(Point position) {
  if (!loaded_ || followedPosition_ == position) return;
  followedPosition_ = position;
  showWindowPosition(position);
}

void Options::windowDropped(Point position) {
  if (loaded_) showWindowPosition(position);
}

void Options::showWindowPosition(Point position) {
  view_.setText(winPos(0), singleToText(static_cast<float>(position.x)));
  view_.setText(winPos(1), singleToText(static_cast<float>(position.y)));
  Przerysuj();
}

std::filesystem::path Options::soundFolder(int item) const {
  const std::filesystem::path chosen = view_.text({TextBox::Sound_path, item});
  return chosen.has_parent_path() ? chosen.parent_path() : folders_.sounds();
}

void Options::cmd_sound_Click(int item) {
  const std::wstring file = view_.pickSound(kSoundFilter, soundFolder(item));
  // While the user picked, the dialog may have been closed.
  if (file.empty() || !loaded_) return;
  view_.setText({TextBox::Sound_path, item}, file);
}

void Options::playSound(int item) {
  const std::wstring file = view_.text({TextBox::Sound_path, item});
  if (!file.empty()) host_.playSound(file);
}

void Options::Lista_skor_Click() {
  const std::optional<int> chosen = view_.selectedSkin();
  if (!chosen) return;
  showSkinPosition(*chosen);
  // The window in its new skin takes the keyboard, which is needed to go on through the list.
  const auto takeKeyboardBack = [this] {
    if (loaded_) view_.comeToFront();
  };
  try {
    host_.wearSkin(toInt16(*chosen));
  } catch (...) {
    takeKeyboardBack();
    throw;
  }
  takeKeyboardBack();
}

void Options::Command2_Click() {
  if (const std::optional<int> chosen = view_.selectedSkin()) {
    host_.wearSkin(toInt16(*chosen));
  }
  unload();
}

void Options::cmd_refresh_Click() {
  Refresh_skins();
}

std::optional<Image> Options::skinPicture(int index, Size room, Pixel ground) const {
  if (index < 0 || static_cast<std::size_t>(index) >= skins_.size()) return std::nullopt;
  return host_.skinPicture(skins_[static_cast<std::size_t>(index)], room, ground);
}

void Options::Icon_btn_Click(int item) {
  if (item < 0 || static_cast<std::size_t>(item) >= Lista_ikon_FileListBox.size()) return;
  host_.takeIcon(Lista_ikon_FileListBox[static_cast<std::size_t>(item)]);
}

void Options::Command3_Click() {
  Load_All_Icons();
}

void Options::cmdApply_Click() {
  try {
    host_.Save_options_KV(view_);
  } catch (const OptionsInputError& error) {
    const std::wstring_view node = nodeTextOf(pageOf(error.box()));
    view_.selectNode(node);
    Pokaz_opcje(node);
    view_.takeKeyboard(error.box());
    throw;
  }
}

void Options::cmdOK_Click() {
  cmdApply_Click();
  unload();
}

}  // namespace kalvora
