#pragma once

#include <oleacc.h>
#include <windows.h>
#include <wrl/client.h>

namespace kalvora {

// What the program uses of the system's library for screen readers, which is loaded with the first
// call; a system without it has no such objects.

/// The object that tells of a part of a control, as OBJID_WINDOW.
HRESULT readersObjectOf(HWND control, LONG part, REFIID id, void** object);

/// That of its client area; null where there is none.
Microsoft::WRL::ComPtr<IAccessible> clientObjectOf(HWND control);

/// What the system tells of a window by itself; null where there is none.
Microsoft::WRL::ComPtr<IAccessible> standardObjectOf(HWND window);

/// The answer to WM_GETOBJECT that gives `object` to whoever asked; 0 where there is none.
LRESULT answerWith(IAccessible& object, WPARAM wParam);

}  // namespace kalvora
