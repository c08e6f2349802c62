#pragma once

#include <windows.h>

namespace kalvora {

/// Lets the messages of a window go to `object` until it is let go of with nullptr.
inline void keepObject(HWND window, void* object) noexcept {
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
}

template <typename Object>
Object* keptObject(HWND window) noexcept {
  return reinterpret_cast<Object*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

/// The procedure of windows whose messages go to the Object that is kept for them, if there is one.
template <typename Object, LRESULT (Object::*handle)(HWND, UINT, WPARAM, LPARAM) noexcept>
LRESULT CALLBACK controlProcedure(HWND window, UINT message, WPARAM wParam,
                                  LPARAM lParam) noexcept {
  auto* const self = keptObject<Object>(window);
  return self != nullptr ? (self->*handle)(window, message, wParam, lParam)
                         : DefWindowProcW(window, message, wParam, lParam);
}

/// The same for windows that CreateWindowExW is given the Object for: it hears the messages of
/// their creation already. What a dialog creates is given something else.
template <typename Object, LRESULT (Object::*handle)(HWND, UINT, WPARAM, LPARAM) noexcept>
LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message == WM_NCCREATE) {
    keepObject(window, reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
  }
  return controlProcedure<Object, handle>(window, message, wParam, lParam);
}

/// The procedure of dialogs whose messages, from WM_INITDIALOG on, go to the Object that is their
/// parameter.
template <typename Object, INT_PTR (Object::*handle)(HWND, UINT, WPARAM, LPARAM) noexcept>
INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message == WM_INITDIALOG) keepObject(dialog, reinterpret_cast<void*>(lParam));
  auto* const self = keptObject<Object>(dialog);
  return self != nullptr ? (self->*handle)(dialog, message, wParam, lParam) : FALSE;
}

}  // namespace kalvora
