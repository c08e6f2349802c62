#pragma once

#include <string_view>

namespace kalvora {

/// Whether Windows keeps the name of a file, without its folder, for a device, with any extension:
/// who opens "aux.txt" opens a port, in every folder, and may wait there for ever, though a file of
/// that name can be listed.
bool namesDevice(std::wstring_view fileName);

}  // namespace kalvora
