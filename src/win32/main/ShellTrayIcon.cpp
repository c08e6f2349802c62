#include "win32/main/ShellTrayIcon.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/ClearOfCheck.h"
#include "base/Errors.h"
#include "win32/platform/DiskFile.h"
#include "win32/platform/SystemFunction.h"
#include "win32/toolkit/ProgramIcon.h"
#include "win32/toolkit/WindowClass.h"
#include "win32/toolkit/WindowProcedure.h"

namespace kalvora {

namespace {

constexpr UINT kIconId = 1;
constexpr UINT kRecordSize = NOTIFYICONDATAA_V1_SIZE;
static_assert(sizeof(void*) != 4 || kRecordSize == 88, "the record of a 32-bit program");
constexpr std::string_view kTip = "Kalvora";

// Milliseconds. A window that slides in has come by then.
constexpr UINT kOnceIdle = 500;
constexpr UINT kRetryInterval = 2000;
constexpr int kRetries = 60;

constexpr const wchar_t* kClassName = L"KalvoraTray";

UniqueIcon programIcon() {
  return UniqueIcon(static_cast<HICON>(
      LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_KALVORA), IMAGE_ICON,
                 GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR)));
}

bool tellTaskbar(DWORD what, NOTIFYICONDATAA& data) {
  const auto tell =
      systemFunction<decltype(Shell_NotifyIconA)>(L"shell32.dll", "Shell_NotifyIconA");
  return tell != nullptr && tell(what, &data) != FALSE;
}

}  // namespace

ShellTrayIcon::ShellTrayIcon(HWND timers, const EventDelivery& deliver,
                             std::function<void(int)> onMouse)
    : timers_(timers), deliver_(deliver), onMouse_(std::move(onMouse)), Ikona_1(programIcon()) {}

ShellTrayIcon::~ShellTrayIcon() {
  remove();
  if (pichook != nullptr) DestroyWindow(pichook);
}

void ShellTrayIcon::setPicture(const std::filesystem::path& iconFile) {
  if (leadsToDevice(iconFile)) return;
  UniqueIcon loaded(static_cast<HICON>(LoadImageW(nullptr, iconFile.c_str(), IMAGE_ICON,
                                                  GetSystemMetrics(SM_CXSMICON),
                                                  GetSystemMetrics(SM_CYSMICON), LR_LOADFROMFILE)));
  if (loaded) Ikona_1 = std::move(loaded);
}

void ShellTrayIcon::add(IconComes when) {
  wanted_ = true;
  triesLeft_ = kRetries;
  if (when == IconComes::OnceIdle) {
    addIn(kOnceIdle);
    return;
  }
  tryToAdd();
  if (pichook == nullptr) throw Failure(L"The tray icon's window cannot be created.");
}

void ShellTrayIcon::remove() {
  wanted_ = false;
  stopAdding();
  if (!std::exchange(asked_, false)) return;
  NOTIFYICONDATAA data = record();
  tellTaskbar(NIM_DELETE, data);
}

void ShellTrayIcon::addIn(UINT milliseconds) {
  SetTimer(timers_, reinterpret_cast<UINT_PTR>(this), milliseconds, onTimer);
}

void ShellTrayIcon::stopAdding() {
  KillTimer(timers_, reinterpret_cast<UINT_PTR>(this));
}

void CALLBACK ShellTrayIcon::onTimer(HWND, UINT, UINT_PTR icon, DWORD) noexcept {
  reinterpret_cast<ShellTrayIcon*>(icon)->addClearOfCheck();
}

void ShellTrayIcon::addClearOfCheck() {
  stopAdding();
  SYSTEMTIME now{};
  GetLocalTime(&now);
  if (const int seconds = clearOfCheck(0, now.wSecond); seconds > 0) {
    addIn(static_cast<UINT>(seconds) * 1000U);
  } else {
    tryToAdd();
  }
}

void ShellTrayIcon::tryToAdd() {
  bool taken = false;
  if (pichook != nullptr || makeWindow()) {
    NOTIFYICONDATAA data = record();
    asked_ = true;
    taken = tellTaskbar(NIM_ADD, data);
  }
  if (!taken && --triesLeft_ > 0) addIn(kRetryInterval);
}

bool ShellTrayIcon::makeWindow() {
  registerWindowClass(kClassName, windowProcedure<ShellTrayIcon, &ShellTrayIcon::handle>);
  taskbarCreated_ = RegisterWindowMessageW(L"TaskbarCreated");
  // A top-level window, not a message-only one or a child: only those hear that the task bar was
  // created, and the icon of one that ended is taken away.
  pichook = CreateWindowExW(WS_EX_TOOLWINDOW, kClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                            nullptr, GetModuleHandleW(nullptr), this);
  return pichook != nullptr;
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
  if (message == taskbarCreated_ && wanted_) {
    triesLeft_ = kRetries;
    addIn(USER_TIMER_MINIMUM);
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace kalvora
