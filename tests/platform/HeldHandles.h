#pragma once

#include <windows.h>

#include <ostream>

namespace kalvora {

/// How many handles of files, keys, events, timers and the like a process holds.
int kernelHandlesOf(HANDLE process);

/// How many brushes, bitmaps, regions and the like a process holds, which some systems do not tell
/// in any other way. Throws std::runtime_error when it cannot be looked into.
int gdiHandlesOf(HANDLE process);

/// What this process holds now. A test of leaks compares two moments of it, with many repetitions
/// between them.
struct HeldHandles {
  int kernel = kernelHandlesOf(GetCurrentProcess());
  int gdi = gdiHandlesOf(GetCurrentProcess());
  // Windows, icons and hooks; 0 on systems that do not count them.
  DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);

  /// Whether more is held by now than the few that the system takes for itself now and then.
  bool grew() const {
    constexpr int kOfTheSystem = 5;
    const HeldHandles now;
    return now.kernel - kernel > kOfTheSystem || now.gdi - gdi > kOfTheSystem ||
           now.user > user + kOfTheSystem;
  }
};

inline void PrintTo(const HeldHandles& held, std::ostream* out) {
  *out << held.kernel << " kernel, " << held.gdi << " GDI, " << held.user << " user handles";
}

}  // namespace kalvora
