#include "win32/editor/EditNotesPage.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <array>

#include "base/Errors.h"
#include "win32/editor/EditNotesIds.h"
#include "win32/platform/SystemFunction.h"
#include "win32/toolkit/ControlHook.h"
#include "win32/toolkit/DateBox.h"
#include "win32/toolkit/VisualStyles.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

constexpr int kFirstControl = IDC_FILE_LIST_BOX;
constexpr int kArrayStep = 10;
constexpr auto kLastArray = ControlArray::OnceDate;
static_assert(IDC_ONCEDATE == kFirstControl + kArrayStep * static_cast<int>(kLastArray));

// What a file name can be long, without its extension.
constexpr WPARAM kLongestName = 251;

constexpr wchar_t kCtrlA = 1;

std::array<Anchor, 8> anchorsOf(NoteKind kind) {
  const auto id = [kind](ControlArray array) { return idOf(controlOf(array, kind)); };
  return {{
      {id(ControlArray::File_list_box), Sideways::Stay, Downwards::Grow},
      {id(ControlArray::FName), Sideways::Grow, Downwards::Stay},
      // Where the page has one.
      {idOf({ControlArray::MonthY, 0}), Sideways::Grow, Downwards::Stay},
      {idOf({ControlArray::OnceDate, 0}), Sideways::Grow, Downwards::Stay},
      {id(ControlArray::Zawartosc), Sideways::Grow, Downwards::Grow},
      {id(ControlArray::cmdNew), Sideways::Move, Downwards::Move},
      {id(ControlArray::cmdSave), Sideways::Move, Downwards::Move},
      {id(ControlArray::cmdDel), Sideways::Move, Downwards::Move},
  }};
}

}  // namespace

int idOf(const EditorControl& control) {
  return kFirstControl + kArrayStep * static_cast<int>(control.array) + control.index;
}

std::optional<EditorControl> editorControlOf(int id) {
  const int number = id - kFirstControl;
  if (number < 0 || number / kArrayStep > static_cast<int>(kLastArray)) {
    return std::nullopt;
  }
  return EditorControl{static_cast<ControlArray>(number / kArrayStep), number % kArrayStep};
}

bool tellsOfChange(const EditorControl& control, int notification) {
  switch (control.array) {
    case ControlArray::FName:
    case ControlArray::Zawartosc:
      return notification == EN_CHANGE;
    case ControlArray::Check1:
      return notification == BN_CLICKED;
    case ControlArray::OnceDate:
      return notification == kDatePicked;
    case ControlArray::File_list_box:
    case ControlArray::cmdNew:
    case ControlArray::cmdSave:
    case ControlArray::cmdDel:
      return false;
    default:
      return notification == CBN_EDITCHANGE || notification == CBN_SELCHANGE;
  }
}

EditNotesPage::EditNotesPage(HWND parent, NoteKind kind, EditNotesPageEvents& events)
    : kind_(kind), events_(events) {
  const VisualStyles styles;
  if (kind == NoteKind::Once) registerControls(ICC_DATE_CLASSES);
  CreateDialogParamW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_NOTE_PAGE + static_cast<int>(kind)), parent,
      dialogProcedure<EditNotesPage, &EditNotesPage::handle>, reinterpret_cast<LPARAM>(this));
  if (window_ == nullptr) throw Failure(L"A page of the note editor cannot be created.");
}

void EditNotesPage::setPlace(const RECT& place) const {
  SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void EditNotesPage::prepareControls() {
  // The page looks like the inside of its tab, where the system's theme draws one.
  const auto enable = systemFunction<decltype(EnableThemeDialogTexture)>(
      L"uxtheme.dll", "EnableThemeDialogTexture");
  if (enable != nullptr) enable(window_, ETDT_ENABLETAB);
  layout_.attach(window_, anchorsOf(kind_));
  const HWND text = control(controlOf(ControlArray::Zawartosc, kind_));
  // As much as the user likes: what is too much for a note is told when it is saved.
  SendMessageW(text, EM_SETLIMITTEXT, 0, 0);
  hookControl(text, textProcedure);
  hookControl(control(controlOf(ControlArray::File_list_box, kind_)), listProcedure, this);
  SendMessageW(control(controlOf(ControlArray::FName, kind_)), EM_SETLIMITTEXT, kLongestName, 0);
  if (kind_ == NoteKind::Once) prepareDateBox(control({ControlArray::OnceDate, 0}));
}

INT_PTR EditNotesPage::handle(HWND page, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_INITDIALOG:
      window_ = page;
      prepareControls();
      // The focus is the dialog's affair.
      return FALSE;
    case WM_COMMAND:
      onCommand(wParam);
      return TRUE;
    case WM_NOTIFY:
      onNotify(*reinterpret_cast<const NMHDR*>(lParam));
      return FALSE;
    case WM_SIZE:
      layout_.apply();
      return TRUE;
    case WM_NEXTDLGCTL:
      // The Tab key in the text asks its page; the next control may be the dialog's.
      SendMessageW(GetParent(window_), WM_NEXTDLGCTL, wParam, lParam);
      return TRUE;
    case WM_NCDESTROY:
      keepObject(window_, nullptr);
      window_ = nullptr;
      return FALSE;
    default:
      return FALSE;
  }
}

void EditNotesPage::onCommand(WPARAM wParam) noexcept {
  if (LOWORD(wParam) == IDCANCEL) {
    events_.onPageCancel();
    return;
  }
  const auto control = editorControlOf(LOWORD(wParam));
  if (!control) return;
  const bool isList = control->array == ControlArray::File_list_box;
  if (isList && HIWORD(wParam) == LBN_SELCHANGE) selectionTold_ = true;
  events_.onPageCommand(*control, HIWORD(wParam));
}

void EditNotesPage::onNotify(const NMHDR& notification) noexcept {
  const auto control = editorControlOf(static_cast<int>(notification.idFrom));
  if (control) events_.onPageCommand(*control, static_cast<int>(notification.code));
}

// A click on the name that is selected already reads its note again, which brings back what was
// typed over. Not every system tells of such a click.
LRESULT CALLBACK EditNotesPage::listProcedure(HWND list, UINT message, WPARAM wParam,
                                              LPARAM lParam) noexcept {
  auto* const self = static_cast<EditNotesPage*>(hookObject(list));
  if (message == WM_LBUTTONDOWN) self->selectionTold_ = false;
  const LRESULT result = callHooked(list, message, wParam, lParam);
  if (message == WM_LBUTTONUP) self->tellClickOnSelected(list, lParam);
  return result;
}

void EditNotesPage::tellClickOnSelected(HWND list, LPARAM point) noexcept {
  if (selectionTold_) return;
  const LRESULT item = SendMessageW(list, LB_ITEMFROMPOINT, 0, point);
  const bool onSelected =
      HIWORD(item) == 0 && LOWORD(item) == SendMessageW(list, LB_GETCURSEL, 0, 0);
  if (onSelected)
    events_.onPageCommand(controlOf(ControlArray::File_list_box, kind_), LBN_SELCHANGE);
}

// Coming to the text with the Tab key must not select it all: the next key would wipe it out.
LRESULT CALLBACK EditNotesPage::textProcedure(HWND text, UINT message, WPARAM wParam,
                                              LPARAM lParam) noexcept {
  if (message == WM_CHAR && wParam == kCtrlA) {
    SendMessageW(text, EM_SETSEL, 0, -1);
    return 0;
  }
  const LRESULT result = callHooked(text, message, wParam, lParam);
  return message == WM_GETDLGCODE ? result & ~DLGC_HASSETSEL : result;
}

}  // namespace kalvora
