#include "heldHandles.h"

// winternl.h needs windows.h before it.
#include <winternl.h>

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <vector>

/// What the system lists of a process; one entry leads to the next.
DWORD kernelHandlesOf(DWORD process) {
  std::vector<char> list(1U << 20U);
  if (NtQuerySystemInformation(SystemProcessInformation, list.data(),
                               static_cast<ULONG>(list.size()), nullptr) < 0) {
    throw std::runtime_error("the processes cannot be listed");
  }
  SYSTEM_PROCESS_INFORMATION entry{};
  std::size_t place = 0;
  do {
    std::memcpy(&entry, list.data() + place, sizeof entry);
    if (reinterpret_cast<std::uintptr_t>(entry.UniqueProcessId) == process) {
      return entry.HandleCount;
    }
    place += entry.NextEntryOffset;
  } while (entry.NextEntryOffset != 0);
  throw std::runtime_error("the process is gone");
}

/// Every process has a table of all GDI handles, found through its environment block.
int gdiHandlesOf(HANDLE process) {
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
