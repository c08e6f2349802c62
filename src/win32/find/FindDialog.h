#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "find/FindNotesView.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"
#include "win32/toolkit/RowList.h"

namespace kalvora {

class FindNotes;

/// The window "Find". It lives as long as the program; its window only while it is open.
class FindDialog final : public FindNotesView, private DialogFrame {
 public:
  /// `form` gets events only while the window is open; the others must outlive this object.
  FindDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver, FindNotes& form)
      : DialogFrame(owner, dialogs), deliver_(deliver), form_(form) {}
  ~FindDialog() override { destroy(); }

  /// Opens the window, or brings it to the front where it is open, with these words in its field;
  /// without any, what stands there stays. Throws Failure where it cannot be created.
  void open(std::wstring_view words);
  using DialogFrame::window;

  std::wstring words() const override;
  void showRows(std::size_t count, std::optional<std::size_t> selected) override {
    rows_.showRows(count, selected);
  }
  std::optional<std::size_t> selectedRow() const override { return rows_.selectedRow(); }
  void scrollTo(std::size_t row) override { rows_.scrollTo(row); }
  void setNotice(std::wstring_view text) override;
  void setTimer(int interval) override;
  Size size() const override { return normalSize(); }
  void setSize(Size size) override { setNormalSize(size); }
  void unload() noexcept override { destroy(); }

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  bool takesMessage(MSG& message) noexcept override;
  void resized() noexcept override { rows_.fitColumns(); }
  void onCommand(WPARAM wParam) noexcept;
  void onRowsNotify(NMHDR& notification) noexcept;
  bool keyDown(const MSG& message) noexcept;
  void openRow(std::size_t row) noexcept;

  void create();
  void goToField() const;
  void goToRows() const;
  HWND field() const;

  const EventDelivery& deliver_;
  FindNotes& form_;
  RowList rows_;
};

}  // namespace kalvora
