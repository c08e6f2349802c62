#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace kalvora {

/// A path for the platform calls that take bytes of the ANSI code page: the path itself where the
/// code page can hold it, otherwise its short (8.3) form; nothing where the volume has none.
std::optional<std::string> ansiPath(const std::filesystem::path& path);

}  // namespace kalvora
