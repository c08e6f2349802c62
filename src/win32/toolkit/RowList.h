#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace kalvora {

/// A list view of rows that open something, in its report style and with LVS_OWNERDATA: it asks for
/// the texts of those that are to be seen.
class RowList {
 public:
  /// Gives the list its columns. `widest` is the widest that stands in each; one that is empty has
  /// what the others leave.
  void attach(HWND list, std::span<const wchar_t* const> headings,
              std::span<const wchar_t* const> widest);
  HWND window() const { return list_; }
  /// After the list was made larger or smaller.
  void fitColumns() const;

  /// The rows are others now: as many of them, with this one selected, or none. The list stays
  /// scrolled to where it is, and a row that was and stays selected is not selected anew.
  void showRows(std::size_t count, std::optional<std::size_t> selected) const;
  std::optional<std::size_t> selectedRow() const;
  void selectRow(std::size_t row) const;
  /// Scrolls so that a row is the first that is seen, as far as there are rows behind it.
  void scrollTo(std::size_t row) const;

  /// Which row a notification of the list tells to be clicked; nothing for any other one. The list
  /// has to be done with the mouse before the row is opened.
  std::optional<std::size_t> clickedRow(const NMHDR& notification);
  /// The second press of a double click on a row: what the first one opened may stand under the
  /// pointer with any of its buttons.
  bool isSecondClick(const MSG& message) const;
  /// Puts a text into a cell that LVN_GETDISPINFO asks for.
  static void answer(LVITEMW& item, const std::wstring& text);

 private:
  struct Click {
    DWORD time;  // as messages count it
    POINT at;    // of the screen
  };

  HWND list_ = nullptr;
  std::span<const wchar_t* const> widest_;
  std::optional<Click> clicked_;  // on a row
};

}  // namespace kalvora
