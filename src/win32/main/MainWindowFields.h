#pragma once

#include <windows.h>

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "app/Form1View.h"
#include "base/Image.h"
#include "win32/main/TextScrollStrip.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {

/// The four text controls on the main window, dressed as the skin asks.
class MainWindowFields {
 public:
  /// What hears of the mouse over a control, by its messages.
  using MouseListener = std::function<void(HWND control, UINT message, WPARAM, LPARAM)>;

  /// `guard` must outlive this object.
  explicit MainWindowFields(EventGuard& guard) : textScroll_(guard) {}
  /// Creates the controls as children of `parent`, which owns them.
  void create(HWND parent, MouseListener listener);

  HWND control(FieldId field) const { return (*this)[field].control; }
  std::wstring text(FieldId field) const;
  bool isEmpty(FieldId field) const { return GetWindowTextLengthW(control(field)) == 0; }
  void setText(FieldId field, std::wstring_view text);
  std::size_t caret(FieldId field) const { return selection(field).end; }
  void setCaret(FieldId field, std::size_t caret) { setSelection(field, {caret, caret}); }
  TextSelection selection(FieldId field) const;
  void setSelection(FieldId field, TextSelection selection);
  void setLook(FieldId field, const FieldLook& look);
  void setEditing(FieldId field, Editing editing);
  void setVisibility(FieldId field, Visibility visibility);

  /// Which field a control is, by its control identifier.
  static std::optional<FieldId> fieldOf(int controlId);
  static int controlIdOf(FieldId field);
  /// Where a field stands in the window.
  Rect place(FieldId field) const { return (*this)[field].place; }

  /// Answers WM_CTLCOLOREDIT and WM_CTLCOLORSTATIC: the field's colours, and for the label, which
  /// has no ground of its own, `ground`, the piece of the window's picture beneath it.
  HBRUSH colors(HDC context, FieldId field, const Image& ground);

 private:
  struct Field {
    HWND control = nullptr;
    Rect place;
    COLORREF textColor = 0;
    COLORREF backgroundColor = 0;
    UniqueBrush background;
    UniqueFont font;
    int letters = 0;  // the height of its letters
  };

  static LRESULT CALLBACK hook(HWND control, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void setLetters(FieldId field, int height);

  Field& operator[](FieldId field) { return fields_[static_cast<std::size_t>(field)]; }
  const Field& operator[](FieldId field) const { return fields_[static_cast<std::size_t>(field)]; }

  std::array<Field, 4> fields_;
  MouseListener listener_;
  TextScrollStrip textScroll_;
};

}  // namespace kalvora
