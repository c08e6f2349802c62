// The mouse on the main window: its buttons, its way, and who has it.

#include <windowsx.h>

#include "app/Form1.h"
#include "win32/main/MainWindow.h"

namespace kalvora {

namespace {

MouseButton buttonOf(UINT message) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
      return MouseButton::Left;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_RBUTTONUP:
      return MouseButton::Right;
    default:
      return MouseButton::Middle;
  }
}

MouseButton heldButtonOf(WPARAM keys) {
  if (keys & MK_LBUTTON) return MouseButton::Left;
  if (keys & MK_RBUTTON) return MouseButton::Right;
  if (keys & MK_MBUTTON) return MouseButton::Middle;
  return MouseButton::None;
}

Point pointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace

std::optional<LRESULT> MainWindow::handleMouse(UINT message, WPARAM wParam,
                                               LPARAM lParam) noexcept {
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
    toolTips_.relay(window_, message, wParam, lParam);
  }
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      onButtonDown(message, lParam);
      return 0;
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
      onButtonDownAgain(message, lParam);
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      onButtonUp(message, wParam, lParam);
      return 0;
    case WM_MOUSEMOVE:
      deliver_([&] { form_.mouseMove(heldButtonOf(wParam), pointOf(lParam)); });
      return 0;
    case WM_CAPTURECHANGED:
      // A second mouse button that goes down makes the window take the mouse from itself.
      if (reinterpret_cast<HWND>(lParam) != window_) deliver_([this] { form_.mouseLost(); });
      return 0;
    default:
      return std::nullopt;
  }
}

void MainWindow::onButtonDown(UINT message, LPARAM lParam) noexcept {
  // The third press of an impatient hand.
  const DWORD sinceTwice = static_cast<DWORD>(GetMessageTime()) - pressedTwice_.time;
  const bool third = lParam == pressedTwice_.place && sinceTwice < GetDoubleClickTime();
  SetCapture(window_);
  deliver_([&] {
    third ? form_.Form_MouseDownAgain(buttonOf(message), pointOf(lParam))
          : form_.Form_MouseDown(buttonOf(message), pointOf(lParam));
  });
}

void MainWindow::onButtonDownAgain(UINT message, LPARAM lParam) noexcept {
  pressedTwice_ = {static_cast<DWORD>(GetMessageTime()), lParam};
  SetCapture(window_);
  deliver_([&] { form_.Form_MouseDownAgain(buttonOf(message), pointOf(lParam)); });
}

void MainWindow::onButtonUp(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  deliver_([&] { form_.mouseUp(buttonOf(message), pointOf(lParam)); });
  const bool othersHeld = heldButtonOf(wParam) != MouseButton::None;
  if (!othersHeld && GetCapture() == window_) ReleaseCapture();
}

}  // namespace kalvora
