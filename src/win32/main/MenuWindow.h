#pragma once

#include <windows.h>

#include <array>
#include <optional>

#include "notes/Menu_N.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

/// The popup menu's window: borderless, drawn by itself, in front of all others. It lives as long
/// as the program; its window only while the menu is open.
class MenuWindow final : public Menu_NView {
 public:
  /// `menu` gets events only while the window is open; the others must outlive this object.
  MenuWindow(HWND owner, const EventDelivery& deliver, Menu_N& menu);
  ~MenuWindow() override;
  MenuWindow(const MenuWindow&) = delete;
  MenuWindow& operator=(const MenuWindow&) = delete;

  /// The window; null while the menu is closed.
  HWND window() const { return window_; }

  void load() override;
  void unload() override;
  Size size() const override;
  void show(Point topLeft) override;
  Rect place() const override;
  Point pointer() const override;
  Rect monitorAt(Point point) const override;
  void setBackColor(int item, Pixel color) override;
  void startTimer1(int interval) override;
  void stopTimer1() override;

 private:
  /// What a menu needs, the first time that it is wanted: no start waits for it.
  void prepare();
  LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void onPaint() noexcept;
  // Whether the message is done with.
  bool handleMouse(UINT message, LPARAM lParam) noexcept;
  bool handleKeyboard(UINT message, WPARAM wParam) noexcept;
  void onKey(WPARAM key) noexcept;
  void draw(HDC context) const;
  void drawBar(HDC context) const;
  void drawItem(HDC context, std::size_t place) const;
  RECT Picture1(std::size_t place) const;
  RECT Label1(std::size_t place) const;
  std::optional<int> itemAt(LPARAM point) const;

  HWND owner_;
  const EventDelivery& deliver_;
  Menu_N& menu_;
  HWND window_ = nullptr;
  UniqueFont captionFont_;
  UniqueFont barFont_;
  UniqueBitmap LBar;
  int width_ = 0;
  std::array<COLORREF, kMenuItems.size()> colors_{};
};

}  // namespace kalvora
