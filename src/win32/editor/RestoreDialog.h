#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

#include "notes/NotePreview.h"
#include "notes/SafetyCopies.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

/// The list of safety copies and drafts, of which the user can bring one back; the text of the one
/// that is picked stands below. It stands open in front of its owner, which waits meanwhile, as it
/// does for a message box.
class RestoreDialog : private DialogFrame {
 public:
  /// All must outlive this object.
  RestoreDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
                const std::vector<SafetyCopy>& copies, const CopyPreview& preview)
      : DialogFrame(owner, dialogs), deliver_(deliver), copies_(copies), preview_(preview) {}

  /// Returns the position of the copy that the user chose; nothing where the dialog was cancelled,
  /// went away with its owner, or could not be opened.
  std::optional<std::size_t> ask();

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  void opened() noexcept override;
  void resized() noexcept override { fitColumns(); }
  void onNotify(const NMHDR& notification) noexcept;
  void finish(bool restore) noexcept;

  void fill();
  void addCopies() const;
  void fitColumns() const;
  void showPicked();
  void setCell(std::size_t row, int column, std::wstring text) const;
  HWND list() const;
  int selected() const;

  const EventDelivery& deliver_;
  const std::vector<SafetyCopy>& copies_;
  const CopyPreview& preview_;
  std::optional<std::size_t> chosen_;
};

}  // namespace kalvora
