#include "win32/toolkit/RowList.h"

#include <algorithm>
#include <cstdlib>

#include "win32/toolkit/ListColumns.h"

namespace kalvora {

namespace {

constexpr int kColumnMargins = 16;

}  // namespace

void RowList::attach(HWND list, std::span<const wchar_t* const> headings,
                     std::span<const wchar_t* const> widest) {
  list_ = list;
  widest_ = widest;
  ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT);
  addListColumns(list_, headings);
  fitColumns();
}

void RowList::fitColumns() const {
  RECT inside{};
  GetClientRect(list_, &inside);
  // As if it were there: the columns keep their width when it comes.
  if ((GetWindowLongPtrW(list_, GWL_STYLE) & WS_VSCROLL) == 0) {
    inside.right -= GetSystemMetrics(SM_CXVSCROLL);
  }
  LONG left = inside.right;
  int rest = 0;
  for (std::size_t i = 0; i < widest_.size(); ++i) {
    const int column = static_cast<int>(i);
    if (*widest_[i] == L'\0') {
      rest = column;
      continue;
    }
    const int width = ListView_GetStringWidth(list_, widest_[i]) + kColumnMargins;
    ListView_SetColumnWidth(list_, column, width);
    left -= width;
  }
  ListView_SetColumnWidth(list_, rest, left);
}

void RowList::showRows(std::size_t count, std::optional<std::size_t> selected) const {
  const int focused = ListView_GetNextItem(list_, -1, LVNI_FOCUSED);
  SendMessageW(list_, LVM_SETITEMCOUNT, count, LVSICF_NOSCROLL);
  if (selectedRow() != selected) {
    ListView_SetItemState(list_, -1, 0, LVIS_SELECTED);
    if (selected) selectRow(*selected);
  }
  // Who uses the keyboard goes on from where the row was that is gone.
  if (!selected && focused >= 0 && count > 0) {
    const int last = static_cast<int>(count) - 1;
    ListView_SetItemState(list_, std::min(focused, last), LVIS_FOCUSED, LVIS_FOCUSED);
  }
  InvalidateRect(list_, nullptr, TRUE);
}

std::optional<std::size_t> RowList::selectedRow() const {
  const int selected = ListView_GetNextItem(list_, -1, LVNI_SELECTED);
  return selected < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(selected));
}

void RowList::selectRow(std::size_t row) const {
  const int item = static_cast<int>(row);
  ListView_SetItemState(list_, item, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void RowList::scrollTo(std::size_t row) const {
  const int item = static_cast<int>(row);
  const int last =
      std::min(item + ListView_GetCountPerPage(list_) - 1, ListView_GetItemCount(list_) - 1);
  ListView_EnsureVisible(list_, last, FALSE);
  ListView_EnsureVisible(list_, item, FALSE);
}

std::optional<std::size_t> RowList::clickedRow(const NMHDR& notification) {
  if (notification.code != NM_CLICK) return std::nullopt;
  const int row = reinterpret_cast<const NMITEMACTIVATE&>(notification).iItem;
  if (row < 0) return std::nullopt;
  const DWORD place = GetMessagePos();
  const POINTS at = MAKEPOINTS(place);
  clicked_ = Click{static_cast<DWORD>(GetMessageTime()), {at.x, at.y}};
  return static_cast<std::size_t>(row);
}

bool RowList::isSecondClick(const MSG& message) const {
  const bool press = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK ||
                     message.message == WM_NCLBUTTONDOWN;
  return press && clicked_ && message.time - clicked_->time < GetDoubleClickTime() &&
         std::abs(message.pt.x - clicked_->at.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
         std::abs(message.pt.y - clicked_->at.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
}

void RowList::answer(LVITEMW& item, const std::wstring& text) {
  const auto room = static_cast<std::size_t>(item.cchTextMax) - 1;
  item.pszText[text.copy(item.pszText, room)] = L'\0';
}

}  // namespace kalvora
