#include "win32/options/SoundFileDialog.h"

// commdlg.h needs windows.h before it.
#include <commdlg.h>

#include <algorithm>
#include <cwchar>

#include "base/Errors.h"
#include "win32/platform/SystemFunction.h"
#include "win32/toolkit/VisualStyles.h"

namespace kalvora {

std::wstring pickFileToOpen(HWND owner, std::wstring_view filter,
                            const std::filesystem::path& folder) {
  // The call wants its parts ended by NULs, and a NUL more after the last.
  std::wstring parts(filter);
  std::ranges::replace(parts, L'|', L'\0');
  parts.append(2, L'\0');
  std::wstring file(32768, L'\0');
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = parts.c_str();
  dialog.lpstrFile = file.data();
  dialog.lpstrInitialDir = folder.c_str();
  dialog.nMaxFile = static_cast<DWORD>(file.size());
  // The program's folder stays the current one: other paths may be relative to it.
  dialog.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  const auto open = systemFunction<decltype(GetOpenFileNameW)>(L"comdlg32.dll", "GetOpenFileNameW");
  const VisualStyles styles;
  if (open == nullptr) throw Failure(L"This system has no window to choose files in.");
  if (!open(&dialog)) return {};
  file.resize(std::wcslen(file.c_str()));
  return file;
}

}  // namespace kalvora
