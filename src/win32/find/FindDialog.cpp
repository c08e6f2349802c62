#include "win32/find/FindDialog.h"

#include <array>

#include "find/FindNotes.h"
#include "win32/find/FindIds.h"
#include "win32/toolkit/ControlText.h"
#include "win32/toolkit/Keys.h"
#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

namespace {

constexpr std::array<const wchar_t*, 3> kHeadings = {L"Name", L"Kind", L"Text"};
// Names can be longer than any column; the texts have what is left.
constexpr std::array<const wchar_t*, 3> kWidest = {L"Water the plants on the balcony", L"Monthly",
                                                   L""};

constexpr std::array<Anchor, 4> kAnchors = {{
    {IDC_FIND_WORDS, Sideways::Grow, Downwards::Stay},
    {IDC_FIND_ROWS, Sideways::Grow, Downwards::Grow},
    {IDC_FIND_NOTICE, Sideways::Grow, Downwards::Move},
    {IDCANCEL, Sideways::Move, Downwards::Move},
}};

constexpr UINT_PTR kTimer = 1;
constexpr UINT kOpenRow = WM_APP + 1;  // wParam: the number of the row

}  // namespace

void FindDialog::open(std::wstring_view words) {
  const bool opened = window() == nullptr;
  if (opened) create();
  if (!words.empty()) SetWindowTextW(field(), std::wstring(words).c_str());
  if (opened) {
    try {
      form_.Form_Load();
    } catch (...) {
      unload();
      throw;
    }
    centre();
  }
  bringToFront();
  goToField();
}

void FindDialog::create() {
  registerControls(ICC_LISTVIEW_CLASSES);
  DialogFrame::create(IDD_FIND);
  letGrow(kAnchors);
  rows_.attach(control(IDC_FIND_ROWS), kHeadings, kWidest);
}

INT_PTR FindDialog::handle(HWND, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_COMMAND:
      onCommand(wParam);
      return TRUE;
    case WM_NOTIFY: {
      auto& notification = *reinterpret_cast<NMHDR*>(lParam);
      if (notification.idFrom == IDC_FIND_ROWS) onRowsNotify(notification);
      return TRUE;
    }
    case WM_TIMER:
      deliver_([this] { form_.tick(); });
      return TRUE;
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) deliver_([this] { form_.activated(); });
      // The platform gives the keyboard back to its control.
      return FALSE;
    case kOpenRow:
      openRow(wParam);
      return TRUE;
    default:
      return FALSE;
  }
}

void FindDialog::onCommand(WPARAM wParam) noexcept {
  if (LOWORD(wParam) == IDCANCEL) deliver_([this] { form_.unload(); });
  // Enter, wherever the keyboard is.
  if (LOWORD(wParam) == IDOK) openRow(selectedRow().value_or(0));
  if (LOWORD(wParam) == IDC_FIND_WORDS && HIWORD(wParam) == EN_CHANGE) {
    deliver_([this] { form_.search(); });
  }
}

void FindDialog::onRowsNotify(NMHDR& notification) noexcept {
  if (notification.code == LVN_GETDISPINFOW) {
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(notification).item;
    if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
    deliver_([&] {
      RowList::answer(item, form_.text(static_cast<std::size_t>(item.iItem),
                                       static_cast<FindColumn>(item.iSubItem)));
    });
  } else if (notification.code == LVN_ODFINDITEMW) {
    // A letter typed in the list leads nowhere; without an answer, to the first row.
    SetWindowLongPtrW(window(), DWLP_MSGRESULT, -1);
  } else if (const auto row = rows_.clickedRow(notification)) {
    PostMessageW(window(), kOpenRow, *row, 0);
  }
}

void FindDialog::openRow(std::size_t row) noexcept {
  deliver_([&] { form_.openRow(row); });
}

bool FindDialog::takesMessage(MSG& message) noexcept {
  if (rows_.isSecondClick(message)) return true;
  const bool ours = message.hwnd == window() || IsChild(window(), message.hwnd);
  if (ours && message.message == WM_KEYDOWN && keyDown(message)) return true;
  return DialogFrame::takesMessage(message);
}

/// Down goes from the field to the rows; up from the first row, and Ctrl+F, to the field.
bool FindDialog::keyDown(const MSG& message) noexcept {
  // The Enter that led here opens no row.
  if (message.wParam == VK_RETURN && isRepeated(message)) return true;
  if (isDown(VK_SHIFT) || isDown(VK_MENU)) return false;
  const bool control = isDown(VK_CONTROL);
  const bool toRows = !control && message.wParam == VK_DOWN && message.hwnd == field();
  const bool upFromFirst = !control && message.wParam == VK_UP && message.hwnd == rows_.window() &&
                           selectedRow().value_or(0) == 0;
  if (toRows) goToRows();
  const bool toField = upFromFirst || (control && message.wParam == 'F');
  if (toField) goToField();
  return toRows || toField;
}

void FindDialog::goToField() const {
  SetFocus(field());
  SendMessageW(field(), EM_SETSEL, 0, -1);
}

void FindDialog::goToRows() const {
  SetFocus(rows_.window());
  if (!selectedRow() && ListView_GetItemCount(rows_.window()) > 0) rows_.selectRow(0);
}

std::wstring FindDialog::words() const {
  return textOf(field());
}

void FindDialog::setNotice(std::wstring_view text) {
  SetDlgItemTextW(window(), IDC_FIND_NOTICE, std::wstring(text).c_str());
}

void FindDialog::setTimer(int interval) {
  SetTimer(window(), kTimer, static_cast<UINT>(interval), nullptr);
}

HWND FindDialog::field() const {
  return control(IDC_FIND_WORDS);
}

}  // namespace kalvora
