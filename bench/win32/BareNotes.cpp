// What Windows alone takes for the files of a folder: one listing, and, unless only that is asked
// for, each file opened, read and closed. Prints how many files there are, and the milliseconds of
// the listing and of the reading.
//
//   bare-notes FOLDER [list]

#include <windows.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

std::vector<std::wstring> namesIn(const std::wstring& folder) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.push_back(found.cFileName);
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  return names;
}

bool openReadClose(const std::wstring& file) {
  static std::array<char, 32768> buffer;
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  DWORD count = 0;
  const BOOL read =
      ReadFile(handle, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr);
  CloseHandle(handle);
  return read != FALSE && count > 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const bool onlyList = count == 3 && std::wcscmp(arguments[2], L"list") == 0;
  if (count != 2 && !onlyList) return 2;
  const std::wstring folder = arguments[1];
  const Clock::time_point start = Clock::now();
  const std::vector<std::wstring> names = namesIn(folder);
  const double listing = millisecondsSince(start);
  const Clock::time_point listed = Clock::now();
  if (!onlyList) {
    for (const std::wstring& name : names) {
      if (!openReadClose(folder + L"\\" + name)) return 1;
    }
  }
  std::printf("%zu %.4f %.4f\n", names.size(), listing, millisecondsSince(listed));
  return 0;
}
