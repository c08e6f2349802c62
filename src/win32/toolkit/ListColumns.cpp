#include "win32/toolkit/ListColumns.h"

#include <commctrl.h>

#include <cstddef>
#include <string>

namespace kalvora {

void addListColumns(HWND list, std::span<const wchar_t* const> headings) {
  for (std::size_t i = 0; i < headings.size(); ++i) {
    std::wstring heading = headings[i];
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = heading.data();
    column.iSubItem = static_cast<int>(i);
    SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

}  // namespace kalvora
