// Takes the place of a program and writes down how it was called, for tests of what is handed to
// the system: one line a call, "hidden" or "shown" and the command line, into a file beside it.

#include <windows.h>

#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  wchar_t own[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  GetStartupInfoW(&startup);
  const bool hidden =
      (startup.dwFlags & STARTF_USESHOWWINDOW) != 0 && startup.wShowWindow == SW_HIDE;
  const std::wstring line =
      std::wstring(hidden ? L"hidden " : L"shown ") + GetCommandLineW() + L"\r\n";
  const HANDLE file =
      CreateFileW((std::wstring(own) + L".log").c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  std::string bytes(line.begin(), line.end());
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  CloseHandle(file);
  return 0;
}
