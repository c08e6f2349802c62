#pragma once

#include <windows.h>

namespace kalvora {

/// Lets `hook` have the messages of a control first, once in its life; what it does not deal with
/// it gives to callHooked(). Subclassing by the common controls would do the same, but under Wine
/// costs three questions to the server for each message.
void hookControl(HWND control, WNDPROC hook, void* object = nullptr);

/// What the control itself does with a message.
LRESULT callHooked(HWND control, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

/// The object that the control was hooked for.
void* hookObject(HWND control) noexcept;

}  // namespace kalvora
