#pragma once

#include <filesystem>

#include "win32/platform/UniqueHandle.h"

// A name can lead to a port, a pipe or a printer, and who reads from one may wait for ever.

namespace kalvora {

/// Opens a file for reading; others may write, rename and delete it meanwhile. None where it cannot
/// be opened, or is no file on a disk.
UniqueFile openDiskFile(const std::filesystem::path& file);

/// Whether a path leads to something else than a file on a disk: to be asked before the path is
/// given to a call of the system that reads from it. A file that is missing or locked is none.
bool leadsToDevice(const std::filesystem::path& file);

}  // namespace kalvora
