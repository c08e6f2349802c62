// The program on which the driver's own test (flow_driver.py) shows that the driver works: a
// frameless window with two cut-away corners, edit boxes, a tray icon, a question and a registry
// value, and nothing of the real program in it.

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace {

constexpr UINT kTrayMessage = WM_APP + 1;
constexpr int kWidth = 300;
constexpr int kHeight = 200;
constexpr int kBarHeight = 40;
constexpr int kCorner = 30;
constexpr int kExitCode = 7;

HWND mainWindow = nullptr;

/// All but the squares in the upper left and the lower right corner.
void cutCorners(HWND window) {
  const HRGN shape = CreateRectRgn(0, 0, kWidth, kHeight);
  for (const auto& [x, y] : {std::pair{0, 0}, std::pair{kWidth - kCorner, kHeight - kCorner}}) {
    const HRGN corner = CreateRectRgn(x, y, x + kCorner, y + kCorner);
    CombineRgn(shape, shape, corner, RGN_DIFF);
    DeleteObject(corner);
  }
  SetWindowRgn(window, shape, FALSE);  // Windows owns the shape from here on.
}

void saveLeftEdge(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  const std::wstring text = std::to_wstring(place.left);
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\KalvoraStandIn\\Graph", L"Window_X", REG_SZ,
                  text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void askAndLeave(HWND window) {
  if (MessageBoxW(window, L"Is it time to go ?", L"Stand-in", MB_YESNO | MB_ICONQUESTION) ==
      IDYES) {
    saveLeftEdge(window);
    PostQuitMessage(kExitCode);
  }
}

void paint(HWND window) {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window, &paint);
  const HBRUSH brush = CreateSolidBrush(RGB(200, 30, 60));
  FillRect(dc, &paint.rcPaint, brush);
  DeleteObject(brush);
  EndPaint(window, &paint);
}

LRESULT CALLBACK mainProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept {
  switch (message) {
    case WM_PAINT:
      paint(window);
      return 0;
    case WM_LBUTTONDOWN:
      if (HIWORD(second) < kBarHeight) {
        ReleaseCapture();
        SendMessageW(window, WM_NCLBUTTONDOWN, HTCAPTION, 0);
      } else {
        askAndLeave(window);
      }
      return 0;
    default:
      return DefWindowProcW(window, message, first, second);
  }
}

/// The minute that the program believes in.
void showTime() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  wchar_t text[32] = {};
  wsprintfW(text, L"%04u-%02u-%02u %02u:%02u", now.wYear, now.wMonth, now.wDay, now.wHour,
            now.wMinute);
  SetWindowTextW(GetDlgItem(mainWindow, 1004), text);
}

LRESULT CALLBACK trayProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept {
  if (message != kTrayMessage) return DefWindowProcW(window, message, first, second);
  if (second == WM_LBUTTONDBLCLK) {
    ShowWindow(mainWindow, IsWindowVisible(mainWindow) != FALSE ? SW_HIDE : SW_SHOW);
  } else if (second == WM_RBUTTONDOWN) {
    showTime();
  }
  return 0;
}

HWND createWindow(const wchar_t* name, const wchar_t* title, WNDPROC procedure,
                  HINSTANCE instance) {
  WNDCLASSW shape{};
  shape.lpfnWndProc = procedure;
  shape.hInstance = instance;
  shape.lpszClassName = name;
  shape.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  RegisterClassW(&shape);
  return CreateWindowExW(WS_EX_TOOLWINDOW, name, title, WS_POPUP, 200, 150, kWidth, kHeight,
                         nullptr, nullptr, instance, nullptr);
}

void createControls(HWND parent, HINSTANCE instance) {
  CreateWindowW(L"EDIT", L"a title", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 40, 50, 200, 20,
                parent, reinterpret_cast<HMENU>(1001), instance, nullptr);
  CreateWindowW(L"EDIT", L"line one\r\nline two \x105", WS_CHILD | WS_VISIBLE | ES_MULTILINE, 40,
                80, 200, 60, parent, reinterpret_cast<HMENU>(1002), instance, nullptr);
  CreateWindowW(L"STATIC", L"AM", WS_CHILD, 40, 150, 60, 20, parent, reinterpret_cast<HMENU>(1004),
                instance, nullptr);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  mainWindow = createWindow(L"KalvoraMain", L"Kalvora", mainProcedure, instance);
  createControls(mainWindow, instance);
  cutCorners(mainWindow);

  NOTIFYICONDATAW icon{};
  icon.cbSize = sizeof icon;
  icon.hWnd = createWindow(L"KalvoraTray", L"", trayProcedure, instance);
  icon.uFlags = NIF_ICON | NIF_MESSAGE;
  icon.uCallbackMessage = kTrayMessage;
  icon.hIcon = LoadIconW(nullptr, MAKEINTRESOURCEW(32516));
  Shell_NotifyIconW(NIM_ADD, &icon);

  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  Shell_NotifyIconW(NIM_DELETE, &icon);
  return static_cast<int>(message.wParam);
}
