#include "platform/HeldHandles.h"

// winternl.h needs windows.h before it.
#include <winternl.h>

#include <cstdint>
#include <stdexcept>
#include <vector>

namespace kalvora {

/// Not every system tells the number, but all number handles in steps of four and give the lowest
/// free number to the next one.
int kernelHandlesOf(HANDLE process) {
  constexpr std::uintptr_t kStep = 4;
  constexpr std::uintptr_t kWidestGap = 1024 * kStep;
  int held = 0;
  std::uintptr_t last = 0;
  for (std::uintptr_t number = kStep; number - last <= kWidestGap; number += kStep) {
    HANDLE copy = nullptr;
    if (DuplicateHandle(process, reinterpret_cast<HANDLE>(number), GetCurrentProcess(), &copy, 0,
                        FALSE, DUPLICATE_SAME_ACCESS)) {
      CloseHandle(copy);
      ++held;
      last = number;
    }
  }
  return held;
}

/// Where the system does not tell, a process has a table of its GDI handles, found through its
/// environment block.
int gdiHandlesOf(HANDLE process) {
  if (const DWORD told = GetGuiResources(process, GR_GDIOBJECTS)) return static_cast<int>(told);
  constexpr std::size_t kTableInBlock = 0xF8;
  constexpr std::size_t kEntries = 0x4000;
  constexpr std::size_t kEntrySize = 24;
  constexpr std::size_t kTypeInEntry = 14;
  PROCESS_BASIC_INFORMATION basic{};
  const char* table = nullptr;
  std::vector<char> entries(kEntries * kEntrySize);
  if (NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr) <
          0 ||
      !ReadProcessMemory(process,
                         reinterpret_cast<const char*>(basic.PebBaseAddress) + kTableInBlock,
                         &table, sizeof table, nullptr) ||
      !ReadProcessMemory(process, table, entries.data(), entries.size(), nullptr)) {
    throw std::runtime_error("the table of GDI handles cannot be read");
  }
  int used = 0;
  for (std::size_t at = kTypeInEntry; at < entries.size(); at += kEntrySize) {
    used += entries[at] != 0 ? 1 : 0;
  }
  return used;
}

}  // namespace kalvora
