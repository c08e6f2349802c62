#pragma once

#include <windows.h>

#include "base/SafeFileWriter.h"
#include "win32/platform/WindowsFileOperations.h"

namespace kalvora {

/// Changes the real files.
class WindowsFileWriter : public SafeFileWriter {
 public:
  WindowsFileWriter() : SafeFileWriter(operations_, static_cast<int>(GetCurrentProcessId())) {}

 private:
  WindowsFileOperations operations_;
};

}  // namespace kalvora
