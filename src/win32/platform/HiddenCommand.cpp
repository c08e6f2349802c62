#include "win32/platform/HiddenCommand.h"

#include <windows.h>

#include "base/Errors.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {

namespace {

/// The shell of the system's own folder, so that no other file of that name is started.
std::wstring shellPath() {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
  return folder + L"\\cmd.exe";
}

}  // namespace

void HiddenCommand::run(std::wstring_view command) {
  const std::wstring shell = shellPath();
  std::wstring line = L"cmd.exe /d /c " + std::wstring(command);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_HIDE;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(shell.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                      nullptr, nullptr, &startup, &process)) {
    throw Failure(L"The web page cannot be opened.");
  }
  // Nobody waits for it.
  const UniqueProcess thread(process.hThread);
  const UniqueProcess started(process.hProcess);
}

}  // namespace kalvora
