#pragma once

#include <windows.h>

#include <span>

#include "base/Geometry.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/toolkit/AnchoredLayout.h"
#include "win32/toolkit/ModelessDialogs.h"

namespace kalvora {

/// What the program's dialogs have in common: a window from a template, in front of its owner. The
/// object can outlive its window, and open it again. A dialog that answers messages with what it
/// holds calls destroy() in its own destructor.
class DialogFrame : private ModelessDialog {
 public:
  DialogFrame(HWND owner, ModelessDialogs& dialogs) : owner_(owner), dialogs_(dialogs) {}
  ~DialogFrame() override { destroy(); }
  DialogFrame(const DialogFrame&) = delete;
  DialogFrame& operator=(const DialogFrame&) = delete;

  /// The window; null while the dialog is closed.
  HWND window() const { return window_; }

 protected:
  /// Makes the window, hidden and with the program's icon, of a dialog that stands open beside its
  /// owner. Throws Failure where that cannot be done.
  void create(int templateId);
  /// Makes a page: a child dialog in the same hands, hidden. Throws Failure likewise.
  HWND createPage(int templateId);
  /// Shows a dialog for which its owner waits, until endModal(); nothing where it cannot be made.
  void runModal(int templateId) noexcept;
  void endModal() noexcept { EndDialog(window_, 0); }
  /// A dialog of runModal() has its window, which is not to be seen yet.
  virtual void opened() noexcept {}
  void destroy() noexcept;
  /// Shows the window in front and gives it the keyboard.
  void bringToFront() noexcept;
  /// Puts it in the middle of the monitor that the user works on, or of its owner's window.
  void centre() noexcept;
  void centreOnOwner() noexcept;
  /// The window can be made larger than it is now: its controls keep to its edges from here on.
  void letGrow(std::span<const Anchor> anchors);
  /// In pixels of the screen, with its frame, of a window that can grow, as it is when it is not
  /// maximized.
  Size normalSize() const noexcept;
  /// Not smaller than it is designed, nor larger than its monitor.
  void setNormalSize(Size size) noexcept;
  /// It was made larger or smaller, and the controls moved.
  virtual void resized() noexcept {}

  ModelessDialogs& dialogs() { return dialogs_; }
  HWND control(int id) const { return GetDlgItem(window_, id); }
  /// A message of the dialog or of one of its pages. Returns what a dialog procedure does.
  virtual INT_PTR handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept = 0;
  bool takesMessage(MSG& message) noexcept override;

 private:
  HWND createFrom(int templateId, HWND parent);
  INT_PTR handleIfOpen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  INT_PTR handleModal(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  bool handleSize(UINT message, LPARAM lParam) noexcept;
  void centreIn(const RECT& area) noexcept;
  SIZE size() const noexcept;
  void setIcons();

  HWND owner_;
  ModelessDialogs& dialogs_;
  HWND window_ = nullptr;
  UniqueIcon smallIcon_;
  AnchoredLayout layout_;
  SIZE smallest_{};  // of a window that can grow: as it is designed
};

}  // namespace kalvora
