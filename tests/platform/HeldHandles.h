#pragma once

#include <windows.h>

#include <ostream>

namespace kalvora {

/// How many handles of files, keys, events, timers and the like a process holds.
int kernelHandlesOf(HANDLE process);

/// How many brushes, bitmaps, regions and the like a process holds, which some systems do not tell
/// in any other way. Throws std::runtime_error when it cannot be looked into.
int gdiHandlesOf(HANDLE process);

/// What this process holds now. A test of leaks compares two moments of it.
struct HeldHandles {
  int kernel = kernelHandlesOf(GetCurrentProcess());
  int gdi = gdiHandlesOf(GetCurrentProcess());
  // Windows, icons and hooks; 0 on systems that do not count them.
  DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);

  bool operator==(const HeldHandles&) const = default;
  /// Whether each of so many repetitions, between this moment and now, took one or more for good.
  /// The system may keep a few that it takes once.
  bool growBy(int repetitions) const {
    const HeldHandles now;
    return now.kernel - kernel >= repetitions || now.gdi - gdi >= repetitions ||
           now.user >= user + static_cast<DWORD>(repetitions);
  }
};

inline void PrintTo(const HeldHandles& held, std::ostream* out) {
  *out << held.kernel << " kernel, " << held.gdi << " GDI, " << held.user << " user handles";
}

}  // namespace kalvora
