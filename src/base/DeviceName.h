#pragma once

#include <filesystem>

namespace kalvora {

/// Whether Windows keeps a file's name for a device, with any extension: who opens "aux.txt" opens
/// a port, in every folder, and may wait there for ever, though a file of that name can be listed.
bool namesDevice(const std::filesystem::path& file);

}  // namespace kalvora
