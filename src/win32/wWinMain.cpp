#include <windows.h>

#include "win32/ProgramWindows.h"

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*arguments*/,
                    int /*showCommand*/) {
  // What the system's own libraries load by name is not taken from beside the program either.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  int code = 1;
  kalvora::MessageBoxReporter reporter;
  kalvora::EventGuard(reporter).run([&] { code = kalvora::ProgramWindows().run(); });
  return code;
}
