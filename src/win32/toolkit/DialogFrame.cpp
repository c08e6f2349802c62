#include "win32/toolkit/DialogFrame.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"
#include "win32/toolkit/ProgramIcon.h"
#include "win32/toolkit/VisualStyles.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

void DialogFrame::create(int templateId) {
  window_ = createFrom(templateId, owner_);
  setIcons();
  dialogs_.add(*this);
}

void DialogFrame::setIcons() {
  const HINSTANCE module = GetModuleHandleW(nullptr);
  const auto program = MAKEINTRESOURCEW(IDI_KALVORA);
  // Not shared: for a shared one the system may give the size that was loaded first.
  smallIcon_ = UniqueIcon(
      static_cast<HICON>(LoadImageW(module, program, IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                                    GetSystemMetrics(SM_CYSMICON), 0)));
  SendMessageW(window_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_.get()));
  SendMessageW(window_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(LoadIconW(module, program)));
}

HWND DialogFrame::createPage(int templateId) {
  return createFrom(templateId, window_);
}

HWND DialogFrame::createFrom(int templateId, HWND parent) {
  const VisualStyles styles;
  const HWND window = CreateDialogParamW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), parent,
      dialogProcedure<DialogFrame, &DialogFrame::handleIfOpen>, reinterpret_cast<LPARAM>(this));
  if (window == nullptr) throw Failure(L"The window cannot be opened.");
  return window;
}

void DialogFrame::runModal(int templateId) noexcept {
  const VisualStyles styles;
  DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), owner_,
                  dialogProcedure<DialogFrame, &DialogFrame::handleModal>,
                  reinterpret_cast<LPARAM>(this));
}

INT_PTR DialogFrame::handleModal(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message != WM_INITDIALOG) return handleIfOpen(window, message, wParam, lParam);
  window_ = window;
  opened();
  // opened() says which control has the keyboard.
  return FALSE;
}

void DialogFrame::destroy() noexcept {
  if (window_ == nullptr) return;
  dialogs_.remove(*this);
  const bool active = GetActiveWindow() == window_;
  // The events of the window's end are nobody's any more.
  DestroyWindow(std::exchange(window_, nullptr));
  // Otherwise some other program's window may come to the front.
  if (active && IsWindowVisible(owner_) && IsWindowEnabled(owner_)) SetActiveWindow(owner_);
}

void DialogFrame::bringToFront() noexcept {
  ShowWindow(window_, IsIconic(window_) ? SW_RESTORE : SW_SHOW);
  // Wine brings no window to the top that becomes active, and puts one whose owner is always on top
  // behind the owner's other windows, unless it is told so in these words.
  const bool alwaysOnTop = (GetWindowLongPtrW(window_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  SetWindowPos(window_, alwaysOnTop ? HWND_TOPMOST : HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  SetForegroundWindow(window_);
}

void DialogFrame::centre() noexcept {
  POINT pointer{};
  GetCursorPos(&pointer);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST), &monitor);
  centreIn(monitor.rcWork);
}

void DialogFrame::centreOnOwner() noexcept {
  RECT owner{};
  GetWindowRect(owner_, &owner);
  centreIn(owner);
}

void DialogFrame::centreIn(const RECT& area) noexcept {
  const SIZE own = size();
  SetWindowPos(window_, nullptr, (area.left + area.right - own.cx) / 2,
               (area.top + area.bottom - own.cy) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE DialogFrame::size() const noexcept {
  RECT place{};
  GetWindowRect(window_, &place);
  return {place.right - place.left, place.bottom - place.top};
}

void DialogFrame::letGrow(std::span<const Anchor> anchors) {
  layout_.attach(window_, anchors);
  smallest_ = size();
}

Size DialogFrame::normalSize() const noexcept {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(window_, &placement);
  const RECT& place = placement.rcNormalPosition;
  return {place.right - place.left, place.bottom - place.top};
}

void DialogFrame::setNormalSize(Size size) noexcept {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window_, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& room = monitor.rcWork;
  const LONG width = std::min<LONG>(size.width, room.right - room.left);
  const LONG height = std::min<LONG>(size.height, room.bottom - room.top);
  SetWindowPos(window_, nullptr, 0, 0, std::max(width, smallest_.cx),
               std::max(height, smallest_.cy), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool DialogFrame::handleSize(UINT message, LPARAM lParam) noexcept {
  if (message == WM_GETMINMAXINFO) {
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {smallest_.cx, smallest_.cy};
    return true;
  }
  if (message != WM_SIZE) return false;
  if (IsIconic(window_)) return true;
  layout_.apply();
  resized();
  return true;
}

bool DialogFrame::takesMessage(MSG& message) noexcept {
  return window_ != nullptr && IsDialogMessageW(window_, &message);
}

INT_PTR DialogFrame::handleIfOpen(HWND window, UINT message, WPARAM wParam,
                                  LPARAM lParam) noexcept {
  if (window_ == nullptr) return FALSE;
  if (window != window_) return handle(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    // It ends with its owner, or as one for which the owner waited.
    dialogs_.remove(*this);
    window_ = nullptr;
    return FALSE;
  }
  if (smallest_.cx != 0 && handleSize(message, lParam)) return TRUE;
  return handle(window, message, wParam, lParam);
}

}  // namespace kalvora
