#include "win32/toolkit/ToolTips.h"

#include <commctrl.h>

#include <utility>

#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

namespace {

UniqueWindow createControl(HWND window) {
  const VisualStyles styles;
  registerControls(ICC_BAR_CLASSES);
  // The window is a small one beside others, often not the active one.
  return UniqueWindow(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                      WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr,
                                      GetModuleHandleW(nullptr), nullptr));
}

TTTOOLINFOW toolOf(HWND window, const ToolTip& tip, std::size_t number) {
  TTTOOLINFOW tool{};
  // The size that every version of the common controls takes.
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = window;
  if (tip.control == nullptr) {
    tool.uId = number;
  } else {
    tool.uFlags = TTF_IDISHWND;
    tool.uId = reinterpret_cast<UINT_PTR>(tip.control);
  }
  return tool;
}

LPARAM pointerTo(TTTOOLINFOW& tool) {
  return reinterpret_cast<LPARAM>(&tool);
}

}  // namespace

void ToolTips::show(HWND window, std::vector<ToolTip> tips) {
  if (tips == tips_) return;
  if (!control_) control_ = createControl(window);
  for (std::size_t i = 0; i < tips_.size(); ++i) {
    TTTOOLINFOW tool = toolOf(window, tips_[i], i);
    SendMessageW(control_.get(), TTM_DELTOOLW, 0, pointerTo(tool));
  }
  tips_ = std::move(tips);
  for (std::size_t i = 0; i < tips_.size(); ++i) {
    TTTOOLINFOW tool = toolOf(window, tips_[i], i);
    const Rect& rect = tips_[i].rect;
    tool.rect = {rect.x, rect.y, rect.right(), rect.bottom()};
    tool.lpszText = tips_[i].text.data();
    SendMessageW(control_.get(), TTM_ADDTOOLW, 0, pointerTo(tool));
  }
}

// The control could look at the window's messages itself, but would then cost each of them three
// questions to Wine's server.
void ToolTips::relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const noexcept {
  if (!control_) return;
  MSG relayed{window, message, wParam, lParam, 0, {}};
  SendMessageW(control_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ToolTips::clear() {
  control_.reset();
  tips_.clear();
}

}  // namespace kalvora
