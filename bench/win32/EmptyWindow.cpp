// The least that a program with a window can do: what any other program is measured beside.
//
//   empty-window          shows an empty window until it is closed
//   empty-window tray     puts an icon into the tray first

#include <windows.h>

#include <shellapi.h>

#include <cwchar>

namespace {

constexpr wchar_t kName[] = L"Empty";

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, first, second);
}

HWND createWindow(HINSTANCE program) {
  WNDCLASSW kind{};
  kind.lpfnWndProc = procedure;
  kind.hInstance = program;
  kind.lpszClassName = kName;
  RegisterClassW(&kind);
  return CreateWindowExW(0, kName, kName, WS_OVERLAPPEDWINDOW, 100, 100, 400, 300, nullptr, nullptr,
                         program, nullptr);
}

NOTIFYICONDATAW iconOf(HWND window) {
  NOTIFYICONDATAW icon{};
  icon.cbSize = sizeof(icon);
  icon.hWnd = window;
  icon.uFlags = NIF_ICON;
  icon.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  return icon;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, PWSTR arguments, int) {
  const bool inTray = std::wcscmp(arguments, L"tray") == 0;
  const HWND window = createWindow(program);
  if (window == nullptr) return 1;
  NOTIFYICONDATAW icon = iconOf(window);
  if (inTray && Shell_NotifyIconW(NIM_ADD, &icon) == FALSE) return 1;
  ShowWindow(window, SW_SHOW);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  if (inTray) Shell_NotifyIconW(NIM_DELETE, &icon);
  return 0;
}
