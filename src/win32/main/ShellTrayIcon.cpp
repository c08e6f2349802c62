#include "win32/main/ShellTrayIcon.h"

#include <algorithm>
#include <string_view>

#include "base/Errors.h"
#include "win32/platform/DiskFile.h"
#include "win32/toolkit/ProgramIcon.h"
#include "win32/toolkit/WindowClass.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

constexpr UINT kIconId = 1;
constexpr UINT kRecordSize = NOTIFYICONDATAA_V1_SIZE;
static_assert(sizeof(void*) != 4 || kRecordSize == 88, "the record of a 32-bit program");
constexpr std::string_view kTip = "Kalvora";

constexpr UINT_PTR kRetryTimer = 1;
constexpr UINT kRetryInterval = 2000;
constexpr int kRetries = 60;

constexpr const wchar_t* kClassName = L"KalvoraTray";

UniqueIcon programIcon() {
  return UniqueIcon(static_cast<HICON>(
      LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_KALVORA), IMAGE_ICON,
                 GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR)));
}

}  // namespace

ShellTrayIcon::ShellTrayIcon(const EventDelivery& deliver, std::function<void(int)> onMouse)
    : deliver_(deliver),
      onMouse_(std::move(onMouse)),
      taskbarCreated_(RegisterWindowMessageW(L"TaskbarCreated")),
      Ikona_1(programIcon()) {
  registerWindowClass(kClassName, windowProcedure<ShellTrayIcon, &ShellTrayIcon::handle>);
  // A top-level window, not a message-only one: only those hear that the task bar was created.
  pichook = CreateWindowExW(WS_EX_TOOLWINDOW, kClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                            nullptr, GetModuleHandleW(nullptr), this);
  if (pichook == nullptr) throw Failure(L"The tray icon's window cannot be created.");
}

ShellTrayIcon::~ShellTrayIcon() {
  remove();
  DestroyWindow(pichook);
}

void ShellTrayIcon::setPicture(const std::filesystem::path& iconFile) {
  if (leadsToDevice(iconFile)) return;
  UniqueIcon loaded(static_cast<HICON>(LoadImageW(nullptr, iconFile.c_str(), IMAGE_ICON,
                                                  GetSystemMetrics(SM_CXSMICON),
                                                  GetSystemMetrics(SM_CYSMICON), LR_LOADFROMFILE)));
  if (loaded) Ikona_1 = std::move(loaded);
}

void ShellTrayIcon::add() {
  wanted_ = true;
  triesLeft_ = kRetries;
  tryToAdd();
}

void ShellTrayIcon::remove() {
  wanted_ = false;
  KillTimer(pichook, kRetryTimer);
  NOTIFYICONDATAA data = record();
  Shell_NotifyIconA(NIM_DELETE, &data);
}

void ShellTrayIcon::tryToAdd() {
  NOTIFYICONDATAA data = record();
  if (Shell_NotifyIconA(NIM_ADD, &data) || --triesLeft_ <= 0) {
    KillTimer(pichook, kRetryTimer);
  } else {
    SetTimer(pichook, kRetryTimer, kRetryInterval, nullptr);
  }
}

NOTIFYICONDATAA ShellTrayIcon::record() const {
  NOTIFYICONDATAA data{};
  data.cbSize = kRecordSize;
  data.hWnd = pichook;
  data.uID = kIconId;
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  data.uCallbackMessage = WM_MOUSEMOVE;
  data.hIcon = Ikona_1.get();
  std::ranges::copy(kTip, data.szTip);
  return data;
}

LRESULT ShellTrayIcon::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message == WM_MOUSEMOVE) {
    deliver_([&] { onMouse_(static_cast<int>(lParam)); });
    return 0;
  }
  if (message == WM_TIMER && wParam == kRetryTimer) {
    tryToAdd();
    return 0;
  }
  if (message == taskbarCreated_ && wanted_) {
    triesLeft_ = kRetries;
    tryToAdd();
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace kalvora
