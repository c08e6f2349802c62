#include "win32/toolkit/DialogFrame.h"

#include <utility>

#include "base/Errors.h"
#include "win32/toolkit/ProgramIcon.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

void setIcon(HWND window) {
  const HICON icon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_KALVORA));
  SendMessageW(window, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
  SendMessageW(window, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
}

}  // namespace

void DialogFrame::create(int templateId) {
  window_ = createFrom(templateId, owner_);
  setIcon(window_);
  centre();
  dialogs_.add(*this);
}

HWND DialogFrame::createPage(int templateId) {
  return createFrom(templateId, window_);
}

HWND DialogFrame::createFrom(int templateId, HWND parent) {
  const HWND window = CreateDialogParamW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), parent,
      dialogProcedure<DialogFrame, &DialogFrame::handleIfOpen>, reinterpret_cast<LPARAM>(this));
  if (window == nullptr) throw Failure(L"The window cannot be opened.");
  return window;
}

void DialogFrame::destroy() noexcept {
  if (window_ == nullptr) return;
  dialogs_.remove(*this);
  // The events of the window's end are nobody's any more.
  DestroyWindow(std::exchange(window_, nullptr));
}

void DialogFrame::bringToFront() noexcept {
  ShowWindow(window_, IsIconic(window_) ? SW_RESTORE : SW_SHOW);
  SetForegroundWindow(window_);
}

void DialogFrame::centre() noexcept {
  POINT pointer{};
  GetCursorPos(&pointer);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST), &monitor);
  RECT place{};
  GetWindowRect(window_, &place);
  const RECT& work = monitor.rcWork;
  const LONG x = (work.left + work.right - (place.right - place.left)) / 2;
  const LONG y = (work.top + work.bottom - (place.bottom - place.top)) / 2;
  SetWindowPos(window_, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool DialogFrame::takesMessage(MSG& message) noexcept {
  return window_ != nullptr && IsDialogMessageW(window_, &message);
}

INT_PTR DialogFrame::handleIfOpen(HWND window, UINT message, WPARAM wParam,
                                  LPARAM lParam) noexcept {
  return window_ != nullptr ? handle(window, message, wParam, lParam) : FALSE;
}

}  // namespace kalvora
