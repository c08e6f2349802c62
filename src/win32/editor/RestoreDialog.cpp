#include "win32/editor/RestoreDialog.h"

#include <array>

#include "notes/EditorControls.h"
#include "win32/editor/EditNotesIds.h"
#include "win32/platform/PlatformDateTexts.h"
#include "win32/toolkit/ListColumns.h"

namespace kalvora {

namespace {

enum Column { kName, kKind, kMoment };
constexpr std::array<const wchar_t*, 3> kHeadings = {L"Name", L"Kind", L"Kept"};

constexpr std::array<Anchor, 5> kAnchors = {{
    {IDC_COPIES, Sideways::Grow, Downwards::Stay},
    {IDC_COPY_WHEN, Sideways::Grow, Downwards::Stay},
    {IDC_COPY_TEXT, Sideways::Grow, Downwards::Grow},
    {IDOK, Sideways::Move, Downwards::Move},
    {IDCANCEL, Sideways::Move, Downwards::Move},
}};

}  // namespace

std::optional<std::size_t> RestoreDialog::ask() {
  runModal(IDD_RESTORE);
  return chosen_;
}

void RestoreDialog::opened() noexcept {
  if (!deliver_([this] { fill(); })) finish(false);
}

INT_PTR RestoreDialog::handle(HWND, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) finish(LOWORD(wParam) == IDOK);
      return TRUE;
    case WM_NOTIFY:
      onNotify(*reinterpret_cast<const NMHDR*>(lParam));
      return TRUE;
    default:
      return FALSE;
  }
}

void RestoreDialog::onNotify(const NMHDR& notification) noexcept {
  if (notification.idFrom != IDC_COPIES) return;
  if (notification.code == LVN_ITEMCHANGED) {
    EnableWindow(control(IDOK), selected() >= 0);
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
    const bool picked = (change.uNewState & LVIS_SELECTED) != 0;
    if (picked) deliver_([this] { showPicked(); });
  }
  // A double click beside the copies leaves none selected.
  if (notification.code == NM_DBLCLK) finish(true);
}

void RestoreDialog::finish(bool restore) noexcept {
  if (restore && selected() < 0) return;
  if (restore) chosen_ = static_cast<std::size_t>(selected());
  endModal();
}

void RestoreDialog::fill() {
  letGrow(kAnchors);
  // All of it, however long.
  SendDlgItemMessageW(window(), IDC_COPY_TEXT, EM_SETLIMITTEXT, 0, 0);
  ListView_SetExtendedListViewStyle(list(), LVS_EX_FULLROWSELECT);
  addListColumns(list(), kHeadings);
  addCopies();
  fitColumns();
  centreOnOwner();
  EnableWindow(control(IDOK), !copies_.empty());
  if (copies_.empty()) {
    SetDlgItemTextW(window(), IDC_COPIES_LABEL,
                    L"There are none yet: nothing was changed, deleted or left unsaved so far.");
  } else {
    ListView_SetItemState(list(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  }
  SetFocus(copies_.empty() ? control(IDCANCEL) : list());
}

void RestoreDialog::addCopies() const {
  const PlatformDateTexts dateTexts;
  for (std::size_t row = 0; row < copies_.size(); ++row) {
    LVITEMW item{};
    item.iItem = static_cast<int>(row);
    SendMessageW(list(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    setCell(row, kName, copies_[row].isDraft ? copies_[row].name + L" (draft)" : copies_[row].name);
    setCell(row, kKind, std::wstring(editorPage(copies_[row].kind).caption));
    setCell(row, kMoment, dateTexts.dateAndTime(copies_[row].when));
  }
}

/// Half of the room for the names, and for the kinds enough for the longest. The last column takes
/// what the others leave.
void RestoreDialog::fitColumns() const {
  RECT inside{};
  GetClientRect(list(), &inside);
  ListView_SetColumnWidth(list(), kName, inside.right / 2);
  constexpr int kMargins = 16;
  ListView_SetColumnWidth(list(), kKind, ListView_GetStringWidth(list(), L"Monthly") + kMargins);
  ListView_SetColumnWidth(list(), kMoment, LVSCW_AUTOSIZE_USEHEADER);
}

void RestoreDialog::showPicked() {
  const int picked = selected();
  if (picked < 0) return;
  const NotePreview preview = preview_(copies_[static_cast<std::size_t>(picked)]);
  const std::wstring when = preview.when.empty() ? L"" : L"Reminder: " + preview.when;
  SetDlgItemTextW(window(), IDC_COPY_WHEN, when.c_str());
  SetDlgItemTextW(window(), IDC_COPY_TEXT, preview.text.c_str());
}

void RestoreDialog::setCell(std::size_t row, int column, std::wstring text) const {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  SendMessageW(list(), LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

HWND RestoreDialog::list() const {
  return control(IDC_COPIES);
}

int RestoreDialog::selected() const {
  return ListView_GetNextItem(list(), -1, LVNI_SELECTED);
}

}  // namespace kalvora
