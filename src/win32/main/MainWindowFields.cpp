#include "win32/main/MainWindowFields.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"
#include "skin/FieldLetters.h"
#include "skin/WindowPicture.h"
#include "win32/toolkit/BitmapOf.h"
#include "win32/toolkit/BufferedDc.h"
#include "win32/toolkit/ControlHook.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {

namespace {

constexpr int kFirstControlId = 1001;

struct ControlKind {
  const wchar_t* className;
  DWORD style;
};

ControlKind kindOf(FieldId field) {
  switch (field) {
    case FieldId::Text2:
      return {L"EDIT", WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | ES_NOHIDESEL};
    case FieldId::AmPmLabel:
      return {L"STATIC", SS_NOTIFY | SS_NOPREFIX};
    case FieldId::Text1:
    case FieldId::Text3:
      break;
  }
  return {L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL};
}

UniqueFont fontOf(int letters) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  LOGFONTW font = metrics.lfMessageFont;
  font.lfHeight = -letters;
  return UniqueFont(CreateFontIndirectW(&font));
}

/// In pixels.
int lineHeightOf(HWND control, HFONT font) {
  const HDC context = GetDC(control);
  TEXTMETRICW metrics{};
  {
    const SelectedObject selected(context, font);
    GetTextMetricsW(context, &metrics);
  }
  ReleaseDC(control, context);
  return std::max(1L, metrics.tmHeight);
}

}  // namespace

std::optional<FieldId> MainWindowFields::fieldOf(int controlId) {
  const int index = controlId - kFirstControlId;
  if (index < 0 || index > static_cast<int>(FieldId::AmPmLabel)) return std::nullopt;
  return static_cast<FieldId>(index);
}

int MainWindowFields::controlIdOf(FieldId field) {
  return kFirstControlId + static_cast<int>(field);
}

LRESULT CALLBACK MainWindowFields::hook(HWND control, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept {
  // A field would keep the wheel for itself, and without a scroll bar do nothing with it.
  if (message == WM_MOUSEWHEEL) return SendMessageW(GetParent(control), message, wParam, lParam);
  auto* const self = static_cast<MainWindowFields*>(hookObject(control));
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
    self->listener_(control, message, wParam, lParam);
  }
  const LRESULT result = callHooked(control, message, wParam, lParam);
  if (control == self->control(FieldId::Text2)) self->textScroll_.follow(message);
  return result;
}

void MainWindowFields::create(HWND parent, MouseListener listener) {
  listener_ = std::move(listener);
  // In the order of the Tab key: title, text, time. Where a skin lays one over another the earlier
  // one is in front, and a later one does not paint over it.
  for (const FieldId id : {FieldId::Text1, FieldId::Text2, FieldId::Text3, FieldId::AmPmLabel}) {
    const ControlKind kind = kindOf(id);
    HWND control = CreateWindowExW(
        0, kind.className, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | kind.style, 0, 0, 0, 0,
        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(controlIdOf(id))),
        GetModuleHandleW(nullptr), nullptr);
    if (control == nullptr) throw Failure(L"A text field cannot be created.");
    // No end of its own: what is pasted is cut nowhere, and what is too large to save is told then.
    if (id != FieldId::AmPmLabel) SendMessageW(control, EM_SETLIMITTEXT, 0, 0);
    (*this)[id].control = control;
    hookControl(control, hook, this);
  }
  textScroll_.attach(control(FieldId::Text2));
}

std::wstring MainWindowFields::text(FieldId field) const {
  return textOf((*this)[field].control);
}

void MainWindowFields::setText(FieldId field, std::wstring_view text) {
  if (this->text(field) == text) return;
  SetWindowTextW((*this)[field].control, std::wstring(text).c_str());
}

TextSelection MainWindowFields::selection(FieldId field) const {
  DWORD begin = 0;
  DWORD end = 0;
  SendMessageW((*this)[field].control, EM_GETSEL, reinterpret_cast<WPARAM>(&begin),
               reinterpret_cast<LPARAM>(&end));
  return {begin, end};
}

void MainWindowFields::setSelection(FieldId field, TextSelection selection) {
  const HWND control = (*this)[field].control;
  SendMessageW(control, EM_SETSEL, selection.begin, static_cast<LPARAM>(selection.end));
  SendMessageW(control, EM_SCROLLCARET, 0, 0);
}

void MainWindowFields::setLook(FieldId field, const FieldLook& look) {
  Field& own = (*this)[field];
  const Rect before = std::exchange(own.place, fieldRect(look));
  own.textColor = look.textColor;
  own.backgroundColor = look.backgroundColor.value_or(0);
  own.background =
      UniqueBrush(look.backgroundColor ? CreateSolidBrush(*look.backgroundColor) : nullptr);
  if (own.place != before) {
    const Rect box = field == FieldId::Text2 ? textRectBesideScroll(own.place) : own.place;
    MoveWindow(own.control, box.x, box.y, box.width, box.height, TRUE);
  }
  if (field == FieldId::Text2) textScroll_.setLook(look);
  if (field != FieldId::Text2) setLetters(field, fieldLetters(own.place.height));
  if (field == FieldId::Text1) setLetters(FieldId::Text2, noteTextLetters(own.place.height));
  InvalidateRect(own.control, nullptr, TRUE);
}

void MainWindowFields::setLetters(FieldId field, int height) {
  Field& own = (*this)[field];
  // With every font, the same one too, the whole of a long text is laid out anew.
  if (own.letters == height) return;
  own.letters = height;
  UniqueFont font = fontOf(height);
  SendMessageW(own.control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  own.font = std::move(font);
  if (field == FieldId::Text2) textScroll_.setLineHeight(lineHeightOf(own.control, own.font.get()));
}

void MainWindowFields::setEditing(FieldId field, Editing editing) {
  SendMessageW((*this)[field].control, EM_SETREADONLY, editing == Editing::Locked, 0);
}

void MainWindowFields::setVisibility(FieldId field, Visibility visibility) {
  const HWND control = (*this)[field].control;
  const bool shown = (GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown == (visibility == Visibility::Shown)) return;
  if (field == FieldId::Text2) textScroll_.setVisibility(visibility);
  ShowWindow(control, shown ? SW_HIDE : SW_SHOWNA);
}

HBRUSH MainWindowFields::colors(HDC context, FieldId field, const Image& ground) {
  Field& own = (*this)[field];
  SetTextColor(context, own.textColor);
  if (field == FieldId::AmPmLabel) {
    SetBkMode(context, TRANSPARENT);
    const UniqueBitmap piece = bitmapOf(ground.crop(own.place));
    own.background = UniqueBrush(piece ? CreatePatternBrush(piece.get()) : nullptr);
  } else {
    SetBkColor(context, own.backgroundColor);
  }
  return own.background ? own.background.get() : static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
}

}  // namespace kalvora
