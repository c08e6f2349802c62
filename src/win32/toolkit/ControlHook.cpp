#include "win32/toolkit/ControlHook.h"

#include <memory>
#include <new>

#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

/// What is kept for a hooked control, until it ends.
struct Hook {
  WNDPROC own;
  void* object;
};

WNDPROC replaceProcedure(HWND control, WNDPROC procedure) noexcept {
  return reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

}  // namespace

void hookControl(HWND control, WNDPROC hook, void* object) {
  std::unique_ptr<Hook> kept(new (std::nothrow) Hook);
  // A control without its hook is of use, too.
  if (kept == nullptr) return;
  kept->own = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(control, GWLP_WNDPROC));
  kept->object = object;
  keepObject(control, kept.release());
  replaceProcedure(control, hook);
}

LRESULT callHooked(HWND control, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  auto* const hook = keptObject<Hook>(control);
  if (message != WM_NCDESTROY) {
    return CallWindowProcW(hook->own, control, message, wParam, lParam);
  }
  const std::unique_ptr<Hook> last(hook);
  replaceProcedure(control, last->own);
  keepObject(control, nullptr);
  return CallWindowProcW(last->own, control, message, wParam, lParam);
}

void* hookObject(HWND control) noexcept {
  return keptObject<Hook>(control)->object;
}

}  // namespace kalvora
