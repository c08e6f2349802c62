#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace kalvora {

/// The system's dialog for a file to open. `filter` is a caption and a pattern with "|" between
/// them. Waits for the user; empty where the user cancels.
std::wstring pickFileToOpen(HWND owner, std::wstring_view filter);

}  // namespace kalvora
