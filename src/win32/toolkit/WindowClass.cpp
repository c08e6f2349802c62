#include "win32/toolkit/WindowClass.h"

#include "win32/toolkit/ProgramIcon.h"

namespace kalvora {

void registerWindowClass(const wchar_t* name, WNDPROC procedure, const WindowClassLook& look) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.style = look.style;
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  if (look.icon) {
    description.hIcon = LoadIconW(description.hInstance, MAKEINTRESOURCEW(IDI_KALVORA));
  }
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = look.ground;
  description.lpszClassName = name;
  RegisterClassExW(&description);
}

}  // namespace kalvora
