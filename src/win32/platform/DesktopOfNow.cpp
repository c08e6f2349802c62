#include "win32/platform/DesktopOfNow.h"

#include <windows.h>

#include <vector>

namespace kalvora {

namespace {

BOOL CALLBACK collectOther(HMONITOR monitor, HDC /*context*/, LPRECT place, LPARAM others) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  if (!GetMonitorInfoW(monitor, &info) || (info.dwFlags & MONITORINFOF_PRIMARY) != 0) return TRUE;
  reinterpret_cast<std::vector<Rect>*>(others)->push_back(
      {place->left, place->top, place->right - place->left, place->bottom - place->top});
  return TRUE;
}

}  // namespace

Desktop desktopOfNow() {
  std::vector<Rect> others;
  EnumDisplayMonitors(nullptr, nullptr, collectOther, reinterpret_cast<LPARAM>(&others));
  return Desktop({GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}, others);
}

}  // namespace kalvora
