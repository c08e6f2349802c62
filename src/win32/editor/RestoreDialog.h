#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

#include "base/EventGuard.h"
#include "notes/NotePreview.h"
#include "notes/SafetyCopies.h"
#include "win32/toolkit/AnchoredLayout.h"

namespace kalvora {

/// The list of safety copies and drafts, of which the user can bring one back; the text of the one
/// that is picked stands below. It stands open in front of its
/// owner, which waits meanwhile, as it does for a message box.
class RestoreDialog {
 public:
  /// All must outlive this object.
  RestoreDialog(EventGuard& guard, const std::vector<SafetyCopy>& copies,
                const CopyPreview& preview)
      : guard_(guard), copies_(copies), preview_(preview) {}
  RestoreDialog(const RestoreDialog&) = delete;
  RestoreDialog& operator=(const RestoreDialog&) = delete;

  /// Returns the position of the copy that the user chose; nothing where the dialog was cancelled,
  /// went away with its owner, or could not be opened.
  std::optional<std::size_t> ask(HWND owner);

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void onNotify(const NMHDR& notification) noexcept;
  void finish(bool restore) noexcept;

  void create();
  void addColumns() const;
  void addCopies() const;
  void fitColumns() const;
  void showPicked();
  void onSize() noexcept;
  void setCell(std::size_t row, int column, std::wstring text) const;
  void centre() const;
  HWND list() const;
  int selected() const;

  EventGuard& guard_;
  const std::vector<SafetyCopy>& copies_;
  const CopyPreview& preview_;
  AnchoredLayout layout_;
  POINT smallest_{};  // the size of the window as it is designed
  HWND window_ = nullptr;
  std::optional<std::size_t> chosen_;
};

}  // namespace kalvora
