#pragma once

#include <windows.h>

/// How many handles of files, events, timers and the like a process holds. Throws
/// std::runtime_error where there is no such process.
DWORD kernelHandlesOf(DWORD process);

/// How many brushes, bitmaps, regions and the like a process holds, which some systems do not tell
/// in any other way. Throws std::runtime_error when it cannot be looked into.
int gdiHandlesOf(HANDLE process);
