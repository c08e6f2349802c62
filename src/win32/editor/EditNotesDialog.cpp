#include "win32/editor/EditNotesDialog.h"

#include <commctrl.h>

#include "notes/All_Notes_frm.h"
#include "win32/editor/RestoreDialog.h"
#include "win32/toolkit/ControlText.h"
#include "win32/toolkit/DateBox.h"
#include "win32/toolkit/Keys.h"
#include "win32/toolkit/MessageBoxes.h"

namespace kalvora {

namespace {

constexpr std::array<Anchor, 7> kAnchors = {{
    {IDC_FINDWORDS, Sideways::Move, Downwards::Stay},
    {IDC_CMDFIND, Sideways::Move, Downwards::Stay},
    {IDC_TBSOPTIONS, Sideways::Grow, Downwards::Grow},
    {IDC_CMDRESTORE, Sideways::Stay, Downwards::Move},
    {IDC_NOTICE, Sideways::Grow, Downwards::Move},
    {IDC_CMDWHATCOMES, Sideways::Move, Downwards::Move},
    {IDC_CMDOK, Sideways::Move, Downwards::Move},
}};

HeldKeys heldKeys() {
  if (isDown(VK_SHIFT) || isDown(VK_MENU)) return HeldKeys::Other;
  return isDown(VK_CONTROL) ? HeldKeys::CtrlAlone : HeldKeys::None;
}

bool isListBox(const EditorControl& control) {
  return control.array == ControlArray::File_list_box;
}

constexpr UINT_PTR kDraftTimer = 1;

/// Fills a list box, or else a combo box, in one go.
void fill(HWND list, bool isBox, const std::vector<std::wstring>& items) {
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  SendMessageW(list, isBox ? LB_RESETCONTENT : CB_RESETCONTENT, 0, 0);
  std::size_t bytes = 0;
  for (const std::wstring& item : items) bytes += (item.size() + 1) * sizeof(wchar_t);
  SendMessageW(list, isBox ? LB_INITSTORAGE : CB_INITSTORAGE, items.size(),
               static_cast<LPARAM>(bytes));
  for (const std::wstring& item : items) {
    SendMessageW(list, isBox ? LB_ADDSTRING : CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(item.c_str()));
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

}  // namespace

void EditNotesDialog::open() {
  // It came from a list, and is not to write line ends into a note.
  enterHeldOn_ = isDown(VK_RETURN);
  if (window() != nullptr) {
    bringToFront();
    return;
  }
  try {
    create(IDD_EDIT_NOTES);
    letGrow(kAnchors);
    form_.Form_Load();
  } catch (...) {
    unload();
    throw;
  }
  bringToFront();
  SetFocus(handleOf(controlOf(ControlArray::File_list_box, NoteKind::Daily)));
}

void EditNotesDialog::createPages(NoteKinds kinds) {
  // The last time there may have been more of them.
  for (auto& page : pages_) page.reset();
  // All tabs first: they decide how much room the pages have.
  for (const NoteKind kind : kinds) createTab(kind);
  for (const NoteKind kind : kinds) createPage(kind);
}

void EditNotesDialog::createPage(NoteKind kind) {
  EditNotesPageEvents& events = *this;
  auto& page = pages_[static_cast<std::size_t>(kind)];
  page = std::make_unique<EditNotesPage>(window(), kind, events);
  page->setPlace(pagePlace());
  // In front of the tab control, on which it stands; so the Tab key goes from the page to the
  // buttons and from there to the tabs.
  SetWindowPos(page->window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void EditNotesDialog::createTab(NoteKind kind) {
  std::wstring caption(editorPage(kind).caption);
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = caption.data();
  SendMessageW(tabs(), TCM_INSERTITEMW, static_cast<WPARAM>(kind), reinterpret_cast<LPARAM>(&item));
}

RECT EditNotesDialog::pagePlace() const {
  RECT place{};
  GetWindowRect(tabs(), &place);
  MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
  SendMessageW(tabs(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&place));
  return place;
}

INT_PTR EditNotesDialog::handle(HWND, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_COMMAND:
      onCommand(wParam);
      return TRUE;
    case WM_NOTIFY:
      if (reinterpret_cast<const NMHDR*>(lParam)->code == TCN_SELCHANGE) onTab();
      return TRUE;
    case WM_TIMER:
      deliver_([this] { form_.Draft_Timer(); });
      return TRUE;
    default:
      return FALSE;
  }
}

void EditNotesDialog::onCommand(WPARAM wParam) noexcept {
  const WORD id = LOWORD(wParam);
  if (id == IDC_CMDRESTORE) deliver_([this] { form_.cmdRestore(); });
  if (id == IDC_CMDWHATCOMES) deliver_([this] { form_.cmdWhatComes(); });
  // Enter comes as IDOK; elsewhere it has nothing to do here.
  const bool enterInField = id == IDOK && GetFocus() == control(IDC_FINDWORDS);
  if (id == IDC_CMDFIND || enterInField) find();
  // Esc and the closing box come as IDCANCEL.
  if (id == IDC_CMDOK || id == IDCANCEL) close();
}

void EditNotesDialog::find() noexcept {
  deliver_([this] { form_.cmdFind(textOf(control(IDC_FINDWORDS))); });
}

void EditNotesDialog::onTab() noexcept {
  const auto tab = static_cast<NoteKind>(SendMessageW(tabs(), TCM_GETCURSEL, 0, 0));
  deliver_([&] { form_.tbsOptions_Click(tab); });
}

void EditNotesDialog::resized() noexcept {
  const RECT place = pagePlace();
  for (const auto& page : pages_) {
    if (page) page->setPlace(place);
  }
}

void EditNotesDialog::close() noexcept {
  deliver_([this] { form_.cmdOK(); });
}

bool EditNotesDialog::takesMessage(MSG& message) noexcept {
  const bool ours = message.hwnd == window() || IsChild(window(), message.hwnd);
  if (ours && message.message == WM_KEYDOWN && keyDown(message)) return true;
  return DialogFrame::takesMessage(message);
}

bool EditNotesDialog::keyDown(const MSG& message) noexcept {
  if (!isRepeated(message)) enterHeldOn_ = false;
  if (enterHeldOn_ && message.wParam == VK_RETURN) return true;
  bool taken = false;
  deliver_([&] { taken = form_.Form_KeyDown(static_cast<int>(message.wParam), heldKeys()); });
  return taken;
}

void EditNotesDialog::onPageCommand(const EditorControl& control, int notification) noexcept {
  if (setting_) return;
  const auto kind = static_cast<NoteKind>(control.index);
  deliver_([&] {
    if (tellsOfChange(control, notification)) form_.fieldChanged();
    switch (control.array) {
      case ControlArray::File_list_box:
        if (notification == LBN_SELCHANGE) form_.File_list_box_Click(kind);
        break;
      case ControlArray::FName:
        if (notification == EN_CHANGE) form_.FName_Change(kind);
        break;
      case ControlArray::cmdNew:
        if (notification == BN_CLICKED) form_.cmdNew(kind);
        break;
      case ControlArray::cmdSave:
        if (notification == BN_CLICKED) form_.cmdSave(kind);
        break;
      case ControlArray::cmdDel:
        if (notification == BN_CLICKED) form_.cmdDel(kind);
        break;
      default:
        if (isNumberList(control) && notification == CBN_EDITCHANGE) {
          form_.numberList_Change(control);
        }
        break;
    }
  });
}

HWND EditNotesDialog::handleOf(const EditorControl& control) const {
  const EditNotesPage* const owner = page(kindOf(control));
  return owner != nullptr ? owner->control(control) : nullptr;
}

std::wstring EditNotesDialog::text(const EditorControl& control) const {
  return textOf(handleOf(control));
}

void EditNotesDialog::setText(const EditorControl& control, std::wstring_view text) {
  // A long text takes its time each time that it is laid out.
  if (control.array == ControlArray::Zawartosc && this->text(control) == text) return;
  setting_ = true;
  SetWindowTextW(handleOf(control), std::wstring(text).c_str());
  setting_ = false;
}

std::size_t EditNotesDialog::caret(const EditorControl& control) const {
  DWORD end = 0;
  SendMessageW(handleOf(control), isNumberList(control) ? CB_GETEDITSEL : EM_GETSEL, 0,
               reinterpret_cast<LPARAM>(&end));
  return end;
}

void EditNotesDialog::setCaret(const EditorControl& control, std::size_t caret) {
  const HWND box = handleOf(control);
  if (isNumberList(control)) {
    SendMessageW(box, CB_SETEDITSEL, 0, MAKELPARAM(caret, caret));
  } else {
    SendMessageW(box, EM_SETSEL, caret, static_cast<LPARAM>(caret));
  }
}

int EditNotesDialog::selection(const EditorControl& control) const {
  return static_cast<int>(
      SendMessageW(handleOf(control), isListBox(control) ? LB_GETCURSEL : CB_GETCURSEL, 0, 0));
}

void EditNotesDialog::select(const EditorControl& control, int position) {
  SendMessageW(handleOf(control), isListBox(control) ? LB_SETCURSEL : CB_SETCURSEL,
               static_cast<WPARAM>(position), 0);
}

void EditNotesDialog::setItems(const EditorControl& control,
                               const std::vector<std::wstring>& items) {
  fill(handleOf(control), isListBox(control), items);
}

std::chrono::year_month_day EditNotesDialog::date(const EditorControl& control) const {
  return dateIn(handleOf(control));
}

void EditNotesDialog::setDate(const EditorControl& control, std::chrono::year_month_day date) {
  setting_ = true;
  showDateIn(handleOf(control), date);
  setting_ = false;
}

bool EditNotesDialog::ticked(const EditorControl& control) const {
  return SendMessageW(handleOf(control), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void EditNotesDialog::setTicked(const EditorControl& control, bool ticked) {
  SendMessageW(handleOf(control), BM_SETCHECK, ticked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void EditNotesDialog::setEnabled(const EditorControl& control, bool enabled) {
  EnableWindow(handleOf(control), enabled);
}

void EditNotesDialog::showPage(NoteKind kind) {
  SendMessageW(tabs(), TCM_SETCURSEL, static_cast<WPARAM>(kind), 0);
  const HWND focus = GetFocus();
  bool focusLost = false;
  for (const NoteKind other : kNoteKinds) {
    if (page(other) == nullptr) continue;
    focusLost = focusLost || (other != kind && IsChild(page(other)->window(), focus));
    page(other)->setShown(other == kind);
  }
  // The control that had the keyboard went out of sight with its page.
  if (focusLost) SetFocus(handleOf(controlOf(ControlArray::File_list_box, kind)));
}

/// By way of the dialog, which also takes the look of the default one from a button.
void EditNotesDialog::goTo(HWND box) {
  SendMessageW(window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(box), TRUE);
}

void EditNotesDialog::startNaming(NoteKind kind) {
  const HWND box = handleOf(controlOf(ControlArray::FName, kind));
  if (!IsWindowVisible(box)) return;
  goTo(box);
  SendMessageW(box, EM_SETSEL, 0, -1);
}

void EditNotesDialog::showPiece(const EditorControl& control, std::size_t begin,
                                std::size_t length) {
  const HWND box = handleOf(control);
  goTo(box);
  SendMessageW(box, EM_SETSEL, begin, static_cast<LPARAM>(begin + length));
  SendMessageW(box, EM_SCROLLCARET, 0, 0);
}

void EditNotesDialog::startFinding() {
  const HWND field = control(IDC_FINDWORDS);
  goTo(field);
  SendMessageW(field, EM_SETSEL, 0, -1);
}

void EditNotesDialog::setNotice(std::wstring_view text) {
  SetDlgItemTextW(window(), IDC_NOTICE, std::wstring(text).c_str());
}

void EditNotesDialog::startDraftTimer(int interval) {
  SetTimer(window(), kDraftTimer, static_cast<UINT>(interval), nullptr);
}

void EditNotesDialog::stopDraftTimer() {
  KillTimer(window(), kDraftTimer);
}

std::optional<std::size_t> EditNotesDialog::chooseCopy(const std::vector<SafetyCopy>& copies,
                                                       const CopyPreview& preview) {
  const std::optional<std::size_t> chosen =
      RestoreDialog(window(), dialogs(), deliver_, copies, preview).ask();
  // The program can have ended meanwhile.
  return window() != nullptr ? chosen : std::nullopt;
}

void EditNotesDialog::showError(std::wstring_view title, std::wstring_view text) {
  showCriticalMessage(title, text);
}

bool EditNotesDialog::ask(std::wstring_view title, std::wstring_view text) {
  return askOkCancel(title, text);
}

}  // namespace kalvora
