#pragma once

#include <windows.h>

#include "win32/toolkit/ModelessDialogs.h"

namespace kalvora {

/// What the program's modeless dialogs have in common: a window from a template, owned by the main
/// window and in the middle of the monitor that the user works on. The object lives as long as the
/// program; its window only while the dialog is open.
class DialogFrame : private ModelessDialog {
 public:
  DialogFrame(HWND owner, ModelessDialogs& dialogs) : owner_(owner), dialogs_(dialogs) {}
  ~DialogFrame() override { destroy(); }
  DialogFrame(const DialogFrame&) = delete;
  DialogFrame& operator=(const DialogFrame&) = delete;

  /// The window; null while the dialog is closed.
  HWND window() const { return window_; }

 protected:
  /// Makes the window, hidden. Throws Failure where that cannot be done.
  void create(int templateId);
  /// Makes a page: a child dialog in the same hands, hidden. Throws Failure likewise.
  HWND createPage(int templateId);
  void destroy() noexcept;
  /// Shows the window in front and gives it the keyboard.
  void bringToFront() noexcept;

  HWND control(int id) const { return GetDlgItem(window_, id); }
  /// A message of the dialog or of one of its pages. Returns what a dialog procedure does.
  virtual INT_PTR handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept = 0;

 private:
  HWND createFrom(int templateId, HWND parent);
  INT_PTR handleIfOpen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  bool takesMessage(MSG& message) noexcept override;
  void centre() noexcept;

  HWND owner_;
  ModelessDialogs& dialogs_;
  HWND window_ = nullptr;
};

}  // namespace kalvora
