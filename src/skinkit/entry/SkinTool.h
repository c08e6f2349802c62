#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kalvora {

/// What both entry points do once they have their arguments: runs the command on the real files.
/// The skin to start from lies beside the program.
int skinTool(const std::filesystem::path& programFolder,
             const std::vector<std::wstring>& arguments);

}  // namespace kalvora
