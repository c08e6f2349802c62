#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "base/Geometry.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// A text that appears while the mouse rests on a part of a window, or on a control of it.
struct ToolTip {
  Rect rect;  // in pixels of the window; not asked for where there is a control
  std::wstring text;
  HWND control = nullptr;
  friend bool operator==(const ToolTip&, const ToolTip&) = default;
};

/// The tips of a window: of what is only painted on it, and of its controls.
class ToolTips {
 public:
  /// From now on `window`, always the same one, has exactly these tips. Does nothing where they are
  /// what it has already.
  void show(HWND window, std::vector<ToolTip> tips);
  /// Has the tips follow the mouse, of which the window, or one of its controls, was told by this
  /// message.
  void relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const noexcept;
  /// Ends the tips, which has to happen before the window ends.
  void clear();

  /// The control behind the tips; null before the first show().
  HWND control() const { return control_.get(); }

 private:
  UniqueWindow control_;
  std::vector<ToolTip> tips_;
};

}  // namespace kalvora
