#include "win32/editor/RestoreDialog.h"

#include <array>

#include "notes/EditorControls.h"
#include "win32/editor/EditNotesIds.h"
#include "win32/platform/PlatformDateTexts.h"
#include "win32/toolkit/WindowProcedure.h"

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

std::optional<std::size_t> RestoreDialog::ask(HWND owner) {
  DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_RESTORE), owner,
                  dialogProcedure<RestoreDialog, &RestoreDialog::handle>,
                  reinterpret_cast<LPARAM>(this));
  return chosen_;
}

INT_PTR RestoreDialog::handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_INITDIALOG:
      window_ = dialog;
      if (!guard_.run([this] { create(); })) finish(false);
      return FALSE;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) finish(LOWORD(wParam) == IDOK);
      return TRUE;
    case WM_SIZE:
      onSize();
      return TRUE;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = smallest_;
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
    EnableWindow(GetDlgItem(window_, IDOK), selected() >= 0);
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
    const bool picked = (change.uNewState & LVIS_SELECTED) != 0;
    if (picked) guard_.run([this] { showPicked(); });
  }
  // A double click beside the copies leaves none selected.
  if (notification.code == NM_DBLCLK) finish(true);
}

void RestoreDialog::finish(bool restore) noexcept {
  if (restore && selected() < 0) return;
  if (restore) chosen_ = static_cast<std::size_t>(selected());
  EndDialog(window_, 0);
}

void RestoreDialog::create() {
  layout_.attach(window_, kAnchors);
  RECT place{};
  GetWindowRect(window_, &place);
  smallest_ = {place.right - place.left, place.bottom - place.top};
  // All of it, however long.
  SendDlgItemMessageW(window_, IDC_COPY_TEXT, EM_SETLIMITTEXT, 0, 0);
  ListView_SetExtendedListViewStyle(list(), LVS_EX_FULLROWSELECT);
  addColumns();
  addCopies();
  fitColumns();
  centre();
  EnableWindow(GetDlgItem(window_, IDOK), !copies_.empty());
  if (copies_.empty()) {
    SetDlgItemTextW(window_, IDC_COPIES_LABEL,
                    L"There are none yet: nothing was changed, deleted or left unsaved so far.");
  } else {
    ListView_SetItemState(list(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  }
  SetFocus(copies_.empty() ? GetDlgItem(window_, IDCANCEL) : list());
}

void RestoreDialog::addColumns() const {
  for (std::size_t i = 0; i < kHeadings.size(); ++i) {
    std::wstring heading = kHeadings[i];
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = heading.data();
    column.iSubItem = static_cast<int>(i);
    SendMessageW(list(), LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
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
  SetDlgItemTextW(window_, IDC_COPY_WHEN, when.c_str());
  SetDlgItemTextW(window_, IDC_COPY_TEXT, preview.text.c_str());
}

void RestoreDialog::onSize() noexcept {
  if (IsIconic(window_)) return;
  layout_.apply();
  fitColumns();
}

void RestoreDialog::setCell(std::size_t row, int column, std::wstring text) const {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  SendMessageW(list(), LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void RestoreDialog::centre() const {
  RECT owner{};
  RECT own{};
  GetWindowRect(GetWindow(window_, GW_OWNER), &owner);
  GetWindowRect(window_, &own);
  SetWindowPos(window_, nullptr, (owner.left + owner.right - (own.right - own.left)) / 2,
               (owner.top + owner.bottom - (own.bottom - own.top)) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND RestoreDialog::list() const {
  return GetDlgItem(window_, IDC_COPIES);
}

int RestoreDialog::selected() const {
  return ListView_GetNextItem(list(), -1, LVNI_SELECTED);
}

}  // namespace kalvora
