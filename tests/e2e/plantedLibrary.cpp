// A library that somebody puts beside the program under the name of one of the system's: it leaves
// a file "<its own path>.loaded" where it is loaded.

#include <windows.h>

#include <string>

extern "C" BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, LPVOID /*reserved*/) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(self, path.data(), static_cast<DWORD>(path.size())));
  path += L".loaded";
  CloseHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr));
  return TRUE;
}
