#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace kalvora {

/// The system's dialog for a file to open. `filter` is a caption and a pattern with "|" between
/// them. It begins in `folder`, where there is one. Waits for the user; empty where the user
/// cancels.
std::wstring pickFileToOpen(HWND owner, std::wstring_view filter,
                            const std::filesystem::path& folder);

}  // namespace kalvora
