#include "win32/toolkit/ButtonToolTips.h"

#include <commctrl.h>

#include <utility>

namespace kalvora {

namespace {

UniqueWindow createControl(HWND window) {
  const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
  // The window is a small one beside others, often not the active one.
  return UniqueWindow(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                      WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr,
                                      GetModuleHandleW(nullptr), nullptr));
}

TTTOOLINFOW toolOf(HWND window, std::size_t number) {
  TTTOOLINFOW tool{};
  // The size that every version of the common controls takes.
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = window;
  tool.uId = number;
  return tool;
}

LPARAM pointerTo(TTTOOLINFOW& tool) {
  return reinterpret_cast<LPARAM>(&tool);
}

}  // namespace

void ButtonToolTips::show(HWND window, std::vector<ToolTip> tips) {
  if (tips == tips_) return;
  if (!control_) control_ = createControl(window);
  for (std::size_t i = 0; i < tips_.size(); ++i) {
    TTTOOLINFOW tool = toolOf(window, i);
    SendMessageW(control_.get(), TTM_DELTOOLW, 0, pointerTo(tool));
  }
  tips_ = std::move(tips);
  for (std::size_t i = 0; i < tips_.size(); ++i) {
    TTTOOLINFOW tool = toolOf(window, i);
    // The control follows the mouse in the window by itself.
    tool.uFlags = TTF_SUBCLASS;
    const Rect& rect = tips_[i].rect;
    tool.rect = {rect.x, rect.y, rect.right(), rect.bottom()};
    tool.lpszText = tips_[i].text.data();
    SendMessageW(control_.get(), TTM_ADDTOOLW, 0, pointerTo(tool));
  }
}

void ButtonToolTips::clear() {
  control_.reset();
  tips_.clear();
}

}  // namespace kalvora
