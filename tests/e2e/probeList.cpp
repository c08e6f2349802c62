#include "probeList.h"

#include <commctrl.h>

#include <algorithm>

#include "probeText.h"

namespace {

constexpr std::size_t kLongestText = 260;
constexpr int kMostColumns = 10;

/// Room in another program, for what a control of it is asked.
class RoomThere {
 public:
  explicit RoomThere(HWND window) {
    DWORD number = 0;
    GetWindowThreadProcessId(window, &number);
    process_ =
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, number);
    place_ = VirtualAllocEx(process_, nullptr, sizeof(Content), MEM_COMMIT, PAGE_READWRITE);
  }
  ~RoomThere() {
    VirtualFreeEx(process_, place_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  RoomThere(const RoomThere&) = delete;
  RoomThere& operator=(const RoomThere&) = delete;

  std::wstring cell(HWND list, int row, int column) {
    Content content{};
    auto* const there = static_cast<Content*>(place_);
    content.item.iSubItem = column;
    content.item.pszText = there->text;
    content.item.cchTextMax = static_cast<int>(kLongestText);
    WriteProcessMemory(process_, place_, &content, sizeof content, nullptr);
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(place_));
    ReadProcessMemory(process_, place_, &content, sizeof content, nullptr);
    content.text[kLongestText - 1] = L'\0';
    return content.text;
  }

 private:
  struct Content {
    LVITEMW item;
    wchar_t text[kLongestText];
  };

  HANDLE process_ = nullptr;
  void* place_ = nullptr;
};

}  // namespace

std::string rowsOf(HWND list, int first, int most) {
  const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
  const int columns =
      std::min(kMostColumns, static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)));
  const int count = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
  RoomThere room(list);
  std::string json = "[";
  for (int row = first; row < std::min(count, first + most); ++row) {
    json += row > first ? ",[" : "[";
    for (int column = 0; column < columns; ++column) {
      if (column > 0) json += ",";
      json += quoted(room.cell(list, row, column));
    }
    json += "]";
  }
  return json + "]";
}
