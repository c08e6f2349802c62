#include "win32/main/TextScrollStrip.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "skin/WindowPicture.h"
#include "win32/toolkit/BitmapOf.h"
#include "win32/toolkit/WindowClass.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

constexpr const wchar_t* kClassName = L"KalvoraTextScroll";

}  // namespace

void TextScrollStrip::setLook(const FieldLook& look) {
  look_ = look;
  place_ = textScrollRect(fieldRect(look));
  if (window_ != nullptr) stand();
}

void TextScrollStrip::setVisibility(Visibility visibility) {
  if (window_ == nullptr) return;
  ShowWindow(window_, visibility == Visibility::Shown ? SW_SHOWNA : SW_HIDE);
}

void TextScrollStrip::follow(UINT message) noexcept {
  guard_.run([&] {
    switch (message) {
      // What the user does is not always painted by a message of its own.
      case WM_PAINT:
      case WM_CHAR:
      case WM_KEYDOWN:
      case WM_CUT:
      case WM_PASTE:
      case WM_CLEAR:
      case WM_UNDO:
      case EM_UNDO:
      case EM_REPLACESEL:
      case EM_SCROLL:
      case EM_LINESCROLL:
      case WM_TIMER:
      case WM_LBUTTONUP:
        update();
        break;
      case WM_MOUSEMOVE:
        pointerIsAt(text_);
        break;
      case WM_MOUSELEAVE:
        pointerLeft();
        break;
      default:
        break;
    }
  });
}

void TextScrollStrip::update() {
  if (!textIsSeen()) return;
  if (window_ == nullptr) create();
  // A text without its mark is of use, too.
  if (window_ == nullptr) return;
  const TextExtent before = std::exchange(extent_, measure());
  if (extent_ != before) InvalidateRect(window_, nullptr, FALSE);
}

void TextScrollStrip::create() {
  registerWindowClass(kClassName, windowProcedure<TextScrollStrip, &TextScrollStrip::handle>);
  window_ = CreateWindowExW(0, kClassName, L"", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                            GetParent(text_), nullptr, GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) return;
  // Right behind the text: what a skin lays over the one lies over the other, too.
  SetWindowPos(window_, text_, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  stand();
  ShowWindow(window_, SW_SHOWNA);
}

void TextScrollStrip::stand() {
  SetWindowPos(window_, nullptr, place_.x, place_.y, place_.width, place_.height,
               SWP_NOACTIVATE | SWP_NOZORDER);
  InvalidateRect(window_, nullptr, FALSE);
}

TextExtent TextScrollStrip::measure() const {
  RECT area{};
  SendMessageW(text_, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
  const auto number = [this](UINT question) {
    return static_cast<int>(SendMessageW(text_, question, 0, 0));
  };
  return {number(EM_GETLINECOUNT), number(EM_GETFIRSTVISIBLELINE),
          std::max(1, static_cast<int>(area.bottom - area.top) / lineHeight_)};
}

LRESULT TextScrollStrip::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  const int y = GET_Y_LPARAM(lParam);
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_LBUTTONDOWN:
      guard_.run([&] { press(y); });
      return 0;
    case WM_MOUSEMOVE:
      guard_.run([&] {
        pointerIsAt(window_);
        draw(y);
      });
      return 0;
    case WM_LBUTTONUP:
      if (GetCapture() == window_) ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      guard_.run([this] { release(); });
      return 0;
    case WM_MOUSELEAVE:
      guard_.run([this] { pointerLeft(); });
      return 0;
    case WM_MOUSEWHEEL:
      return SendMessageW(GetParent(window), message, wParam, lParam);
    case WM_CONTEXTMENU:
      return SendMessageW(text_, message, reinterpret_cast<WPARAM>(text_), lParam);
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

void TextScrollStrip::pointerIsAt(HWND control) {
  if (trackedOn_ != control) {
    TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, control, 0};
    TrackMouseEvent(&leave);
    trackedOn_ = control;
  }
  showAs(TextScrollLook::Bar);
}

/// From the text to the strip, or back, it leaves nothing.
void TextScrollStrip::pointerLeft() {
  trackedOn_ = nullptr;
  POINT pointer{};
  GetCursorPos(&pointer);
  const HWND there = WindowFromPoint(pointer);
  if (!grip_ && there != text_ && there != window_) showAs(TextScrollLook::Mark);
}

void TextScrollStrip::showAs(TextScrollLook look) {
  if (std::exchange(shownAs_, look) == look || window_ == nullptr) return;
  InvalidateRect(window_, nullptr, FALSE);
}

void TextScrollStrip::paint() noexcept {
  PAINTSTRUCT area{};
  const HDC context = BeginPaint(window_, &area);
  guard_.run([&] { blit(context, textScrollPicture(place_.size(), extent_, look_, shownAs_)); });
  EndPaint(window_, &area);
}

/// The thumb is taken; beside it the text is turned by what is to be seen of it. It is a part of
/// the text's box, in which the user wants to write.
void TextScrollStrip::press(int y) {
  SetFocus(text_);
  if (!overflows(extent_)) return;
  const TextScrollThumb thumb = textScrollThumb(place_.height, extent_);
  if (y < thumb.top || y >= thumb.top + thumb.height) {
    SendMessageW(text_, EM_SCROLL, y < thumb.top ? SB_PAGEUP : SB_PAGEDOWN, 0);
    return;
  }
  grip_ = Grip{y - thumb.top, y};
  SetCapture(window_);
}

void TextScrollStrip::draw(int y) {
  // The mouse that only rests on the thumb draws nothing: a line can be less than a pixel.
  if (!grip_ || y == grip_->mouse) return;
  grip_->mouse = y;
  update();
  const int line = firstLineAt(place_.height, extent_, y - grip_->below);
  if (line != extent_.first) SendMessageW(text_, EM_LINESCROLL, 0, line - extent_.first);
}

void TextScrollStrip::release() {
  grip_.reset();
  pointerLeft();
}

}  // namespace kalvora
