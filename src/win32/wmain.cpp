#include <windows.h>

#include <filesystem>

#include "skinkit/entry/SkinTool.h"

int wmain(int count, wchar_t** values) {
  SetConsoleOutputCP(CP_UTF8);
  std::wstring program(32768, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  return kalvora::skinTool(std::filesystem::path(program).parent_path(),
                           {values + 1, values + count});
}
