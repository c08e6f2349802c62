#include "win32/main/MenuWindow.h"

#include <windowsx.h>

#include <algorithm>

#include "base/Errors.h"
#include "win32/main/MenuIds.h"
#include "win32/toolkit/BufferedDc.h"
#include "win32/toolkit/WindowClass.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

constexpr const wchar_t* kClassName = L"KalvoraMenu";
constexpr const wchar_t* kFontName = L"Verdana";
constexpr UINT_PTR kTimer1 = 1;
constexpr UINT kKeyboardLeft = WM_APP;  // of the window to itself

// Pixels of the window, the border of one pixel included.
constexpr std::array<int, kMenuItems.size()> kItemTops = {12, 32, 52, 72};
constexpr int kItemHeight = 19;
constexpr int kTextLeft = 44;
constexpr int kTextAir = 22;  // to the right of the longest caption
constexpr int kHeight = 104;
constexpr int kBarWidth = 36;
constexpr int kBarTextBottom = 72;  // the program's name stands above the bell

constexpr COLORREF kGround = RGB(0, 0, 0);
constexpr COLORREF Shape1 = RGB(118, 132, 134);  // around the window
constexpr COLORREF Shape2 = RGB(58, 66, 68);     // around the items

COLORREF colorOf(Pixel pixel) {
  return RGB((pixel >> 16U) & 0xFFU, (pixel >> 8U) & 0xFFU, pixel & 0xFFU);
}

UniqueFont verdana(int height, int weight, int escapement) {
  LOGFONTW font{};
  font.lfHeight = -height;
  font.lfWeight = weight;
  font.lfEscapement = escapement;
  font.lfOrientation = escapement;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_QUALITY;
  std::copy_n(kFontName, wcslen(kFontName), font.lfFaceName);
  return UniqueFont(CreateFontIndirectW(&font));
}

int widestCaption(HFONT font) {
  const HDC screen = GetDC(nullptr);
  int widest = 0;
  {
    const SelectedObject selected(screen, font);
    for (const MenuItem& item : kMenuItems) {
      SIZE size{};
      GetTextExtentPoint32W(screen, item.caption.data(), static_cast<int>(item.caption.size()),
                            &size);
      widest = std::max(widest, static_cast<int>(size.cx));
    }
  }
  ReleaseDC(nullptr, screen);
  return widest;
}

std::optional<MenuKey> menuKeyOf(WPARAM key) {
  switch (key) {
    case VK_UP:
      return MenuKey::Up;
    case VK_DOWN:
      return MenuKey::Down;
    case VK_RETURN:
    case VK_SPACE:
      return MenuKey::Enter;
    case VK_ESCAPE:
      return MenuKey::Escape;
    default:
      return std::nullopt;
  }
}

}  // namespace

MenuWindow::MenuWindow(HWND owner, const EventDelivery& deliver, Menu_N& menu)
    : owner_(owner), deliver_(deliver), menu_(menu) {}

MenuWindow::~MenuWindow() {
  unload();
}

void MenuWindow::load() {
  if (window_ != nullptr) return;
  if (width_ == 0) prepare();
  window_ =
      CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kClassName, L"Kalvora menu", WS_POPUP, 0, 0,
                      width_, kHeight, owner_, nullptr, GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) throw Failure(L"The menu cannot be opened.");
}

void MenuWindow::prepare() {
  registerWindowClass(kClassName, windowProcedure<MenuWindow, &MenuWindow::handle>,
                      {.style = CS_DROPSHADOW});
  captionFont_ = verdana(11, FW_NORMAL, 0);
  barFont_ = verdana(14, FW_BOLD, 900);
  LBar = UniqueBitmap(
      static_cast<HBITMAP>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_MENU_BAR),
                                      IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  width_ = kTextLeft + widestCaption(captionFont_.get()) + kTextAir;
}

void MenuWindow::unload() {
  if (window_ != nullptr) DestroyWindow(std::exchange(window_, nullptr));
}

Size MenuWindow::size() const {
  return {width_, kHeight};
}

void MenuWindow::show(Point topLeft) {
  // Shown first and activated then: so a window manager below Wine takes it for the menu that it
  // is, and leaves its place alone.
  SetWindowPos(window_, HWND_TOPMOST, topLeft.x, topLeft.y, width_, kHeight,
               SWP_SHOWWINDOW | SWP_NOACTIVATE);
  SetForegroundWindow(window_);
}

Rect MenuWindow::place() const {
  RECT place{};
  GetWindowRect(window_, &place);
  return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

Point MenuWindow::pointer() const {
  POINT pointer{};
  GetCursorPos(&pointer);
  return {pointer.x, pointer.y};
}

Rect MenuWindow::monitorAt(Point point) const {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromPoint({point.x, point.y}, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& all = monitor.rcMonitor;
  return {all.left, all.top, all.right - all.left, all.bottom - all.top};
}

void MenuWindow::setBackColor(int item, Pixel color) {
  for (std::size_t place = 0; place < kMenuItems.size(); ++place) {
    if (window_ == nullptr || kMenuItems[place].number != item) continue;
    colors_[place] = colorOf(color);
    const RECT area = Picture1(place);
    InvalidateRect(window_, &area, FALSE);
  }
}

void MenuWindow::startTimer1(int interval) {
  SetTimer(window_, kTimer1, static_cast<UINT>(interval), nullptr);
}

void MenuWindow::stopTimer1() {
  KillTimer(window_, kTimer1);
}

LRESULT MenuWindow::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  // It is being made, or on its way out.
  if (window_ != window) return DefWindowProcW(window, message, wParam, lParam);
  if (handleMouse(message, lParam) || handleKeyboard(message, wParam)) return 0;
  switch (message) {
    case WM_PAINT:
      onPaint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_TIMER:
      deliver_([this] { menu_.Timer1_Timer(); });
      return 0;
    case WM_CLOSE:
      deliver_([this] { menu_.unload(); });
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window_, message, wParam, lParam);
}

bool MenuWindow::handleMouse(UINT message, LPARAM lParam) noexcept {
  switch (message) {
    case WM_MOUSEMOVE:
      if (const auto item = itemAt(lParam)) deliver_([&] { menu_.Zamien_kolor(*item); });
      return true;
    case WM_LBUTTONDOWN:
      // A release beside the menu ends the press too, and is heard of only so.
      SetCapture(window_);
      deliver_([&] { menu_.mouseDown(itemAt(lParam)); });
      return true;
    case WM_LBUTTONUP:
      if (GetCapture() == window_) ReleaseCapture();
      deliver_([&] { menu_.mouseUp(itemAt(lParam)); });
      return true;
    default:
      return false;
  }
}

bool MenuWindow::handleKeyboard(UINT message, WPARAM wParam) noexcept {
  switch (message) {
    case WM_KEYDOWN:
      onKey(wParam);
      return true;
    case WM_ACTIVATE:
      // Not at once: no window may go in the middle of a change of the active one.
      if (LOWORD(wParam) == WA_INACTIVE) PostMessageW(window_, kKeyboardLeft, 0, 0);
      return false;
    case kKeyboardLeft:
      deliver_([this] { menu_.keyboardLeft(); });
      return true;
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
      // The key that opened it, still held or let go: the platform would look for a menu bar.
      return wParam == VK_F10;
    case WM_CHAR:
      deliver_([&] { menu_.letterTyped(static_cast<wchar_t>(wParam)); });
      return true;
    default:
      return false;
  }
}

void MenuWindow::onKey(WPARAM key) noexcept {
  const auto menuKey = menuKeyOf(key);
  if (menuKey) deliver_([&] { menu_.keyDown(*menuKey); });
}

void MenuWindow::onPaint() noexcept {
  PAINTSTRUCT paint{};
  const HDC context = BeginPaint(window_, &paint);
  {
    const BufferedDc buffer(context, {0, 0, width_, kHeight});
    draw(buffer.get());
  }
  EndPaint(window_, &paint);
}

void MenuWindow::draw(HDC context) const {
  const RECT all{0, 0, width_, kHeight};
  fillSolid(context, all, kGround);
  frameSolid(context, {kBarWidth + 2, 2, width_ - 2, kHeight - 2}, Shape2);
  drawBar(context);
  frameSolid(context, all, Shape1);
  SetBkMode(context, TRANSPARENT);
  const SelectedObject font(context, captionFont_.get());
  for (std::size_t place = 0; place < kMenuItems.size(); ++place) drawItem(context, place);
}

void MenuWindow::drawBar(HDC context) const {
  drawBitmap(context, LBar.get(), 1, 1);
  const SelectedObject font(context, barFont_.get());
  SetBkMode(context, TRANSPARENT);
  TEXTMETRICW metrics{};
  GetTextMetricsW(context, &metrics);
  const int left = 1 + (kBarWidth - metrics.tmHeight) / 2 + 2;
  SetTextColor(context, RGB(4, 26, 28));
  TextOutW(context, left + 1, kBarTextBottom + 1, L"Kalvora", 7);
  SetTextColor(context, RGB(244, 232, 200));
  TextOutW(context, left, kBarTextBottom, L"Kalvora", 7);
}

void MenuWindow::drawItem(HDC context, std::size_t place) const {
  fillSolid(context, Picture1(place), colors_[place]);
  SetTextColor(context, colorOf(kMenuTextColor));
  RECT area = Label1(place);
  const std::wstring_view caption = kMenuItems[place].caption;
  DrawTextW(context, caption.data(), static_cast<int>(caption.size()), &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

RECT MenuWindow::Picture1(std::size_t place) const {
  const int top = kItemTops[place];
  return {kBarWidth + 3, top, width_ - 3, top + kItemHeight};
}

RECT MenuWindow::Label1(std::size_t place) const {
  RECT area = Picture1(place);
  area.left = kTextLeft;
  return area;
}

std::optional<int> MenuWindow::itemAt(LPARAM point) const {
  const POINT at{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  for (std::size_t place = 0; place < kMenuItems.size(); ++place) {
    const RECT area = Picture1(place);
    if (PtInRect(&area, at)) return kMenuItems[place].number;
  }
  return std::nullopt;
}

}  // namespace kalvora
