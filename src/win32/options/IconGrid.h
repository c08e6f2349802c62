#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// A grid of buttons with the pictures of icon files, which wraps at its right edge and scrolls.
/// The buttons tell the grid's parent of a click with a WM_COMMAND of the grid's number, the
/// button's place and the button.
class IconGrid {
 public:
  /// Registers the class of the window, which a dialog template then makes.
  static void registerClass();

  /// Takes the window of a template into its hands, until the window ends.
  void attach(HWND grid);
  /// One button a file; a file that holds no icon has its name on a button that cannot
  /// be clicked.
  void setIcons(const std::vector<std::filesystem::path>& files, std::wstring_view toolTip);
  /// Lets go of the pictures; the window has ended.
  void detach();

 private:
  LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void addButton(const std::filesystem::path& file, int place);
  void addToolTip(HWND button);
  void layOut();
  void drawBorder() noexcept;
  void onScroll(WORD code) noexcept;
  void onWheel(int delta) noexcept;
  void onButton(WORD notification, WORD place, HWND button) noexcept;
  void scrollTo(int position) noexcept;
  void bringIntoView(int place) noexcept;
  int columns() const;
  int visibleHeight() const;
  int contentHeight() const;

  HWND window_ = nullptr;
  HWND toolTips_ = nullptr;
  std::wstring toolTip_;
  std::vector<HWND> Icon_btn;
  std::vector<UniqueIcon> icons_;
  int position_ = 0;  // pixels scrolled
};

}  // namespace kalvora
