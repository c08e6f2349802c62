#pragma once

#include <windows.h>

namespace kalvora {

/// What sets a window class apart; the others of its properties are the same for all.
struct WindowClassLook {
  UINT style = 0;
  HBRUSH ground = nullptr;  // nobody's: the class does not own it
  bool icon = false;        // the program's, for windows of which something shows it
};

/// Registers a class of windows with the arrow for a pointer. One that is there already stays as it
/// is.
void registerWindowClass(const wchar_t* name, WNDPROC procedure, const WindowClassLook& look = {});

}  // namespace kalvora
