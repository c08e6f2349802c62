#include "win32/options/IconGrid.h"

// commctrl.h needs windows.h before it.
#include <commctrl.h>

#include <algorithm>

#include "win32/platform/DiskFile.h"
#include "win32/toolkit/BufferedDc.h"
#include "win32/toolkit/VisualStyles.h"
#include "win32/toolkit/WindowClass.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

constexpr const wchar_t* kClassName = L"KalvoraIconGrid";
constexpr int kButtonSize = 44;  // pixels
constexpr int kGap = 4;
constexpr int kPitch = kButtonSize + kGap;

UniqueIcon iconOf(const std::filesystem::path& file) {
  if (leadsToDevice(file)) return {};
  return UniqueIcon(
      static_cast<HICON>(LoadImageW(nullptr, file.c_str(), IMAGE_ICON, GetSystemMetrics(SM_CXICON),
                                    GetSystemMetrics(SM_CYICON), LR_LOADFROMFILE)));
}

}  // namespace

void IconGrid::registerClass() {
  registerWindowClass(kClassName, controlProcedure<IconGrid, &IconGrid::handle>,
                      {.ground = GetSysColorBrush(COLOR_WINDOW)});
}

void IconGrid::attach(HWND grid) {
  window_ = grid;
  keepObject(grid, this);
  // A dialog makes borders look sunken; here it is the thin line of the other lists.
  SetWindowLongPtrW(
      grid, GWL_EXSTYLE,
      GetWindowLongPtrW(grid, GWL_EXSTYLE) & ~static_cast<LONG_PTR>(WS_EX_CLIENTEDGE));
  SetWindowLongPtrW(grid, GWL_STYLE, GetWindowLongPtrW(grid, GWL_STYLE) | WS_BORDER);
  SetWindowPos(grid, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0,
                              0, 0, 0, grid, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void IconGrid::detach() {
  window_ = nullptr;
  toolTips_ = nullptr;
  Icon_btn.clear();
  icons_.clear();
}

void IconGrid::setIcons(const std::vector<std::filesystem::path>& files,
                        std::wstring_view toolTip) {
  for (const HWND button : Icon_btn) DestroyWindow(button);
  Icon_btn.clear();
  icons_.clear();
  toolTip_ = toolTip;
  for (std::size_t place = 0; place < files.size(); ++place) {
    addButton(files[place], static_cast<int>(place));
  }
  position_ = 0;
  layOut();
}

void IconGrid::addButton(const std::filesystem::path& file, int place) {
  const VisualStyles styles;
  UniqueIcon icon = iconOf(file);
  // The arrows lead from one button to the next; Tab leads past them all.
  const DWORD group = place == 0 ? WS_GROUP | WS_TABSTOP : 0;
  const DWORD look = icon ? BS_ICON : BS_MULTILINE | WS_DISABLED;
  const HWND button = CreateWindowExW(
      0, L"BUTTON", file.stem().c_str(), WS_CHILD | WS_VISIBLE | BS_NOTIFY | group | look, 0, 0,
      kButtonSize, kButtonSize, window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(place)),
      GetModuleHandleW(nullptr), nullptr);
  SendMessageW(button, WM_SETFONT,
               static_cast<WPARAM>(SendMessageW(GetParent(window_), WM_GETFONT, 0, 0)), FALSE);
  if (icon) SendMessageW(button, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.get()));
  addToolTip(button);
  Icon_btn.push_back(button);
  icons_.push_back(std::move(icon));
}

void IconGrid::addToolTip(HWND button) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(button);
  tool.lpszText = toolTip_.data();
  SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

int IconGrid::columns() const {
  RECT client{};
  GetClientRect(window_, &client);
  return std::max<int>(1, (client.right - kGap) / kPitch);
}

int IconGrid::visibleHeight() const {
  RECT client{};
  GetClientRect(window_, &client);
  return client.bottom;
}

int IconGrid::contentHeight() const {
  const int rows = (static_cast<int>(Icon_btn.size()) + columns() - 1) / columns();
  return rows * kPitch + kGap;
}

void IconGrid::layOut() {
  SCROLLINFO scroll{};
  scroll.cbSize = sizeof scroll;
  scroll.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  scroll.nMax = contentHeight() - 1;
  scroll.nPage = static_cast<UINT>(visibleHeight());
  scroll.nPos = position_;
  // The bar takes its room from the columns, so they are counted after it has come or gone.
  SetScrollInfo(window_, SB_VERT, &scroll, TRUE);
  scroll.nMax = contentHeight() - 1;
  SetScrollInfo(window_, SB_VERT, &scroll, TRUE);
  for (std::size_t i = 0; i < Icon_btn.size(); ++i) {
    const int place = static_cast<int>(i);
    SetWindowPos(Icon_btn[i], nullptr, kGap + place % columns() * kPitch,
                 kGap + place / columns() * kPitch - position_, kButtonSize, kButtonSize,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_NOCOPYBITS);
  }
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void IconGrid::drawBorder() noexcept {
  const HDC context = GetWindowDC(window_);
  RECT place{};
  GetWindowRect(window_, &place);
  frameSolid(context, {0, 0, place.right - place.left, place.bottom - place.top},
             GetSysColor(COLOR_3DSHADOW));
  ReleaseDC(window_, context);
}

void IconGrid::scrollTo(int position) noexcept {
  position_ = std::clamp(position, 0, std::max(0, contentHeight() - visibleHeight()));
  layOut();
}

void IconGrid::bringIntoView(int place) noexcept {
  const int top = place / columns() * kPitch;
  if (top < position_) {
    scrollTo(top);
  } else if (top + kPitch + kGap > position_ + visibleHeight()) {
    scrollTo(top + kPitch + kGap - visibleHeight());
  }
}

void IconGrid::onScroll(WORD code) noexcept {
  SCROLLINFO scroll{};
  scroll.cbSize = sizeof scroll;
  scroll.fMask = SIF_ALL;
  GetScrollInfo(window_, SB_VERT, &scroll);
  switch (code) {
    case SB_LINEUP:
      return scrollTo(position_ - kPitch);
    case SB_LINEDOWN:
      return scrollTo(position_ + kPitch);
    case SB_PAGEUP:
      return scrollTo(position_ - visibleHeight());
    case SB_PAGEDOWN:
      return scrollTo(position_ + visibleHeight());
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return scrollTo(scroll.nTrackPos);
    default:
      return;
  }
}

void IconGrid::onWheel(int delta) noexcept {
  scrollTo(position_ - delta * kPitch / WHEEL_DELTA);
}

void IconGrid::onButton(WORD notification, WORD place, HWND button) noexcept {
  if (notification == BN_SETFOCUS) bringIntoView(place);
  if (notification != BN_CLICKED) return;
  SendMessageW(GetParent(window_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window_), place),
               reinterpret_cast<LPARAM>(button));
}

LRESULT IconGrid::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (window_ == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  switch (message) {
    case WM_VSCROLL:
      onScroll(LOWORD(wParam));
      return 0;
    case WM_MOUSEWHEEL:
      onWheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    case WM_COMMAND:
      onButton(HIWORD(wParam), LOWORD(wParam), reinterpret_cast<HWND>(lParam));
      return 0;
    case WM_NCPAINT:
      DefWindowProcW(window_, message, wParam, lParam);
      drawBorder();
      return 0;
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

}  // namespace kalvora
